// What recovery says of a file against what the library does with it: a file without a finding is
// one that loads whole, and gives the same lists; and the faults of a document are none exactly
// when it loads.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "platform/CodePage.h"
#include "platform/Encoding.h"
#include "platform/xml/XmlDocument.h"
#include "recovery/DocumentFaults.h"
#include "symbollist/SymbolList.h"
#include "symbollist/file/ListFile.h"
#include "tests/recovery/RecoveryFiles.h"

namespace {

using recovery::Outcome;
using recovery::StoredList;

bool IsTraditional() {
  return tq::AnsiCodePage() == tq::kCodePageBig5;
}

tq::TextEncoding ProcessEncoding() {
  return IsTraditional() ? tq::TextEncoding::Big5 : tq::TextEncoding::Gbk;
}

// What the library makes of a file.
struct Loaded {
  bool document = false; // well-formed
  bool whole = false;    // a list file of which nothing is cut, lost or there twice
  int index = 0;
  std::vector<StoredList> lists;
};

std::string LowerOf(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), tq::ToLowerLetter);
  return text;
}

// Whether the list holds what stands in the element. No file of these tests has a "?" of its own.
bool HoldsAll(const tq::XmlElement& element, const StoredList& list) {
  const auto same = [&](const char* name, const std::string& kept) {
    CString value;
    element.Attribute(name, value);
    return kept == value.GetString() && kept.find('?') == std::string::npos;
  };
  return same("ID", list.id) && same("Name", list.name) && same("Value", list.symbols);
}

Loaded Load(const std::string& file) {
  Loaded loaded;
  tq::XmlDocument document;
  loaded.document = document.Load(file.data(), file.size());
  const tq::XmlElement lists = document.SelectSingle("/Result/SymbolList");
  CString index;
  loaded.whole = !lists.IsNull() && lists.Attribute("DefaultIdx", index);
  loaded.index = lists.IsNull() ? 0 : CXMLDOMParser::GetDefaultIndex(lists);
  loaded.whole = loaded.whole && (loaded.index != 0 || index.Find('0') >= 0);
  std::set<std::string> ids;
  for (const tq::XmlElement& element : document.Select("/Result/SymbolList/List")) {
    CSymbolList list;
    loaded.whole = list.FillFromElement(element) != 0 && loaded.whole;
    loaded.lists.push_back(
        {list.GetID().GetString(), list.GetName().GetString(), list.GetIDs().GetString()});
    const StoredList& stored = loaded.lists.back();
    loaded.whole = loaded.whole && HoldsAll(element, stored) && !stored.id.empty() &&
                   ids.insert(LowerOf(stored.id)).second;
  }
  return loaded;
}

class Mutator {
public:
  explicit Mutator(unsigned seed) : random_(seed) {}

  std::string File() {
    std::vector<recovery::Sample> samples = recovery::Samples();
    std::string file = samples[Below(samples.size())].file;
    if (Below(2) == 0)
      file = Without(file, "AT&T.NYSE,"); // well-formed then
    for (std::size_t left = Below(4); left > 0; --left)
      Change(file);
    return file;
  }

private:
  std::size_t Below(std::size_t most) { return random_() % most; }

  static std::string Without(std::string file, const std::string& part) {
    const std::size_t at = file.find(part);
    return at == std::string::npos ? file : file.erase(at, part.size());
  }

  void Change(std::string& file) {
    static const std::string bytes("'\"&<>/=!-. ;\n\r\t\0\x01\x80\xA4\xFF]Aa1,", 26);
    const std::size_t at = Below(file.size());
    switch (Below(6)) {
    case 0:
      file[at] = bytes[Below(bytes.size())];
      break;
    case 1:
      file.insert(at, 1, bytes[Below(bytes.size())]);
      break;
    case 2:
      file.erase(at, 1 + Below(3));
      break;
    case 3:
      file.insert(file.find("\n", at) == std::string::npos ? at : file.find("\n", at), Piece());
      break;
    case 4:
      file.insert(at, Piece());
      break;
    default:
      Replace(file, at);
    }
    if (file.empty())
      file = "x";
  }

  std::string Piece() {
    static const char* const pieces[] = {"<!-- note -->",
                                         "<!--",
                                         "-->",
                                         "<![CDATA[ <x> ]]>",
                                         "]]>",
                                         "<?pi some?>",
                                         "<?xml ?>",
                                         "&amp;",
                                         "&#x41;",
                                         "&#39;",
                                         "&#1;",
                                         "&apos;",
                                         "&no;",
                                         "<!DOCTYPE x>",
                                         "<Other a='1'/>",
                                         "<List ID='n' Name='n' Value=''/>",
                                         "<List/>",
                                         " ID='again'",
                                         " Other='1'",
                                         " xmlns='u'",
                                         "<a:b xmlns:a='u'/>",
                                         "</List>",
                                         "<Result>",
                                         "</Result>",
                                         "text",
                                         "\xEF\xBB\xBF",
                                         "&#xFFFFF;",
                                         "&#65536;",
                                         "<SymbolList DefaultIdx='2'/>",
                                         "<List ID='zusyslist1'/>"};
    return pieces[Below(std::size(pieces))];
  }

  void Replace(std::string& file, std::size_t at) {
    static const char* const changes[][2] = {
        {"encoding='big5'", "encoding='gb2312'"},
        {"encoding='gb2312'", "encoding='utf-8'"},
        {" encoding='big5'", ""},
        {"DefaultIdx='1'", "DefaultIdx=' +3 '"},
        {"DefaultIdx='1'", ""},
        {"DefaultIdx", "DefaultId"},
        {"ZUSYSLIST1", ""},
        {"ID='Z'", "ID='Zaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa'"},
        {"'/>\n", "'></List>\r\n"},
        {"Name='plain'", "Name=\"a'b\""},
        {"Name=", "name="},
        {"<List ", "<List\n"}};
    const auto& change = changes[Below(std::size(changes))];
    const std::size_t from = file.find(change[0], Below(2) == 0 ? 0 : at);
    if (from != std::string::npos)
      file.replace(from, std::string(change[0]).size(), change[1]);
  }

  std::mt19937 random_;
};

// Where recovery knows better on purpose.
bool IsReadOtherwise(const Outcome& outcome) {
  const bool encoding =
      std::any_of(outcome.lists.begin(), outcome.lists.end(), [](const auto& list) {
        return recovery::HasFault(list, tq::Fault::OtherEncoding);
      });
  return encoding || outcome.Has(tq::Fault::WrongEncoding);
}

// Text between the lists that has quotation marks is the rest of a name.
bool HasQuotesBetween(const std::string& file) {
  for (std::size_t at = file.find('>'); at != std::string::npos; at = file.find('>', at + 1)) {
    const std::size_t next = file.find('<', at);
    if (file.substr(at, next - at).find_first_of("'\"") != std::string::npos)
      return true;
  }
  return false;
}

void Compare(const std::string& file) {
  const Loaded loaded = Load(file);
  const Outcome outcome = recovery::Recover(file, ProcessEncoding(), ProcessEncoding());
  EXPECT_EQ(tq::DocumentFaults(file, 1).empty(), loaded.document);
  if (outcome.sound) {
    EXPECT_TRUE(loaded.whole);
    EXPECT_EQ(outcome.Kept(), loaded.lists);
    const bool listed = loaded.index >= 0 && loaded.index < static_cast<int>(loaded.lists.size());
    EXPECT_EQ(outcome.defaultList, listed ? loaded.index : -1);
  } else if (!IsReadOtherwise(outcome) && !HasQuotesBetween(file)) {
    EXPECT_FALSE(loaded.whole);
  }
}

class RecoveryAgainstLoading : public testing::TestWithParam<unsigned> {};

TEST_P(RecoveryAgainstLoading, SaysTheSameOfChangedFiles) {
#ifdef _WIN32
  constexpr unsigned files = 200;
#else
  constexpr unsigned files = 2500;
#endif
  for (unsigned i = 0; i < files; ++i) {
    const unsigned seed = GetParam() * files + i;
    const std::string file = Mutator(seed).File();
    Compare(file);
    ASSERT_FALSE(HasFailure()) << "seed " << seed << "\n" << file;
  }
}

INSTANTIATE_TEST_SUITE_P(Batch, RecoveryAgainstLoading, testing::Range(0U, 8U, 1U));

TEST(RecoveryAgainstLoading, SaysTheSameOfTheCorpus) {
  int compared = 0;
  for (const char* part : {"good", "bad"}) {
    const auto corpus = std::filesystem::path("tests/platform/corpus") / part;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
      if (entry.path().extension() != ".xml")
        continue;
      std::ifstream stream(entry.path(), std::ios::binary);
      const std::string file{std::istreambuf_iterator<char>(stream), {}};
      SCOPED_TRACE(entry.path().filename().string());
      EXPECT_EQ(tq::DocumentFaults(file, 1).empty(), Load(file).document);
      ++compared;
    }
  }
  EXPECT_GE(compared, 250);
}

} // namespace
