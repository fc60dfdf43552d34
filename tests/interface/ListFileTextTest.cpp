// The list file, byte for byte, and its reading.
#include <string>

#include "tests/interface/ListText.h"

namespace {

using namespace listtext;

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

} // namespace
