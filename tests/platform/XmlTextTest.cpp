// What is decided before the DOM sees a file, and what its text becomes behind it.
#include "platform/xml/XmlText.h"

#include "platform/Encoding.h"
#include "platform/framework/CString.h"
#include "platform/xml/XmlDocument.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

using tq::XmlVerdict;

XmlVerdict Prepare(const std::string& file) {
  tq::XmlText text;
  return tq::PrepareXml(file.data(), file.size(), text);
}

bool Loads(const std::string& file) {
  return tq::XmlDocument().Load(file.data(), file.size());
}

// The declaration that the list writer would write now.
std::string OwnDeclaration() {
  const bool big5 = tq::AnsiCodePage() == tq::kCodePageBig5;
  return std::string("<?xml version='1.0' encoding='") + (big5 ? "big5" : "gb2312") + "' ?>";
}

TEST(XmlText, EachReasonHasItsVerdict) {
  const std::string big5 = "<?xml version='1.0' encoding='big5'?>";
  const struct {
    const char* what;
    std::string file;
    XmlVerdict verdict;
  } cases[] = {
      {"plain", "<a/>", XmlVerdict::Ok},
      {"what only the DOM can tell", "<a></b>", XmlVerdict::Ok},
      {"declaration", "<?xml version='1.1'?><a/>", XmlVerdict::BadDeclaration},
      {"encoding", "<?xml version='1.0' encoding='koi8-r'?><a/>", XmlVerdict::UnknownEncoding},
      {"not in it", "<?xml version='1.0' encoding='utf-16'?><a/>", XmlVerdict::BadDeclaration},
      {"half a character", big5 + "<a b='\xB3'/>", XmlVerdict::BadCharacters},
      {"control character", "<a>\x01</a>", XmlVerdict::BadCharacters},
      {"document type", "<!DOCTYPE a><a/>", XmlVerdict::DocumentType},
      {"name with prefix", "<p:a/>", XmlVerdict::Ok},
      {"name beyond ASCII", "<a \xE8\xA8\xB1='b'/>", XmlVerdict::Ok},
      {"instruction for style sheets", "<?xml-stylesheet a?><a/>", XmlVerdict::Ok},
      {"declaration inside", "<a><?xml version='1.0'?></a>", XmlVerdict::BadDeclaration},
      {"character of no name", "<a\xC3\x97/>", XmlVerdict::BadCharacters},
      {"no name", "<1/>", XmlVerdict::Malformed},
      {"attributes without a blank", "<a b='1'c='2'/>", XmlVerdict::Malformed},
      {"long name", "<" + std::string(tq::kXmlNameLengthLimit + 1, 'a') + "/>",
       XmlVerdict::TooMany},
      {"open tag", "<a b='c", XmlVerdict::Malformed},
      {"no element", "<!-- a -->", XmlVerdict::Malformed},
  };
  for (const auto& c : cases)
    EXPECT_EQ(c.verdict, Prepare(c.file)) << c.what;
}

TEST(XmlText, AFileThatNeedsNoChangeIsNotCopied) {
  for (const std::string& start : {OwnDeclaration(), std::string("<?xml version='1.0'?>")}) {
    const std::string file = start + "<a b='c'/>";
    tq::XmlText text;
    ASSERT_EQ(XmlVerdict::Ok, tq::PrepareXml(file.data(), file.size(), text));
    EXPECT_EQ(file.data() + start.size(), text.utf8.data());
    EXPECT_EQ("<a b='c'/>", text.utf8);
  }
}

TEST(XmlText, AFileOfTheLargestSizeIsReadAndALargerOneIsNot) {
  std::string file = "<a b='" + std::string(tq::kXmlSizeLimit - 9, 'x') + "'/>";
  ASSERT_EQ(tq::kXmlSizeLimit, file.size());
  EXPECT_EQ(XmlVerdict::Ok, Prepare(file));
  file.insert(6, 1, 'x');
  EXPECT_EQ(XmlVerdict::TooLarge, Prepare(file));
  EXPECT_EQ(XmlVerdict::TooLarge, Prepare(std::string(100'000'000, ' ')));
}

TEST(XmlText, NestingIsBoundedBeforeTheDomSeesIt) {
  const auto nested = [](int depth, const std::string& inner) {
    std::string file;
    for (int i = 0; i < depth; ++i)
      file += "<a>";
    file += inner;
    for (int i = 0; i < depth; ++i)
      file += "</a>";
    return file;
  };
  EXPECT_EQ(XmlVerdict::Ok, Prepare(nested(tq::kXmlDepthLimit, "")));
  EXPECT_EQ(XmlVerdict::Ok, Prepare(nested(tq::kXmlDepthLimit - 1, "<b/><b/>")));
  EXPECT_EQ(XmlVerdict::TooDeep, Prepare(nested(tq::kXmlDepthLimit, "<b/>")));
  EXPECT_EQ(XmlVerdict::TooDeep, Prepare(nested(1'000'000, "")));
  EXPECT_EQ(XmlVerdict::Malformed, Prepare(std::string(100'000, '<')));
  EXPECT_EQ(XmlVerdict::Ok, Prepare(nested(tq::kXmlDepthLimit, "<!-- <b><b> -->")));
}

// 80,000 attributes in one element took the DOM 105 seconds, two million different names 156.
TEST(XmlText, WhatWouldMakeADomSlowIsRefusedAtOnce) {
  const auto many = [](int count, const auto& piece) {
    std::string text;
    for (int i = 0; i < count; ++i)
      text += piece(std::to_string(i));
    return text;
  };
  const auto attribute = [](const std::string& i) { return " a" + i + "=''"; };
  const auto element = [](const std::string& i) { return "<a" + i + "/>"; };
  const auto instruction = [](const std::string& i) { return "<?a" + i + "?>"; };
  const auto comment = [](const std::string&) { return std::string("<!---->"); };
  const std::string files[] = {
      "<a" + many(80'000, attribute) + "/>",
      "<a>" + many(2'000'000, element) + "</a>",
      "<a>" + many(200'000, instruction) + "</a>",
      "<a>" + many(tq::kXmlPieceLimit, comment) + "</a>",
  };
  const auto start = std::chrono::steady_clock::now();
  for (const std::string& file : files)
    EXPECT_FALSE(Loads(file)) << file.substr(0, 30);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
  for (const std::string& file : files)
    EXPECT_EQ(XmlVerdict::TooMany, Prepare(file)) << file.substr(0, 30);
  EXPECT_EQ(XmlVerdict::Ok, Prepare("<a>" + many(tq::kXmlPieceLimit - 1, comment) + "</a>"));
}

// The library asks for ASCII names alone; every other name reaches the DOM as one that all DOMs
// take.
TEST(XmlText, NamesThatTheDomsTreatDifferentlyTravelAsHexadecimal) {
  const std::string file = "<p:a xmlns:p='u' _._x='1' b='2'>\xE8\xA8\xB1</p:a>";
  tq::XmlText text;
  ASSERT_EQ(XmlVerdict::Ok, tq::PrepareXml(file.data(), file.size(), text));
  EXPECT_EQ("<_._703A61 _._786D6C6E733A70='u' _._5F2E5F78='1' b='2'>\xE8\xA8\xB1</_._703A61>",
            text.utf8);
  tq::XmlDocument document;
  ASSERT_TRUE(document.Load(file.data(), file.size()));
  CString value;
  EXPECT_TRUE(document.Root().Name(value));
  EXPECT_STREQ("p:a", value);
  EXPECT_TRUE(document.Root().HasAttributes());
  EXPECT_TRUE(document.Root().Attribute("b", value));
  EXPECT_FALSE(document.Root().Attribute("x", value));
  EXPECT_FALSE(document.Root().Attribute("p", value));
}

// Every pair of bytes that is built like a character of the code page comes out as it went in,
// assigned or not; every other pair refuses the file.
TEST(XmlText, EveryDoubleByteCharacterComesOutAsItsOwnBytes) {
  const bool big5 = tq::AnsiCodePage() == tq::kCodePageBig5;
  const std::string start = OwnDeclaration() + "<a b='";
  std::string all;
  for (unsigned lead = 0x80; lead <= 0xFF; ++lead) {
    for (unsigned trail = 0x80; trail <= 0xFF; ++trail) {
      const std::string pair = {static_cast<char>(lead), static_cast<char>(trail)};
      const bool isLead = lead >= 0x81 && lead <= 0xFE;
      const bool isTrail = trail <= 0xFE && trail >= (big5 ? 0xA1U : 0x80U);
      const bool euros = !big5 && lead == 0x80 && trail == 0x80;
      const bool good = (isLead && isTrail) || euros;
      EXPECT_EQ(good, Prepare(start + pair + "'/>") == XmlVerdict::Ok) << lead << " " << trail;
      all += good ? pair : "";
    }
    for (unsigned trail = 0x40; trail <= 0x7E && lead >= 0x81 && lead <= 0xFE; ++trail)
      all += {static_cast<char>(lead), static_cast<char>(trail)};
  }
  const std::string file = start + all + "'/>";
  tq::XmlDocument document;
  ASSERT_TRUE(document.Load(file.data(), file.size()));
  CString value;
  EXPECT_TRUE(document.Root().Attribute("b", value));
  EXPECT_EQ(all, std::string(value.GetString(), static_cast<size_t>(value.GetLength())));
}

TEST(XmlText, ALargeFileOfManyListsIsReadWhole) {
  std::string file = OwnDeclaration() + "<Result><SymbolList DefaultIdx='0'>\n";
  std::string symbols = "2330.TW";
  for (int i = 0; i < 200; ++i)
    symbols += ",2317.TW";
  for (int i = 0; i < 2000; ++i)
    file += "\t<List ID='" + std::to_string(i) + "' Name='\xA4\xA4\xB0\xEA' Value='" + symbols +
            "' Flag='0'/>\n";
  file += "</SymbolList></Result>";
  tq::XmlDocument document;
  ASSERT_TRUE(document.Load(file.data(), file.size()));
  const auto lists = document.Select("/Result/SymbolList/List");
  ASSERT_EQ(2000U, lists.size());
  CString value;
  EXPECT_TRUE(lists[1999].Attribute("Value", value));
  EXPECT_STREQ(symbols.c_str(), value);
  EXPECT_TRUE(lists[1999].Attribute("Name", value));
  EXPECT_STREQ("\xA4\xA4\xB0\xEA", value);
}

TEST(XmlDocument, ANewLoadDropsTheDocumentBefore) {
  tq::XmlDocument document;
  EXPECT_TRUE(document.Root().IsNull());
  EXPECT_TRUE(document.Load("<a/>", 4));
  EXPECT_FALSE(document.Root().IsNull());
  EXPECT_FALSE(document.Load("<b>", 3));
  EXPECT_TRUE(document.Root().IsNull());
  EXPECT_TRUE(document.Load("<c/>", 4));
  CString name;
  EXPECT_TRUE(document.Root().Name(name));
  EXPECT_STREQ("c", name);
}

TEST(XmlDocument, NoElementAnswersEverythingWithNotThere) {
  const tq::XmlElement none;
  CString text = "before";
  EXPECT_TRUE(none.IsNull());
  EXPECT_FALSE(none.HasAttributes());
  EXPECT_FALSE(none.Attribute("ID", text));
  EXPECT_FALSE(none.Name(text));
  EXPECT_FALSE(none.Text(text));
  EXPECT_TRUE(none.Children().empty());
  EXPECT_STREQ("before", text);
}

TEST(XmlDocument, ElementsAreCopiedAndMovedAsValues) {
  tq::XmlDocument document;
  ASSERT_TRUE(document.Load("<a><b ID='1'/><b ID='2'/></a>", 29));
  tq::XmlElement first = document.SelectSingle("/a/b");
  tq::XmlElement copy = first;
  first = document.Root().Children("b").back();
  CString value;
  EXPECT_TRUE(copy.Attribute("ID", value));
  EXPECT_STREQ("1", value);
  copy = std::move(first);
  EXPECT_TRUE(copy.Attribute("ID", value));
  EXPECT_STREQ("2", value);
  copy = tq::XmlElement();
  EXPECT_TRUE(copy.IsNull());
}

TEST(XmlDocument, SeveralDocumentsLiveAtOnce) {
  EXPECT_TRUE(Loads("<a/>"));
  tq::XmlDocument one;
  EXPECT_TRUE(one.Load("<a/>", 4));
  {
    tq::XmlDocument two;
    EXPECT_TRUE(two.Load("<b/>", 4));
  }
  EXPECT_FALSE(one.Root().IsNull());
  EXPECT_TRUE(one.Load("<c/>", 4));
}

} // namespace
