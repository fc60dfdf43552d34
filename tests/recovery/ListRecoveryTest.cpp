// What the headers of recovery say, sentence by sentence.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "recovery/DocumentFaults.h"
#include "tests/recovery/RecoveryFiles.h"

namespace {

using recovery::FileOf;
using recovery::HasFault;
using recovery::Outcome;
using recovery::Recover;
using recovery::StoredList;
using tq::Fault;
using tq::ListFate;
using tq::TextEncoding;

const std::vector<StoredList> kTwo = {{"A1", "First", "2330.TW,2317.TW"}, {"B2", "Second", ""}};

Outcome RecoverBig5(const std::string& file) {
  return Recover(file, TextEncoding::Big5);
}

std::string Altered(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return text.replace(at, from.size(), to);
}

// The first file of two lists with a change, and what becomes of its first list.
tq::RecoveredList FirstOf(const std::string& from, const std::string& to) {
  const Outcome outcome = RecoverBig5(Altered(FileOf(kTwo, "big5"), from, to));
  EXPECT_EQ(outcome.lists.size(), 2U);
  if (outcome.lists.size() == 2U) {
    EXPECT_EQ(outcome.lists[1].id, "B2");
    EXPECT_EQ(outcome.lists[1].fate, ListFate::Whole);
  }
  return outcome.lists.empty() ? tq::RecoveredList() : outcome.lists.front();
}

TEST(Recovery, ASavedFileIsSoundAndItsListsWhole) {
  const Outcome outcome = RecoverBig5(FileOf(kTwo, "big5", "1"));
  EXPECT_TRUE(outcome.sound);
  EXPECT_EQ(outcome.Kept(), kTwo);
  EXPECT_EQ(outcome.lists.at(1).fate, ListFate::Whole);
  EXPECT_EQ(outcome.lists.at(1).line, 5U);
  EXPECT_EQ(outcome.defaultList, 1);
  EXPECT_EQ(outcome.encoding, TextEncoding::Big5);
}

TEST(Recovery, AFileOfNoListsIsSound) {
  const Outcome outcome = RecoverBig5(FileOf({}, "big5", "-1"));
  EXPECT_TRUE(outcome.sound);
  EXPECT_EQ(outcome.defaultList, -1);
}

TEST(Recovery, EmptyFilesSaySo) {
  for (const std::string& file : {std::string(), std::string(5000, '\0')}) {
    const Outcome outcome = RecoverBig5(file);
    ASSERT_EQ(outcome.findings.size(), 1U);
    EXPECT_EQ(outcome.findings[0].fault, Fault::Empty);
    EXPECT_TRUE(outcome.lists.empty());
    EXPECT_EQ(outcome.defaultList, -1);
  }
}

TEST(Recovery, AnotherDocumentIsForeign) {
  EXPECT_TRUE(RecoverBig5("<Html><List ID='1'/></Html>").Has(Fault::Foreign));
  EXPECT_TRUE(RecoverBig5("nothing of a list").Has(Fault::NoLists));
}

TEST(Recovery, NamesKeepWhatIsNotEscaped) {
  for (const std::string name :
       {"It's", "A&B", "a<b", "a'/>b", "'", "''", "<List", "x' y", "&amp"}) {
    const tq::RecoveredList list = FirstOf("First", name);
    EXPECT_EQ(list.name, name);
    EXPECT_EQ(list.symbols, "2330.TW,2317.TW") << name;
    EXPECT_EQ(list.id, "A1") << name;
    EXPECT_EQ(list.fate, ListFate::Repaired) << name;
  }
  EXPECT_TRUE(HasFault(FirstOf("First", "It's"), Fault::StrayApostrophe));
  EXPECT_TRUE(HasFault(FirstOf("First", "A&B"), Fault::StrayAmpersand));
  EXPECT_TRUE(HasFault(FirstOf("First", "a<b"), Fault::StrayLess));
}

TEST(Recovery, SymbolsKeepThemToo) {
  EXPECT_EQ(FirstOf("2317.TW", "AT&T.NYSE").symbols, "2330.TW,AT&T.NYSE");
  EXPECT_EQ(FirstOf("2317.TW", "O'R.NYSE").symbols, "2330.TW,O'R.NYSE");
  EXPECT_EQ(FirstOf("2330.TW", "A<B.TW").symbols, "A<B.TW,2317.TW");
}

TEST(Recovery, ReferencesAreResolvedAsTheDomDoes) {
  const std::string file = Altered(FileOf(kTwo, "big5"), "First", "A&amp;B&#x41;&#66;&apos;&lt;");
  const Outcome outcome = RecoverBig5(file);
  EXPECT_TRUE(outcome.sound);
  EXPECT_EQ(outcome.lists.at(0).name, "A&BAB'<");
}

TEST(Recovery, AWellFormedFileMayBeWrittenInAnotherWay) {
  const Outcome outcome = RecoverBig5(
      "<?xml version=\"1.0\" encoding=\"big5\"?>\r\n<!-- by hand -->\r\n<Result>\r\n"
      "<Other><List ID='no'/></Other><SymbolList DefaultIdx=\"+0\"><![CDATA[<List/>]]>\r\n"
      "<List Value=\"X\"\r\n Name=\"It's\" ID=\"A\"></List><!-- <List ID='no'/> --></SymbolList>"
      "</Result>\r\n");
  EXPECT_TRUE(outcome.sound);
  EXPECT_EQ(outcome.Kept(), (std::vector<StoredList>{{"A", "It's", "X"}}));
}

TEST(Recovery, TheSameInADamagedFile) {
  const Outcome outcome = RecoverBig5(
      "<Result><SymbolList DefaultIdx=\"0\"><!-- <List ID='no' Name='' Value=''/> -->"
      "<List Value=\"X\" Name=\"A&B\" ID=\"A\"/> <List ID='B' Name='b' Value=''/></SymbolList>"
      "</Result>");
  EXPECT_EQ(outcome.Kept(), (std::vector<StoredList>{{"A", "A&B", "X"}, {"B", "b", ""}}));
}

TEST(Recovery, BrokenMarkupIsReadAsItWasMeant) {
  const std::vector<std::pair<std::string, std::string>> changes = {
      {"<List", "<&ist"},     {"<List", "&List"},     {"Name=", "N&me="},
      {"Value='", "Value&'"}, {"Value='", "Value=&"}, {" Name", "&Name"},
      {"' Value", "& Value"}, {"'/>", "'/"},          {"'/>", "&/>"}};
  for (const auto& [from, to] : changes) {
    const tq::RecoveredList list = FirstOf(from, to);
    EXPECT_EQ(list.id, "A1") << to;
    EXPECT_EQ(list.name, "First") << to;
    EXPECT_EQ(list.symbols, "2330.TW,2317.TW") << to;
    EXPECT_EQ(list.fate, ListFate::Repaired) << to;
  }
}

// Where a quotation mark is missing, a byte of the value may be missing too.
TEST(Recovery, ASymbolBesideAMissingQuotationMarkIsLost) {
  EXPECT_EQ(FirstOf("Value='", "Value=").symbols, "2317.TW");
  EXPECT_EQ(FirstOf("2317.TW'", "2317.TW").symbols, "2330.TW");
  EXPECT_NE(FirstOf("ID='", "ID=").id, "A1");
}

TEST(Recovery, DamagedSymbolsAreLeftOut) {
  for (const char byte : {'\0', '\x01', '\xFF'}) {
    const tq::RecoveredList list = FirstOf("2330", std::string("2") + byte + "30");
    EXPECT_EQ(list.symbols, "2317.TW");
    EXPECT_TRUE(HasFault(list, Fault::LostSymbol));
  }
}

TEST(Recovery, HalfCharactersAreLeftOutOfNames) {
  const tq::RecoveredList list = FirstOf("First", "\xA4\xA4\xA4");
  EXPECT_EQ(list.name, "\xA4\xA4");
  EXPECT_TRUE(HasFault(list, Fault::HalfCharacter));
  EXPECT_EQ(FirstOf("First", "Fir\x01st").name, "First");
  EXPECT_TRUE(HasFault(FirstOf("First", "Fir\x01st"), Fault::ControlByte));
}

TEST(Recovery, AListWithoutAnIdentifierGetsTheSameOneEachTime) {
  const tq::RecoveredList list = FirstOf("ID='A1' ", "");
  EXPECT_TRUE(HasFault(list, Fault::NoId));
  EXPECT_EQ(list.id.size(), 36U);
  EXPECT_EQ(list.id, FirstOf("ID='A1' ", "").id);
  EXPECT_NE(list.id, FirstOf("ID='A1' ", "  ").id);
  EXPECT_EQ(list.name, "First");
}

// Two lists that were written over each other, within the identifier.
TEST(Recovery, AnIdentifierThatHoldsMarkupIsNone) {
  for (const char* torn : {"ID='A-ID='A1'", "ID='A-ame='x'"}) {
    const tq::RecoveredList list = FirstOf("ID='A1'", torn);
    EXPECT_EQ(list.fate, ListFate::Repaired);
    EXPECT_TRUE(HasFault(list, Fault::NoId)) << torn;
    EXPECT_FALSE(list.id.empty());
    EXPECT_EQ(list.id.find('='), std::string::npos) << list.id;
    EXPECT_EQ(list.name, "First");
    EXPECT_EQ(list.symbols, "2330.TW,2317.TW");
  }
  EXPECT_EQ(FirstOf("ID='A1'", "ID='A'1'").id, "A'1");
}

TEST(Recovery, RepeatedListsAreLeftOutAndRepeatedIdentifiersMadeNew) {
  std::vector<StoredList> lists = kTwo;
  lists.push_back(kTwo[0]);
  lists.push_back({"a1", "Third", "X"});
  const Outcome outcome = RecoverBig5(FileOf(lists, "big5", "2"));
  EXPECT_TRUE(outcome.Has(Fault::RepeatedList));
  ASSERT_EQ(outcome.lists.size(), 3U);
  EXPECT_TRUE(HasFault(outcome.lists[2], Fault::RepeatedId));
  EXPECT_EQ(outcome.lists[2].fate, ListFate::Repaired);
  EXPECT_EQ(outcome.lists[2].name, "Third");
  EXPECT_EQ(outcome.lists[2].id.size(), 36U);
  EXPECT_EQ(outcome.defaultList, 0); // the one that was the same
}

TEST(Recovery, TheDefaultIndexCountsWhatCameBack) {
  std::vector<StoredList> lists = kTwo;
  lists.insert(lists.begin(), {"LOST", "", ""});
  const std::string file =
      Altered(FileOf(lists, "big5", "2"), recovery::LineOf(lists[0]), "<List/>");
  EXPECT_EQ(RecoverBig5(file).defaultList, 1);
  EXPECT_EQ(RecoverBig5(FileOf(kTwo, "big5", "7")).defaultList, -1);
  const Outcome bad = RecoverBig5(FileOf(kTwo, "big5", "70000"));
  EXPECT_TRUE(bad.Has(Fault::BadIndex));
  EXPECT_EQ(bad.defaultList, 0);
}

TEST(Recovery, WhatAListDoesNotKeepIsCut) {
  const tq::RecoveredList list = FirstOf("First", std::string(63, 'n') + "\xA4\xA4");
  EXPECT_TRUE(HasFault(list, Fault::TooLong));
  EXPECT_EQ(list.name, std::string(63, 'n'));
  EXPECT_EQ(FirstOf("A1", std::string(40, 'i')).id, std::string(36, 'i'));
}

TEST(Recovery, DocumentTypesAndUnclosedCommentsDoNotHideLists) {
  const std::string file = FileOf(kTwo, "big5");
  const Outcome type =
      RecoverBig5(Altered(file, "<Result>", "<!DOCTYPE R [<!ENTITY a 'b'>]><Result>"));
  EXPECT_TRUE(type.Has(Fault::DocumentType));
  EXPECT_EQ(type.Kept(), kTwo);
  EXPECT_EQ(RecoverBig5(Altered(file, "<Result>", "<!--<Result>")).Kept(), kTwo);
  EXPECT_EQ(RecoverBig5(Altered(file, "<Result>", "<![CDATA[<Result>")).Kept(), kTwo);
}

TEST(Recovery, FindingsSayWhere) {
  const std::string file = Altered(FileOf(kTwo, "big5"), "First", "It's");
  const tq::RecoveredList list = RecoverBig5(file).lists.at(0);
  ASSERT_EQ(list.findings.size(), 1U);
  EXPECT_EQ(list.findings[0].offset, file.find("'s"));
  EXPECT_EQ(list.findings[0].line, 4U);
  EXPECT_EQ(list.findings[0].column, file.find("'s") - file.find("\t<List") + 1);
  EXPECT_TRUE(list.findings[0].text.starts_with("'s"));
}

TEST(Recovery, AtMostThirtyTwoFindingsOfAList) {
  const tq::RecoveredList list = FirstOf("First", std::string(60, '&'));
  EXPECT_EQ(list.findings.size(), tq::kMostFindings);
  EXPECT_EQ(list.name, std::string(60, '&'));
}

TEST(Recovery, WhatComesBackIsWholeWhenItIsSavedAndReadAgain) {
  std::string file = Altered(FileOf(kTwo, "big5"), "ID='A1' ", "");
  file = Altered(file, "2330",
                 "23\x01"
                 "30");
  const std::vector<StoredList> kept = RecoverBig5(file).Kept();
  const Outcome again = RecoverBig5(FileOf(kept, "big5"));
  EXPECT_TRUE(again.sound);
  EXPECT_EQ(again.Kept(), kept);
}

TEST(DocumentFaults, FindsEachFaultOfADocument) {
  const std::string file = "<a>\n&\n<b c='<'/>\n\x01</a>x";
  const std::vector<tq::Finding> faults = tq::DocumentFaults(file, 10);
  ASSERT_EQ(faults.size(), 4U);
  EXPECT_EQ(faults[0].fault, Fault::StrayAmpersand);
  EXPECT_EQ(faults[0].line, 2U);
  EXPECT_EQ(faults[1].fault, Fault::StrayLess);
  EXPECT_EQ(faults[1].column, 7U);
  EXPECT_EQ(faults[2].fault, Fault::ControlByte);
  EXPECT_EQ(faults[3].fault, Fault::OutsideOfLists);
  EXPECT_EQ(tq::DocumentFaults(file, 2).size(), 2U);
}

} // namespace
