// What lists promise a terminal, one promise a test: the container of ids, a list and its element,
// the list file, the edits of lists and of entries, and the checks of dialogs.
#include <cctype>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

std::string Declaration() {
  return IsTraditionChinese() ? "<?xml version='1.0' encoding='big5' ?>\n"
                              : "<?xml version='1.0' encoding='gb2312' ?>\n";
}

std::string File(const std::string& index, const std::vector<std::string>& elements) {
  std::string text = Declaration() + "<Result>\n<SymbolList DefaultIdx='" + index + "'>\n";
  for (const std::string& element : elements)
    text += "\t" + element + "\n";
  return text + "</SymbolList>\n</Result>";
}

std::string Element(const std::string& id, const std::string& name, const std::string& value,
                    const std::string& flag = "0") {
  return "<List ID='" + id + "' Name='" + name + "' Value='" + value + "' Flag='" + flag + "'/>";
}

std::string RowsOf(CIDList& list) {
  std::string rows;
  const int count = list.GetCount();
  for (int i = 0; i < count; ++i) {
    SymbolInfo record = {};
    EXPECT_TRUE(list.GetAt(i, &record));
    rows += (i > 0 ? " " : "") + std::string(record.id);
  }
  return rows;
}

std::string TokensOf(const CIDList& list) {
  std::string tokens;
  for (int i = 0; i < list.GetTokens().GetSize(); ++i)
    tokens += (i > 0 ? "|" : "") + std::string(list.GetTokens().GetAt(i));
  return tokens;
}

std::string Asked() {
  std::string asked;
  for (const standin::Call& call : standin::Calls())
    if (call.operation == "VLGetSymbolInfos")
      asked += "[" + call.arguments + "]";
  return asked;
}

// --- The container -------------------------------------------------------------------------------

class ListTextIdsTest : public StandInTest {
protected:
  void Set(const char* ids) {
    standin::ClearCalls();
    EXPECT_EQ(list.Update1(ids), 1);
  }
  CIDList list;
};

TEST_F(ListTextIdsTest, TokensAreSplitAtEveryCommaInOrder) {
  Set("2330.TW,DIS.NYSE,6488.TE");
  EXPECT_EQ(TokensOf(list), "2330.TW|DIS.NYSE|6488.TE");
  EXPECT_EQ(RowsOf(list), "2330.TW DIS.NYSE 6488.TE");
}

TEST_F(ListTextIdsTest, ATrailingCommaMakesNoToken) {
  Set("2330.TW,");
  EXPECT_EQ(TokensOf(list), "2330.TW");
  EXPECT_EQ(list.GetCount(), 1);
  EXPECT_STREQ(list.GetIDs(), "2330.TW,");
}

TEST_F(ListTextIdsTest, EmptyTokensAreSkippedAndTheirNeighboursFollowEachOther) {
  Set(",2330.TW,,,2317.TW");
  EXPECT_EQ(TokensOf(list), "2330.TW|2317.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW");
  EXPECT_STREQ(list.GetIDs(), ",2330.TW,,,2317.TW");
}

TEST_F(ListTextIdsTest, TheLookUpIsOneTextWithoutHeadingsAndWithoutAFinalComma) {
  Set("Chips:,2330.TW,,A:B,NOSUCH.TW,2317.TW,Tail:");
  EXPECT_EQ(Asked(), "[2330.TW,NOSUCH.TW,2317.TW]");
}

TEST_F(ListTextIdsTest, AColonInTheMiddleMakesAHeadingAsOneAtTheEndDoes) {
  Set("A:B,2330.TW,C:");
  EXPECT_EQ(list.GetCount(), 3);
  EXPECT_EQ(RowsOf(list), ": 2330.TW :");
}

TEST_F(ListTextIdsTest, AHeadingsRecordIsEmptyButForTheMarker) {
  Set("Quite a long heading of course:,2330.TW");
  SymbolInfo record;
  std::memset(&record, 0x5A, sizeof(record));
  ASSERT_TRUE(list.GetAt(0, &record));
  SymbolInfo expected = {};
  expected.id[0] = ':';
  EXPECT_EQ(std::memcmp(&record, &expected, sizeof(record)), 0);
}

TEST_F(ListTextIdsTest, TheHeadingsTextStaysInTheTokensAsItIsWritten) {
  Set("my Chips:,2330.tw");
  EXPECT_EQ(TokensOf(list), "my Chips:|2330.TW");
}

TEST_F(ListTextIdsTest, ATokenThatOnlyBeginsWithAColonIsLookedUp) {
  Set(":x,2330.TW");
  EXPECT_EQ(Asked(), "[:x,2330.TW]");
  EXPECT_EQ(RowsOf(list), "2330.TW");
}

TEST_F(ListTextIdsTest, UnknownIdsHaveNoRowAndStayInTheString) {
  Set("NOSUCH.TW,2330.TW,GONE.TE,2317.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW");
  EXPECT_STREQ(list.GetIDs(), "NOSUCH.TW,2330.TW,GONE.TE,2317.TW");
}

TEST_F(ListTextIdsTest, AnIdThatStandsTwiceHasTwoRows) {
  Set("2330.TW,2317.TW,2330.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW 2330.TW");
}

TEST_F(ListTextIdsTest, ARowIsTheServicesRecordByteForByte) {
  Set("Head:,2317.TW");
  SymbolInfo expected = {};
  ASSERT_NE(VLGetSymbolInfo("2317.TW", &expected), 0);
  SymbolInfo record = {};
  ASSERT_TRUE(list.GetAt(1, &record));
  EXPECT_EQ(std::memcmp(&record, &expected, sizeof(record)), 0);
}

TEST_F(ListTextIdsTest, OnlyRowsFromZeroToCountMinusOneAreThere) {
  Set("2330.TW,2317.TW");
  SymbolInfo record = {};
  EXPECT_FALSE(list.GetAt(-1, &record));
  EXPECT_FALSE(list.GetAt(2, &record));
}

TEST_F(ListTextIdsTest, GetAtIsFalseWhenResolvingFails) {
  standin::FailAlways("VLGetSymbolInfos");
  Set("2330.TW");
  SymbolInfo record = {};
  EXPECT_FALSE(list.GetAt(0, &record));
  EXPECT_STREQ(list.GetIDs(), "2330.TW");
}

TEST_F(ListTextIdsTest, SettingResolvesAtOnceAndCountingDoesNotAskAgain) {
  Set("2330.TW,2317.TW");
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
  EXPECT_EQ(list.GetCount(), 2);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
}

TEST_F(ListTextIdsTest, SettingTheSameTextReturnsZeroAndAsksNothing) {
  Set("2330.TW");
  standin::ClearCalls();
  EXPECT_EQ(list.Update1("2330.TW"), 0);
  EXPECT_EQ(list.IsModified(), 1);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(ListTextIdsTest, TheSameTextLeavesTheModifiedFlagOfANewListClear) {
  EXPECT_EQ(list.IsModified(), 0);
  EXPECT_EQ(list.Update1(""), 0);
  EXPECT_EQ(list.IsModified(), 0);
}

TEST_F(ListTextIdsTest, LetterCaseMakesAnotherText) {
  Set("2330.TW");
  EXPECT_EQ(list.Update1("2330.tw"), 1);
  EXPECT_STREQ(list.GetIDs(), "2330.tw");
  EXPECT_EQ(RowsOf(list), "2330.TW");
}

TEST_F(ListTextIdsTest, AnEmptyTextHasNoRowsAndAsksForNoSymbol) {
  Set("2330.TW");
  Set("");
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(list.GetTokens().GetSize(), 0);
  for (const standin::Call& call : standin::Calls())
    EXPECT_EQ(call.arguments, "");
}

TEST_F(ListTextIdsTest, AskingAgainFindsWhatTheServiceLearnt) {
  Set("NEW.TW,2330.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW");
  standin::Market market = SmallMarket();
  market.instruments.push_back(market.instruments.front());
  market.instruments.back().code = "NEW";
  standin::SetMarket(market);
  EXPECT_EQ(RowsOf(list), "2330.TW");
  EXPECT_EQ(list.Update3(), 1);
  EXPECT_EQ(RowsOf(list), "NEW.TW 2330.TW");
  EXPECT_EQ(TokensOf(list), "NEW.TW|2330.TW");
}

TEST_F(ListTextIdsTest, AdoptedRecordsGiveTheStringAndNotTheModifiedFlag) {
  SymbolInfo* records = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSymbolInfos("2317.TW,6488.TE", &records, &count), 0);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(list.Update2(records, count), 1);
  EXPECT_STREQ(list.GetIDs(), "2317.TW,6488.TE");
  EXPECT_EQ(RowsOf(list), "2317.TW 6488.TE");
  EXPECT_EQ(list.IsModified(), 0);
}

TEST_F(ListTextIdsTest, AdoptingNothingEmptiesTheList) {
  Set("2330.TW");
  EXPECT_EQ(list.Update2(nullptr, 0), 1);
  EXPECT_STREQ(list.GetIDs(), "");
  EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(ListTextIdsTest, TheStringIsReturnedByReference) {
  const CString& ids = list.GetIDs();
  Set("2330.TW");
  EXPECT_EQ(&ids, &list.GetIDs());
}

TEST_F(ListTextIdsTest, AnAdoptedMarkerStandsInTheStringAsItsIdField) {
  SymbolInfo* records = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSymbolInfos("2317.TW,6488.TE,2317.TW", &records, &count), 0);
  ASSERT_EQ(count, 3);
  std::strcpy(records[1].id, ":");
  EXPECT_EQ(list.Update2(records, count), 1);
  EXPECT_STREQ(list.GetIDs(), "2317.TW,:,2317.TW");
}

TEST_F(ListTextIdsTest, AdoptingLeavesAModifiedListModified) {
  Set("2330.TW");
  list.Update2(nullptr, 0);
  EXPECT_EQ(list.IsModified(), 1);
}

TEST_F(ListTextIdsTest, AColonBehindTheFirstCharacterMakesAHeadingWhateverTheFirstIs) {
  Set(":a:,2330.TW,::");
  EXPECT_EQ(Asked(), "[2330.TW]");
  EXPECT_EQ(RowsOf(list), ": 2330.TW :");
  EXPECT_EQ(TokensOf(list), ":a:|2330.TW|::");
}

TEST_F(ListTextIdsTest, HeadingsAloneAreRows) {
  Set("One:,Two:");
  EXPECT_EQ(RowsOf(list), ": :");
}

TEST_F(ListTextIdsTest, CommasAloneAreNoRows) {
  Set(",,,");
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(list.GetTokens().GetSize(), 0);
  EXPECT_STREQ(list.GetIDs(), ",,,");
}

TEST_F(ListTextIdsTest, ANewTextReplacesTokensAndRows) {
  Set("2330.TW,2317.TW,Head:");
  Set("6488.TE");
  EXPECT_EQ(TokensOf(list), "6488.TE");
  EXPECT_EQ(RowsOf(list), "6488.TE");
}

TEST_F(ListTextIdsTest, AskingAgainGivesBackTheServicesArrays) {
  Set("2330.TW,2317.TW");
  list.Update3();
  list.Update3();
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 3);
  EXPECT_EQ(standin::OutstandingArrays(), 0);
  EXPECT_EQ(TokensOf(list), "2330.TW|2317.TW");
}

// --- A list --------------------------------------------------------------------------------------

class ListTextListTest : public StandInTest {
protected:
  static std::string Xml(CSymbolList& list) {
    CString text;
    list.ToXml(text);
    return text.GetString();
  }
  CSymbolList list;
};

TEST_F(ListTextListTest, ACopyHasStringRowsTokensAndFlagsWithoutAskingTheService) {
  list.SetID("ZUSYSLIST2");
  list.SetName("Mine");
  list.Update1("Head:,NOSUCH.TW,2330.TW");
  standin::ClearCalls();
  CSymbolList copy(list);
  EXPECT_STREQ(copy.GetIDs(), "Head:,NOSUCH.TW,2330.TW");
  EXPECT_EQ(RowsOf(copy), ": 2330.TW");
  EXPECT_EQ(TokensOf(copy), "Head:|NOSUCH.TW|2330.TW");
  EXPECT_EQ(copy.IsModified(), 1);
  EXPECT_STREQ(copy.GetID(), "ZUSYSLIST2");
  EXPECT_STREQ(copy.GetName(), "Mine");
  EXPECT_EQ(copy.GetFlag(), 1);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(ListTextListTest, ACopyOfAnUntouchedListIsNotModified) {
  EXPECT_EQ(CSymbolList(list).IsModified(), 0);
}

TEST_F(ListTextListTest, ACopysRowsAreItsOwn) {
  list.Update1("2330.TW,2317.TW");
  CSymbolList copy(list);
  EXPECT_EQ(list.RemoveEntry(0), 1);
  EXPECT_EQ(RowsOf(copy), "2330.TW 2317.TW");
  EXPECT_STREQ(copy.GetIDs(), "2330.TW,2317.TW");
}

TEST_F(ListTextListTest, TheInfoIsIdentifierAndName) {
  list.SetID("id");
  list.SetName("name");
  TQSymbolListInfo info;
  std::memset(&info, 0x5A, sizeof(info));
  list.GetListInfo(&info);
  EXPECT_STREQ(info.ID, "id");
  EXPECT_STREQ(info.Name, "name");
}

TEST_F(ListTextListTest, TheIdentifierIsComparedIgnoringCaseAndWhole) {
  list.SetID("Ab-1");
  EXPECT_TRUE(list.IsSameID("aB-1"));
  EXPECT_FALSE(list.IsSameID("Ab-"));
  EXPECT_FALSE(list.IsSameID("Ab-12"));
}

TEST_F(ListTextListTest, AllSixSystemIdsAndNoOtherAreWrittenWithTheFlag) {
  for (int i = 0; i <= 7; ++i) {
    const std::string id = "ZUSYSLIST" + std::to_string(i);
    list.SetID(id.c_str());
    const char* flag = i >= 1 && i <= 6 ? "1" : "0";
    EXPECT_EQ(Xml(list), Element(id, "", "", flag) + "\n");
  }
}

// --- The file ------------------------------------------------------------------------------------

class ListTextFileTest : public EditTest {
protected:
  int Load(const std::string& bytes) {
    directory.Write("Other.xml", bytes);
    return manager.DoLoadSymbolList(directory.Joined("Other.xml").c_str());
  }
  size_t LinesAt64(const std::string& text) {
    size_t count = 0;
    for (const standin::LogLine& line : standin::LogLines())
      count += line.level == 64 && line.text == text;
    return count;
  }
};

TEST_F(ListTextFileTest, TwoListsAreWrittenByteForByte) {
  StartWith({"ZUSYSLIST1/One/2330.TW,2317.TW", "b/Two/"});
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("ZUSYSLIST1", "One", "2330.TW,2317.TW", "1"),
                                      Element("b", "Two", "")}));
}

TEST_F(ListTextFileTest, TheInterfaceLanguageChangesTheDeclarationOnly) {
  StartWith({"a/A/2330.TW"});
  standin::SetTraditional(true);
  manager.SaveSymbolList();
  const std::string traditional = ReadWorking();
  standin::SetTraditional(false);
  manager.SaveSymbolList();
  const std::string simplified = ReadWorking();
  EXPECT_EQ(traditional.substr(0, traditional.find('\n')),
            "<?xml version='1.0' encoding='big5' ?>");
  EXPECT_EQ(simplified.substr(0, simplified.find('\n')),
            "<?xml version='1.0' encoding='gb2312' ?>");
  EXPECT_EQ(traditional.substr(traditional.find('\n')), simplified.substr(simplified.find('\n')));
}

TEST_F(ListTextFileTest, NoListsAreWrittenWithTheIndexAsItIs) {
  StartWith({});
  manager.SetDefaultIndex(-1);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), File("-1", {}));
  manager.SetDefaultIndex(7);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), File("7", {}));
}

TEST_F(ListTextFileTest, ANegativeIndexWithListsBecomesZeroInFileAndManager) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(-5);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW")}));
  EXPECT_EQ(DefaultIndex(), 0);
}

TEST_F(ListTextFileTest, TheBackupHasTheSameBytesAndItsOwnName) {
  StartWith({"a/A/2330.TW"});
  EXPECT_STREQ(manager.GetBackSymbolListPath(), directory.Joined("SymbolList_Backup.xml").c_str());
  const std::string working = ReadWorking();
  EXPECT_EQ(manager.BackupSymbolList(), 1);
  EXPECT_EQ(ReadBackup(), File("0", {Element("a", "A", "2330.TW")}));
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(ListTextFileTest, AnEmptyFileIsCreatedWithTheIndexWhateverIsInMemory) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  manager.SetDefaultIndex(1);
  EXPECT_EQ(manager.CreateEmptySymbolListFile(), 1);
  EXPECT_EQ(ReadWorking(), File("1", {}));
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
}

TEST_F(ListTextFileTest, SavingToAnEmptyPathDoesNothing) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(-1);
  const std::string working = ReadWorking();
  manager.DoSaveSymbolList("");
  EXPECT_EQ(ReadWorking(), working);
  EXPECT_EQ(DefaultIndex(), -1);
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(ListTextFileTest, LoadingAnEmptyPathLeavesNoLists) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  EXPECT_EQ(manager.DoLoadSymbolList(""), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(ListTextFileTest, AFileThatCannotBeOpenedIsToldAndChangesNeitherListsNorIndex) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(-1);
  directory.MakeDirectory("Taken.xml");
  manager.DoSaveSymbolList(directory.Joined("Taken.xml").c_str());
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages().back().id, 48026u);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  EXPECT_EQ(DefaultIndex(), -1);
}

TEST_F(ListTextFileTest, AnEmptyFileThatCannotBeCreatedIsTold) {
  StartWith({});
  directory.Remove();
  manager.CreateEmptySymbolListFile();
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages().back().id, 48026u);
}

TEST_F(ListTextFileTest, TheIndexIsReadAsASixteenBitNumber) {
  StartWith({});
  const std::string list = Element("a", "A", "2330.TW");
  for (const char* index : {"0", "3", "-1", "32767", "-32768"}) {
    Load(File(index, {list}));
    EXPECT_EQ(DefaultIndex(), std::stoi(index)) << index;
  }
  EXPECT_EQ(LinesAt64("CXMLDOMParser don't find GetDefaultIndex"), 0u);
}

TEST_F(ListTextFileTest, AnIndexBeyondTheListsStaysAndCountsAsOne) {
  StartWith({});
  Load(File("9", {Element("a", "A", "2330.TW")}));
  int index = -99;
  EXPECT_EQ(manager.GetDefaultListIdx(index), 1);
  EXPECT_EQ(index, 9);
}

TEST_F(ListTextFileTest, AMissingIndexIsZeroWithALineInTheLog) {
  StartWith({});
  manager.SetDefaultIndex(4);
  Load(Declaration() + "<Result><SymbolList>" + Element("a", "A", "") + "</SymbolList></Result>");
  EXPECT_EQ(DefaultIndex(), 0);
  EXPECT_EQ(LinesAt64("CXMLDOMParser don't find GetDefaultIndex"), 1u);
  EXPECT_EQ(Shape(), "a/A/");
}

TEST_F(ListTextFileTest, IdentifiersKeep36BytesAndNames64) {
  StartWith({});
  Load(File("0", {Element(std::string(37, 'i'), std::string(65, 'n'), "2330.TW")}));
  EXPECT_EQ(IdAt(0), std::string(36, 'i'));
  EXPECT_EQ(NameAt(0), std::string(64, 'n'));
  Load(File("0", {Element(std::string(36, 'i'), std::string(64, 'n'), "2330.TW")}));
  EXPECT_EQ(IdAt(0), std::string(36, 'i'));
  EXPECT_EQ(NameAt(0), std::string(64, 'n'));
}

TEST_F(ListTextFileTest, TheFlagInTheFileIsThrownAway) {
  StartWith({});
  Load(File("0", {Element("mine", "A", "", "1"), Element("ZUSYSLIST6", "B", "", "0")}));
  EXPECT_EQ(manager.IsSystemList("mine", 1), 0);
  EXPECT_EQ(manager.IsSystemList("ZUSYSLIST6", 1), 1);
  manager.SaveSymbolList();
  EXPECT_EQ(ReadWorking(),
            File("0", {Element("mine", "A", "", "0"), Element("ZUSYSLIST6", "B", "", "1")}));
}

TEST_F(ListTextFileTest, ASystemIdInSmallLettersIsReadAsOneAndWrittenAsNone) {
  StartWith({});
  Load(File("0", {Element("zuSysList3", "A", "", "1")}));
  EXPECT_EQ(manager.IsSystemList("zuSysList3", 1), 1);
  manager.SaveSymbolList();
  EXPECT_EQ(ReadWorking(), File("0", {Element("zuSysList3", "A", "", "0")}));
}

TEST_F(ListTextFileTest, AListThatWasReadIsResolvedAndModified) {
  StartWith({});
  standin::ClearCalls();
  Load(File("0", {Element("a", "A", "Head:,2330.TW,NOSUCH.TW")}));
  EXPECT_EQ(Asked(), "[2330.TW,NOSUCH.TW]");
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("a", &list, 1), 1);
  EXPECT_EQ(list->IsModified(), 1);
  EXPECT_EQ(Rows("a"), ": 2330.TW");
}

TEST_F(ListTextFileTest, ListsComeInDocumentOrderDuplicatesIncluded) {
  StartWith({});
  Load(File("0", {Element("b", "B", "2330.TW"), Element("a", "B", ""), Element("b", "B", "")}));
  EXPECT_EQ(Shape(), "b/B/2330.TW|a/B/|b/B/");
}

TEST_F(ListTextFileTest, MovedSymbolsAreRenamedWhileAFileIsRead) {
  StartWith({});
  Load(File("0", {Element("a", "A", "6488.TW,2330.TW,7777.TW")}));
  EXPECT_EQ(Shape(), "a/A/6488.TE,2330.TW,7777.TW");
}

TEST_F(ListTextFileTest, ListsOfEverySymbolListElementAreReadAndTheIndexOfTheFirst) {
  StartWith({});
  Load(Declaration() + "<Result><Other><List ID='x'/></Other><SymbolList DefaultIdx='1'>" +
       Element("a", "A", "") + "<Sub>" + Element("y", "Y", "") +
       "</Sub></SymbolList><SymbolList DefaultIdx='5'>" + Element("b", "B", "") +
       "</SymbolList></Result>");
  EXPECT_EQ(Shape(), "a/A/|b/B/");
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(ListTextFileTest, AFileWithoutListsWritesTheWorkingFileAtOnce) {
  StartWith({"a/A/2330.TW"});
  const std::string other = Declaration() + "<Result><SymbolList DefaultIdx='-1'/></Result>";
  EXPECT_EQ(Load(other), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(ReadWorking(), File("-1", {}));
  EXPECT_EQ(directory.Read("Other.xml"), other);
}

TEST_F(ListTextFileTest, AFileWithListsIsNotWrittenBackByALoad) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  Load(File("0", {Element("b", "B", "")}));
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(ListTextFileTest, TheBackupReplacesTheListsAndNotTheWorkingFile) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  WriteBackup(File("1", {Element("b", "B", ""), Element("c", "C", "2317.TW")}));
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  EXPECT_EQ(Shape(), "b/B/|c/C/2317.TW");
  EXPECT_EQ(DefaultIndex(), 1);
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(ListTextFileTest, ABackupWithoutListsRewritesTheWorkingFile) {
  StartWith({"a/A/2330.TW"});
  WriteBackup(File("3", {}));
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), File("3", {}));
}

TEST_F(ListTextFileTest, AMissingBackupEmptiesTheManager) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
}

TEST_F(ListTextFileTest, AMalformedFileLeavesNoListsAndSaysNothing) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(3);
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Load(File("0", {Element("b", "B", "")}) + "<"), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(DefaultIndex(), 3);
  EXPECT_EQ(standin::LogLines().size(), lines);
  EXPECT_TRUE(standin::Messages().empty());
  ExpectNotNotified();
}

TEST_F(ListTextFileTest, AnApostropheIsWrittenAsItStandsAndTheNextLoadHasNoLists) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.AddSymbolList("b", 0, "it's", "2317.TW", 1, 0), 1);
  EXPECT_EQ(ReadWorking(),
            File("0", {Element("a", "A", "2330.TW"), Element("b", "it's", "2317.TW")}));
  EXPECT_EQ(manager.LoadSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
}

TEST_F(ListTextFileTest, AListWithoutAttributesEndsTheLoadAndKeepsThoseBefore) {
  StartWith({});
  EXPECT_EQ(Load(File("0", {Element("a", "A", "2330.TW"), "<List/>", Element("b", "B", "")})), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
}

TEST_F(ListTextFileTest, AnIndexOfMinusOneWithListsIsReadAndStoredAsZeroByTheNextSave) {
  StartWith({});
  Load(File("-1", {Element("a", "A", "2330.TW")}));
  EXPECT_EQ(DefaultIndex(), -1);
  manager.BackupSymbolList();
  EXPECT_EQ(DefaultIndex(), 0);
  EXPECT_EQ(ReadBackup(), File("0", {Element("a", "A", "2330.TW")}));
}

TEST_F(ListTextFileTest, AnIndexThatIsNoSixteenBitNumberCountsAsMissing) {
  StartWith({});
  for (const char* index : {"32768", "-32769", "", "x"}) {
    manager.SetDefaultIndex(4);
    Load(File(index, {Element("a", "A", "2330.TW")}));
    EXPECT_EQ(DefaultIndex(), 0) << index;
    EXPECT_EQ(Shape(), "a/A/2330.TW");
  }
  EXPECT_EQ(LinesAt64("CXMLDOMParser don't find GetDefaultIndex"), 4u);
}

TEST_F(ListTextFileTest, LongNamesAreCutWithoutALine) {
  StartWith({});
  const size_t lines = standin::LogLines().size();
  Load(File("0", {Element(std::string(50, 'i'), std::string(90, 'n'), "2330.TW")}));
  EXPECT_EQ(standin::LogLines().size(), lines);
}

TEST_F(ListTextFileTest, AMissingWorkingFileLeavesNoListsAndIsNotCreated) {
  StartWith({"a/A/2330.TW"});
  ASSERT_EQ(std::remove(directory.Native("SymbolList.xml").c_str()), 0);
  EXPECT_EQ(manager.LoadSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_FALSE(directory.Exists("SymbolList.xml"));
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(ListTextFileTest, AnUnknownIdGetsItsRowAtTheNextLoad) {
  StartWith({"a/A/NEW.TW,2330.TW"});
  EXPECT_EQ(Rows("a"), "2330.TW");
  standin::Market market = SmallMarket();
  market.instruments.push_back(market.instruments.front());
  market.instruments.back().code = "NEW";
  standin::SetMarket(market);
  manager.LoadSymbolList();
  EXPECT_EQ(Rows("a"), "NEW.TW 2330.TW");
}

TEST_F(ListTextFileTest, ReferencesAreReadAsCharactersAndWrittenAsTheyStand) {
  StartWith({});
  Load(File("0", {Element("a&amp;b", "C&lt;D&apos;", "E&#38;F.TW")}));
  EXPECT_EQ(Shape(), "a&b/C<D'/E&F.TW");
  EXPECT_EQ(manager.BackupSymbolList(), 1);
  EXPECT_EQ(ReadBackup(), File("0", {Element("a&b", "C<D'", "E&F.TW")}));
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
}

TEST_F(ListTextFileTest, AnAttributeThatIsMissingIsEmpty) {
  StartWith({});
  Load(File("0", {"<List ID='a' Name='A'/>", "<List ID='b' Value='2330.TW'/>"}));
  EXPECT_EQ(Shape(), "a/A/|b//2330.TW");
}

TEST_F(ListTextFileTest, DoubleByteNamesAreWrittenAndReadAsTheirBytes) {
  const std::string name = "\xA4\xA4\xA4\xE5";
  StartWith({"a/" + name + "/2330.TW"});
  EXPECT_EQ(NameAt(0), name);
  manager.SaveSymbolList();
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", name, "2330.TW")}));
}

// --- Whole lists ---------------------------------------------------------------------------------

class ListTextEditTest : public EditTest {
protected:
  // The file, the line and the notification of a change that is all of that.
  void ExpectTold(size_t lines, const char* line) {
    ASSERT_EQ(standin::LogLines().size(), lines + 1);
    EXPECT_EQ(standin::LogLines().back().level, 64);
    EXPECT_EQ(standin::LogLines().back().text, line);
    ExpectNotified(1, 40, "");
  }
  int Add(const char* id, const char* name, const char* symbols, int append = 1,
          int overwrite = 0) {
    return manager.AddSymbolList(id, 0, name, symbols, append, overwrite);
  }
  std::string Given(const CPtrArray& lists) {
    return static_cast<CSymbolList*>(lists.GetAt(0))->GetIDs().GetString();
  }
};

TEST_F(ListTextEditTest, AnEmptyNameOrEmptySymbolsAreRefusedEvenForAListThatIsThere) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(Add("a", "A", "", 1, 1), 0);
  EXPECT_EQ(Add("a", "", "2317.TW", 1, 1), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, TheSameIdAndNameReplaceTheSymbolsWhateverOverwriteSays) {
  StartWith({"a/A/2330.TW", "b/B/1101.TW"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Add("B", "b", "2317.TW", 0, 0), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW"), Element("b", "B", "2317.TW")}));
  ExpectTold(lines, "Add SymbolList");
}

TEST_F(ListTextEditTest, TheSameSymbolsAreSavedAndToldAllTheSame) {
  StartWith({"a/A/2330.TW"});
  const size_t lines = standin::LogLines().size();
  directory.Write("SymbolList.xml", "");
  EXPECT_EQ(Add("a", "A", "2330.TW"), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW")}));
  ASSERT_GT(standin::LogLines().size(), lines);
  EXPECT_EQ(standin::LogLines().back().text, "Add SymbolList");
  ExpectNotified(1, 40, "");
}

TEST_F(ListTextEditTest, ReplacedSymbolsAreNotRenamedAndNewOnesAre) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(Add("a", "A", "6488.TW"), 1);
  EXPECT_EQ(Add("b", "B", "6488.TW"), 1);
  EXPECT_EQ(Shape(), "a/A/6488.TW|b/B/6488.TE");
}

TEST_F(ListTextEditTest, ANewListIsSavedLoggedAndTold) {
  StartWith({"a/A/2330.TW"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Add("b", "B", "2317.TW", 1, 1), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW"), Element("b", "B", "2317.TW")}));
  ExpectTold(lines, "Add SymbolList");
}

TEST_F(ListTextEditTest, AppendZeroInsertsFirstAndLeavesTheIndex) {
  StartWith({"a/A/2330.TW", "b/B/2330.TW"});
  manager.SetDefaultIndex(1);
  EXPECT_EQ(Add("c", "C", "2317.TW", 0), 1);
  EXPECT_EQ(Shape(), "c/C/2317.TW|a/A/2330.TW|b/B/2330.TW");
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(ListTextEditTest, AnEmptyIdGetsAGuidWithASmallThirdGroup) {
  StartWith({});
  for (int i = 0; i < 20; ++i)
    ASSERT_EQ(Add("", "A", "2330.TW"), 1);
  for (int i = 0; i < 20; ++i) {
    const std::string id = IdAt(i);
    ASSERT_EQ(id.size(), 36u) << id;
    for (size_t at = 0; at < id.size(); ++at) {
      if (at == 8 || at == 13 || at == 18 || at == 23)
        EXPECT_EQ(id[at], '-') << id;
      else if (at > 13 && at < 18)
        EXPECT_TRUE(std::isxdigit(id[at]) && !std::isupper(id[at])) << id;
      else
        EXPECT_TRUE(std::isxdigit(id[at]) && !std::islower(id[at])) << id;
    }
    EXPECT_EQ(manager.CheckIDandName(id.c_str(), NameAt(i).c_str(), 1), 3);
  }
}

TEST_F(ListTextEditTest, AnIdUnderAnotherNameIsRefusedWithoutOverwrite) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  EXPECT_EQ(Add("a", "Z", "2317.TW", 1, 0), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, WithOverwriteTheListKeepsItsNameAndTheChangeIsTold) {
  StartWith({"a/A/2330.TW"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Add("A", "Z", "2317.TW", 1, 1), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2317.TW")}));
  ExpectTold(lines, "Add SymbolList");
}

TEST_F(ListTextEditTest, AddingSetsAnIndexOfMinusOneToZero) {
  StartWith({});
  manager.SetDefaultIndex(-1);
  EXPECT_EQ(Add("a", "A", "2330.TW"), 1);
  EXPECT_EQ(DefaultIndex(), 0);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW")}));
}

TEST_F(ListTextEditTest, AddingLeavesAnotherIndexAlone) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(5);
  EXPECT_EQ(Add("b", "B", "2330.TW"), 1);
  EXPECT_EQ(DefaultIndex(), 5);
}

TEST_F(ListTextEditTest, AFailedSaveIsToldAndTheNewListStays) {
  StartWith({"a/A/2330.TW"});
  directory.Remove();
  Add("b", "B", "2317.TW");
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages().back().id, 48026u);
}

TEST_F(ListTextEditTest, AFreeNameIsLeftAlone) {
  StartWith({"a/A/", "b/B/"});
  EXPECT_STREQ(manager.AdjustFileName("C"), "C");
  EXPECT_STREQ(manager.AdjustFileName("C(1)"), "C(1)");
}

TEST_F(ListTextEditTest, ATakenNameGetsOneThenTwoInItsPlace) {
  StartWith({"a/Chips/", "b/Other/"});
  EXPECT_STREQ(manager.AdjustFileName("CHIPS"), "CHIPS(1)");
  ASSERT_EQ(Add("c", "chips", "2330.TW"), 1);
  EXPECT_EQ(NameAt(2), "chips(1)");
  EXPECT_STREQ(manager.AdjustFileName("CHIPS"), "CHIPS(2)");
}

TEST_F(ListTextEditTest, ANameWithItsNumberIsRenumbered) {
  StartWith({"a/A(1)/"});
  EXPECT_STREQ(manager.AdjustFileName("A(1)"), "A(2)");
}

TEST_F(ListTextEditTest, AnotherNumberIsNoSuffixToRenumber) {
  StartWith({"a/A(2)/", "b/A(2)(1)/"});
  EXPECT_STREQ(manager.AdjustFileName("A(2)"), "A(2)(2)");
}

TEST_F(ListTextEditTest, EveryOccurrenceOfTheSuffixIsRenumbered) {
  StartWith({"a/(1)A(1)/", "b/(2)A(2)/"});
  EXPECT_STREQ(manager.AdjustFileName("(1)A(1)"), "(3)A(3)");
}

TEST_F(ListTextEditTest, AfterAHundredNumbersTheNameIsRefused) {
  StartWith({});
  for (int i = 0; i <= 100; ++i)
    ASSERT_EQ(Add("", "A", "2330.TW"), 1) << i;
  EXPECT_EQ(NameAt(1), "A(1)");
  EXPECT_EQ(NameAt(100), "A(100)");
  EXPECT_STREQ(manager.AdjustFileName("a"), "a(100)");
  const std::string working = ReadWorking();
  EXPECT_EQ(Add("", "A", "2330.TW"), 0);
  EXPECT_EQ(manager.GetSymbolListCount(1), 101);
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(ListTextEditTest, AListIsPutInAsItIsWithoutSaveOrNameCheck) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  CSymbolList source;
  source.SetID("a");
  source.SetName("A");
  source.Update1("6488.TW,2317.TW");
  EXPECT_EQ(manager.AddTQSymbolList(&source, 1), 1);
  EXPECT_EQ(manager.AddTQSymbolList(&source, 0), 1);
  EXPECT_EQ(Shape(), "a/A/6488.TE,2317.TW|a/A/2330.TW|a/A/6488.TE,2317.TW");
  EXPECT_STREQ(source.GetIDs(), "6488.TE,2317.TW");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, SettingListsReplacesAllAndRenamesMovedSymbols) {
  StartWith({"a/A/2330.TW", "b/B/"});
  const std::string working = ReadWorking();
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  static_cast<CSymbolList*>(copies[0])->Update1("6488.TW");
  static_cast<CSymbolList*>(copies[1])->SetName("A");
  EXPECT_EQ(manager.SetSymbolList(&copies), 1);
  EXPECT_EQ(Given(copies), "6488.TE");
  DeleteCopies(copies);
  EXPECT_EQ(Shape(), "a/A/6488.TE|b/A/");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, SettingListsBringsTheIndexIntoRange) {
  StartWith({"a/A/2330.TW", "b/B/"});
  const struct {
    int before;
    int after;
  } kCases[] = {{-1, 0}, {-7, 0}, {0, 0}, {1, 1}, {2, 1}, {30, 1}};
  for (const auto& each : kCases) {
    CPtrArray copies;
    manager.GetSymbolList(copies, 1);
    manager.SetDefaultIndex(each.before);
    manager.SetSymbolList(&copies);
    DeleteCopies(copies);
    EXPECT_EQ(DefaultIndex(), each.after) << each.before;
  }
}

TEST_F(ListTextEditTest, DeletingMovesTheIndexOnlyWithTheDefaultListAtTheEnd) {
  const struct {
    int before;
    const char* id;
    int after;
  } kCases[] = {{2, "c", 1}, {1, "b", 1}, {0, "a", 0}, {2, "a", 2}, {1, "c", 1}, {0, "c", 0}};
  for (const auto& each : kCases) {
    StartWith({"a/A/", "b/B/", "c/C/"});
    manager.SetDefaultIndex(each.before);
    EXPECT_EQ(manager.DeleteSymbolList(each.id), 1);
    EXPECT_EQ(manager.GetSymbolListCount(1), 2);
    EXPECT_EQ(DefaultIndex(), each.after) << each.before << each.id;
  }
}

TEST_F(ListTextEditTest, DeletingTheOnlyListWritesAFileWithoutLists) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("A"), 1);
  EXPECT_EQ(DefaultIndex(), -1);
  EXPECT_EQ(ReadWorking(), File("-1", {}));
}

TEST_F(ListTextEditTest, DeletingTakesTheFirstListWithTheIdAndSaves) {
  StartWith({"x/X/", "a/A/", "A/B/"});
  EXPECT_EQ(manager.DeleteSymbolList("A"), 1);
  EXPECT_EQ(Shape(), "x/X/|A/B/");
  EXPECT_EQ(ReadWorking(), File("0", {Element("x", "X", ""), Element("A", "B", "")}));
  const std::string working = ReadWorking();
  EXPECT_EQ(manager.DeleteSymbolList("none"), 0);
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(ListTextEditTest, ReplacingIdsWorksOnPlainTextInEveryListAndTellsOnce) {
  StartWith({"a/A/2330.TW,12330.TW", "b/B/1101.TW", "c/C/X2330.TWX:,2330.TW"});
  const size_t lines = standin::LogLines().size();
  CStringArray from;
  CStringArray to;
  from.Add("2330.TW");
  to.Add("2317.TW");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/2317.TW,12317.TW|b/B/1101.TW|c/C/X2317.TWX:,2317.TW");
  EXPECT_EQ(ReadWorking(),
            File("0", {Element("a", "A", "2317.TW,12317.TW"), Element("b", "B", "1101.TW"),
                       Element("c", "C", "X2317.TWX:,2317.TW")}));
  EXPECT_EQ(Rows("a"), "2317.TW");
  ExpectTold(lines, "ReplaceID");
}

TEST_F(ListTextEditTest, AnIdThatBeginsALongerOneChangesThatToo) {
  StartWith({"a/A/TXF,TXFL6.TF"});
  CStringArray from;
  CStringArray to;
  from.Add("TXF");
  to.Add("MXF");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/MXF,MXFL6.TF");
  EXPECT_EQ(Rows("a"), "MXFL6.TF");
}

TEST_F(ListTextEditTest, IdsAreReplacedInTurnAndLetterCaseCounts) {
  StartWith({"a/A/2330.TW,dis.nyse"});
  CStringArray from;
  CStringArray to;
  for (const char* id : {"2330.TW", "2317.TW", "DIS"})
    from.Add(id);
  for (const char* id : {"2317.TW", "2454.TW", "AAPL"})
    to.Add(id);
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/2454.TW,dis.nyse");
}

TEST_F(ListTextEditTest, ReplacingNothingNeitherSavesNorTells) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  const size_t lines = standin::LogLines().size();
  CStringArray ids;
  ids.Add("NOSUCH");
  EXPECT_EQ(manager.ReplaceID(&ids, &ids), 0);
  EXPECT_EQ(manager.ReplaceID(nullptr, &ids), 0);
  EXPECT_EQ(manager.ReplaceID(&ids, nullptr), 0);
  EXPECT_EQ(ReadWorking(), working);
  EXPECT_EQ(standin::LogLines().size(), lines);
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, OfTwoListsWithOneIdTheFirstCounts) {
  StartWith({"a/A/2330.TW", "a/B/1101.TW"});
  EXPECT_EQ(Add("a", "B", "2317.TW", 1, 0), 0);
  EXPECT_EQ(Add("a", "B", "2317.TW", 1, 1), 1);
  EXPECT_EQ(Shape(), "a/A/2317.TW|a/B/1101.TW");
}

TEST_F(ListTextEditTest, OldTextsAreReplacedOverTheCommasToo) {
  StartWith({"a/A/2330.TW,2317.TW"});
  CStringArray from;
  CStringArray to;
  from.Add("TW,23");
  to.Add("TE,64");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TE,6417.TW");
}

TEST_F(ListTextEditTest, SettingNoListsDestroysAllAndAMissingArrayNone) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.SetSymbolList(nullptr), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  CPtrArray none;
  EXPECT_EQ(manager.SetSymbolList(&none), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(DefaultIndex(), -1);
}

TEST_F(ListTextEditTest, DeletingNeitherLogsNorTells) {
  StartWith({"a/A/2330.TW", "b/B/"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(manager.DeleteSymbolList("b"), 1);
  EXPECT_EQ(standin::LogLines().size(), lines);
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, TheTerminalIsToldWhenFileAndLineAreWritten) {
  StartWith({});
  std::string seen;
  standin::OnCall("TQSCall", [&] { seen = standin::LogLines().back().text + ReadWorking(); });
  EXPECT_EQ(Add("a", "A", "2330.TW"), 1);
  EXPECT_EQ(seen, "Add SymbolList" + File("0", {Element("a", "A", "2330.TW")}));
  CStringArray from;
  CStringArray to;
  from.Add("23");
  to.Add("2323");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(seen, "ReplaceID" + File("0", {Element("a", "A", "232330.TW")}));
  standin::OnCall("TQSCall", {});
}

TEST_F(ListTextEditTest, AnIndexBeyondTheListsStaysWhenAListIsDeleted) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(1);
  EXPECT_EQ(manager.DeleteSymbolList("a"), 1);
  EXPECT_EQ(DefaultIndex(), 1);
  EXPECT_EQ(ReadWorking(), File("1", {}));
}

TEST_F(ListTextEditTest, NamesOfFullLengthAreMadeUniqueWithinIt) {
  StartWith({});
  const std::string name(64, 'n');
  for (int i = 0; i < 12; ++i)
    ASSERT_EQ(Add("", (name + "tail").c_str(), "2330.TW"), 1);
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(NameAt(i).size(), 64u);
    EXPECT_EQ(manager.CheckNameExist(NameAt(i).c_str(), 1, i, 1), 0) << i;
  }
}

TEST_F(ListTextEditTest, OnlyUserListsTakeANameFromAUserList) {
  StartWith({});
  ASSERT_EQ(manager.AddCloudSymbolList("k", "Cloud", "2330.TW", 0), 1);
  EXPECT_STREQ(manager.AdjustFileName("Cloud"), "Cloud");
  EXPECT_EQ(Add("k", "Cloud", "2317.TW"), 1);
  EXPECT_EQ(Shape(), "k/Cloud/2317.TW");
}

TEST_F(ListTextEditTest, ASystemIdInSmallLettersIsAddedAsASystemListAndWrittenAsNone) {
  StartWith({});
  EXPECT_EQ(Add("zusyslist1", "A", "2330.TW"), 1);
  EXPECT_EQ(manager.IsSystemList("ZUSYSLIST1", 1), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("zusyslist1", "A", "2330.TW")}));
}

// --- Entries -------------------------------------------------------------------------------------

class ListTextEntryTest : public EditTest {
protected:
  std::string Ids() {
    CString symbols;
    EXPECT_EQ(manager.GetSymbolListIDs(1, "a", symbols, nullptr), 1);
    return symbols.GetString();
  }
};

TEST_F(ListTextEntryTest, RemovingMovesTheEntriesBehindDown) {
  StartWith({"a/A/One:,2330.TW,Two:,2317.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("A", 1), 1);
  EXPECT_EQ(Ids(), "One:,Two:,2317.TW");
  EXPECT_EQ(Rows("a"), ": : 2317.TW");
}

TEST_F(ListTextEntryTest, RemovingAHeadingKeepsTheOthersText) {
  StartWith({"a/A/One:,2330.TW,Two:,2317.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 1);
  EXPECT_EQ(Ids(), "2330.TW,Two:,2317.TW");
}

TEST_F(ListTextEntryTest, RemovingTheOnlyEntryEmptiesTheList) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 1);
  EXPECT_EQ(Ids(), "");
  EXPECT_EQ(manager.GetTQSymbolCount("a", 1), 0);
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 0);
}

TEST_F(ListTextEntryTest, RemovingBehindTheLastEntryDoesNothing) {
  StartWith({"a/A/2330.TW,2317.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("a", 2), 0);
  EXPECT_EQ(manager.DeleteSymbolList("none", 0), 0);
  EXPECT_EQ(Ids(), "2330.TW,2317.TW");
}

TEST_F(ListTextEntryTest, SwappingExchangesRecordsAndTexts) {
  StartWith({"a/A/One:,2330.TW,2317.TW,Two:"});
  EXPECT_EQ(manager.SwapSymbolList("a", 0, 2), 1);
  EXPECT_EQ(Ids(), "2317.TW,2330.TW,One:,Two:");
  EXPECT_EQ(Rows("a"), "2317.TW 2330.TW : :");
  EXPECT_EQ(manager.SwapSymbolList("a", 3, 2), 1);
  EXPECT_EQ(Ids(), "2317.TW,2330.TW,Two:,One:");
}

TEST_F(ListTextEntryTest, SwappingAnEntryWithItselfOrWithNoneDoesNothing) {
  StartWith({"a/A/2330.TW,2317.TW"});
  manager.SwapSymbolList("a", 1, 1);
  EXPECT_EQ(manager.SwapSymbolList("a", 0, 2), 0);
  EXPECT_EQ(manager.SwapSymbolList("a", 2, 0), 0);
  EXPECT_EQ(Ids(), "2330.TW,2317.TW");
}

TEST_F(ListTextEntryTest, InsertingGoesBehindOrInFrontOfTheEntry) {
  StartWith({"a/A/2330.TW,2317.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "1101.TW", 0, 0), 1);
  EXPECT_EQ(Ids(), "2330.TW,1101.TW,2317.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "6488.TE", 1, 0), 1);
  EXPECT_EQ(Ids(), "6488.TE,2330.TW,1101.TW,2317.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 3, "DIS.NYSE", 0, 0), 1);
  EXPECT_EQ(Ids(), "6488.TE,2330.TW,1101.TW,2317.TW,DIS.NYSE");
  EXPECT_EQ(Rows("a"), "6488.TE 2330.TW 1101.TW 2317.TW DIS.NYSE");
}

TEST_F(ListTextEntryTest, InsertingIntoAnEmptyListMakesItsFirstEntry) {
  for (int before : {0, 1}) {
    StartWith({"a/A/"});
    EXPECT_EQ(manager.InsertSymbolList("a", 0, "2330.TW", before, 0), 1);
    EXPECT_EQ(Ids(), "2330.TW");
    EXPECT_EQ(Rows("a"), "2330.TW");
  }
}

TEST_F(ListTextEntryTest, AHeadingGetsAColonBehindItsText) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "Chips", 1, 1), 1);
  EXPECT_EQ(Ids(), "Chips:,2330.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 1, "A:B", 0, 1), 1);
  EXPECT_EQ(Ids(), "Chips:,2330.TW,A:B:");
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "Chips", 1, 1), 1);
  EXPECT_EQ(Ids(), "Chips:,Chips:,2330.TW,A:B:");
  EXPECT_EQ(Rows("a"), ": : 2330.TW :");
}

TEST_F(ListTextEntryTest, AHeadingMayBearTheTextOfASymbol) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "2330.TW", 1, 1), 1);
  EXPECT_EQ(Ids(), "2330.TW:,2330.TW");
}

TEST_F(ListTextEntryTest, ASymbolThatIsThereIsRefusedAndOneThatIsPartOfAnotherIsNot) {
  StartWith({"a/A/BRK.B.NYSE,2330.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "2330.TW", 1, 0), 0);
  EXPECT_EQ(Ids(), "BRK.B.NYSE,2330.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 1, "330.TW", 0, 0), 1);
  EXPECT_EQ(Ids(), "BRK.B.NYSE,2330.TW,330.TW");
}

TEST_F(ListTextEntryTest, ReplacingPutsTheTextInTheEntrysPlace) {
  StartWith({"a/A/One:,2330.TW,2317.TW"});
  EXPECT_EQ(manager.ReplaceSymbolList("a", 1, "6488.TE"), 1);
  EXPECT_EQ(Ids(), "One:,6488.TE,2317.TW");
  EXPECT_EQ(manager.ReplaceSymbolList("a", 0, "Two:"), 1);
  EXPECT_EQ(Ids(), "Two:,6488.TE,2317.TW");
  EXPECT_EQ(Rows("a"), ": 6488.TE 2317.TW");
  EXPECT_EQ(manager.ReplaceSymbolList("a", 3, "DIS.NYSE"), 0);
}

TEST_F(ListTextEntryTest, ReplacingBySymbolsThatAreThereIsNotRefused) {
  StartWith({"a/A/2330.TW,2317.TW"});
  EXPECT_EQ(manager.ReplaceSymbolList("a", 0, "2317.TW"), 1);
  EXPECT_EQ(Ids(), "2317.TW,2317.TW");
  EXPECT_EQ(Rows("a"), "2317.TW 2317.TW");
}

TEST_F(ListTextEntryTest, TheRebuiltStringHasTheRecordsIdsAndSingleCommas) {
  StartWith({"a/A/,2330.tw,,My Head:,2317.Tw,1101.TW,"});
  EXPECT_EQ(manager.DeleteSymbolList("a", 2), 1);
  EXPECT_EQ(Ids(), "2330.TW,My Head:,1101.TW");
}

TEST_F(ListTextEntryTest, NoEntryEditSavesOrTells) {
  StartWith({"a/A/One:,2330.TW,2317.TW"});
  const std::string working = ReadWorking();
  manager.DeleteSymbolList("a", 0);
  manager.SwapSymbolList("a", 0, 1);
  manager.InsertSymbolList("a", 0, "1101.TW", 0, 0);
  manager.ReplaceSymbolList("a", 0, "6488.TE");
  EXPECT_EQ(Ids(), "6488.TE,1101.TW,2330.TW");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

// --- Checks --------------------------------------------------------------------------------------

class ListTextCheckTest : public EditTest {
protected:
  void Start() {
    StartWith({"a/Alpha/2330.TW", "b/Beta/2317.TW", "A/Gamma/", "c/ALPHA/"});
    ASSERT_EQ(manager.AddCloudSymbolList("k", "Cloud", "2330.TW", 0), 1);
  }
};

TEST_F(ListTextCheckTest, ANameIsFoundIgnoringCaseAndWholeOnly) {
  Start();
  EXPECT_NE(manager.CheckNameExist("bETA", 0, 0, 1), 0);
  EXPECT_EQ(manager.CheckNameExist("Bet", 0, 0, 1), 0);
  EXPECT_EQ(manager.CheckNameExist("Betas", 0, 0, 1), 0);
}

TEST_F(ListTextCheckTest, TheListToSkipIsSkippedOnlyWhenAsked) {
  Start();
  EXPECT_EQ(manager.CheckNameExist("Beta", 1, 1, 1), 0);
  EXPECT_NE(manager.CheckNameExist("Beta", 0, 1, 1), 0);
  EXPECT_NE(manager.CheckNameExist("Beta", 1, 0, 1), 0);
  EXPECT_NE(manager.CheckNameExist("Alpha", 1, 0, 1), 0);
}

TEST_F(ListTextCheckTest, IdAndNameAreAnsweredInBitsOfTheFirstListWithTheId) {
  Start();
  EXPECT_EQ(manager.CheckIDandName("B", "beta", 1), 3);
  EXPECT_EQ(manager.CheckIDandName("b", "Alpha", 1), 1);
  EXPECT_EQ(manager.CheckIDandName("z", "Alpha", 1), 0);
  EXPECT_EQ(manager.CheckIDandName("a", "Gamma", 1), 1);
  EXPECT_EQ(manager.CheckIDandName("A", "Alpha", 1), 3);
}

TEST_F(ListTextCheckTest, AnIdIsFoundIgnoringCase) {
  Start();
  EXPECT_EQ(manager.CheckSymbolListExist("B", 1), 1);
  EXPECT_EQ(manager.CheckSymbolListExist("bb", 1), 0);
  EXPECT_EQ(manager.CheckSymbolListExist("K", 8), 1);
  EXPECT_EQ(manager.CheckSymbolListExist("k", 1), 0);
}

TEST_F(ListTextCheckTest, AnIdWithExactlyThatNameIsFoundInAnyList) {
  Start();
  EXPECT_EQ(manager.CheckListAndNameExist("B", "Beta", 1), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("b", "beta", 1), 0);
  EXPECT_EQ(manager.CheckListAndNameExist("a", "Alpha", 1), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("a", "Gamma", 1), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("a", "ALPHA", 1), 0);
}

TEST_F(ListTextCheckTest, EachKindHasItsOwnListsAndOtherKindsHaveNone) {
  Start();
  EXPECT_NE(manager.CheckNameExist("cloud", 0, 0, 8), 0);
  EXPECT_EQ(manager.CheckIDandName("K", "CLOUD", 8), 3);
  for (int kind : {-1, 0, 2, 3, 4, 5, 6, 7, 9, 201}) {
    for (const char* name : {"Cloud", "Alpha"})
      EXPECT_EQ(manager.CheckNameExist(name, 0, 0, kind), 0) << kind;
    EXPECT_EQ(manager.CheckIDandName("k", "Cloud", kind), 0) << kind;
    EXPECT_EQ(manager.CheckIDandName("a", "Alpha", kind), 0) << kind;
    EXPECT_EQ(manager.CheckSymbolListExist("k", kind), 0) << kind;
    EXPECT_EQ(manager.CheckListAndNameExist("k", "Cloud", kind), 0) << kind;
  }
}

TEST_F(ListTextCheckTest, ListsOfTradingAccountsAreAKindOfTheirOwn) {
  ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 1);
  ASSERT_EQ(manager.AddTSSymbolList("t", 6, "Held", "2330.TW", 0), 1);
  EXPECT_NE(manager.CheckNameExist("HELD", 0, 0, 6), 0);
  EXPECT_EQ(manager.CheckIDandName("T", "held", 6), 3);
  EXPECT_EQ(manager.CheckSymbolListExist("T", 6), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("T", "Held", 6), 1);
  for (int kind : {1, 8}) {
    EXPECT_EQ(manager.CheckNameExist("Held", 0, 0, kind), 0);
    EXPECT_EQ(manager.CheckIDandName("t", "Held", kind), 0);
  }
}

TEST_F(ListTextCheckTest, AnUntouchedWorkingCopyIsNotModified) {
  Start();
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  EXPECT_TRUE(manager.IsModifyList(&copies, 1));
  EXPECT_TRUE(manager.IsModifyList(nullptr, 0));
  DeleteCopies(copies);
}

TEST_F(ListTextCheckTest, AnotherNameContentOrNumberIsAModification) {
  Start();
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  CSymbolList* second = static_cast<CSymbolList*>(copies[1]);
  second->SetName("BETA");
  EXPECT_TRUE(manager.IsModifyList(&copies, 0));
  second->SetName("Beta");
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  second->Update1("2317.TW,NOSUCH.TW");
  EXPECT_TRUE(manager.IsModifyList(&copies, 0));
  second->Update1("2317.TW");
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  delete static_cast<CSymbolList*>(copies[3]);
  copies.RemoveAt(3);
  EXPECT_TRUE(manager.IsModifyList(&copies, 0));
  DeleteCopies(copies);
}

TEST_F(ListTextCheckTest, AnotherIdentifierAloneIsNone) {
  Start();
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  static_cast<CSymbolList*>(copies[1])->SetID("other");
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  DeleteCopies(copies);
}

TEST_F(ListTextCheckTest, CloudCopiesAreComparedWithTheCloudListsAlone) {
  Start();
  manager.SetDefaultIndex(3);
  CPtrArray copies;
  manager.GetSymbolList(copies, 8);
  ASSERT_EQ(copies.GetSize(), 1);
  EXPECT_FALSE(manager.IsModifyCountList(&copies));
  CSymbolList* copy = static_cast<CSymbolList*>(copies[0]);
  copy->SetName("cloud");
  EXPECT_TRUE(manager.IsModifyCountList(&copies));
  copy->SetName("Cloud");
  copy->Update1("2317.TW");
  EXPECT_TRUE(manager.IsModifyCountList(&copies));
  DeleteCopies(copies);
  EXPECT_TRUE(manager.IsModifyCountList(&copies));
  EXPECT_TRUE(manager.IsModifyCountList(nullptr));
}

} // namespace
