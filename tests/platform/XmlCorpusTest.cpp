// One corpus for both platforms: files that must be read, with what must be read out of them, and
// files that must be refused.
//
// good/<name>.xml has <name>.expected, or one for each interface language (<name>.tw.expected,
// <name>.cn.expected) where the text depends on it; a file without one for a language is not meant
// for it. An expectation shows the tree, bytes that are not printable ASCII as \xHH.
#include "platform/Encoding.h"
#include "platform/framework/CString.h"
#include "platform/xml/XmlDocument.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

const char* const AttributeNames[] = {"DefaultIdx", "ID", "Name", "Value", "Flag"};

fs::path Corpus(const char* part) {
  return fs::path("tests/platform/corpus") / part;
}

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Printable(const CString& text) {
  std::string result;
  for (int i = 0; i < text.GetLength(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte >= 0x20 && byte < 0x7F && byte != '\\') {
      result += text[i];
      continue;
    }
    constexpr char digits[] = "0123456789ABCDEF";
    result += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
  }
  return result;
}

std::string Attributes(const tq::XmlElement& element) {
  std::string line = element.HasAttributes() ? "" : " bare";
  for (const char* name : AttributeNames) {
    CString value = "not assigned";
    if (element.Attribute(name, value))
      line += std::string(" ") + name + "=[" + Printable(value) + "]";
    else
      EXPECT_STREQ("not assigned", value);
  }
  return line;
}

void DumpElement(const tq::XmlElement& element, const std::string& indent, std::string& dump) {
  CString name;
  CString text;
  EXPECT_TRUE(element.Name(name));
  EXPECT_TRUE(element.Text(text));
  dump += indent + Printable(name) + Attributes(element);
  if (!CString(text).Trim().IsEmpty())
    dump += " text=[" + Printable(text) + "]";
  dump += "\n";
  for (const tq::XmlElement& child : element.Children())
    DumpElement(child, indent + "  ", dump);
}

std::string Dump(const tq::XmlDocument& document) {
  std::string dump;
  DumpElement(document.Root(), "", dump);
  const tq::XmlElement first = document.SelectSingle("/Result/SymbolList");
  dump += "first /Result/SymbolList" + (first.IsNull() ? " none" : Attributes(first)) + "\n";
  const auto all = document.Select("/Result/SymbolList/List");
  dump += "all /Result/SymbolList/List " + std::to_string(all.size()) + "\n";
  return dump;
}

// Where the expectation for this process's language stands; empty when the file is not meant for
// it.
fs::path ExpectationOf(fs::path file) {
  const char* language = tq::AnsiCodePage() == tq::kCodePageBig5 ? ".tw.expected" : ".cn.expected";
  const fs::path always = file.replace_extension(".expected");
  fs::path own = file.replace_extension(language);
  if (fs::exists(own))
    return own;
  return fs::exists(always) ? always : fs::path();
}

TEST(XmlCorpus, GoodFilesAreReadAsExpected) {
  int compared = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(Corpus("good"))) {
    const fs::path expectation = ExpectationOf(entry.path());
    if (entry.path().extension() != ".xml" || expectation.empty())
      continue;
    SCOPED_TRACE(entry.path().filename().string());
    const std::string bytes = ReadFile(entry.path());
    tq::XmlDocument document;
    ++compared;
    if (document.Load(bytes.data(), bytes.size()))
      EXPECT_EQ(ReadFile(expectation), Dump(document));
    else
      ADD_FAILURE() << "refused";
  }
  EXPECT_GE(compared, 60);
}

TEST(XmlCorpus, BadFilesAreRefused) {
  int refused = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(Corpus("bad"))) {
    const std::string bytes = ReadFile(entry.path());
    tq::XmlDocument document;
    EXPECT_FALSE(document.Load(bytes.data(), bytes.size())) << entry.path().filename().string();
    EXPECT_TRUE(document.Root().IsNull());
    EXPECT_TRUE(document.Select("/Result/SymbolList").empty());
    ++refused;
  }
  EXPECT_GE(refused, 190);
}

// A save that was cut short must never be taken for a file with fewer lists.
TEST(XmlCorpus, EveryTruncationOfAListFileIsRefused) {
  for (const char* name : {"list_file_big5.xml", "list_file_gb2312.xml"}) {
    const std::string bytes = ReadFile(Corpus("good") / name);
    tq::XmlDocument document;
    for (size_t kept = 0; kept < bytes.size(); ++kept)
      EXPECT_FALSE(document.Load(bytes.data(), kept)) << name << " cut after " << kept;
    EXPECT_TRUE(document.Load(bytes.data(), bytes.size()));
  }
}

} // namespace
