// The list file's bytes, through the manager as a terminal uses it.
#include <cstring>
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/ManagerTest.h"

namespace {

class ListFileTest : public ManagerTest {};

const char* EncodingName() {
  return IsTraditionChinese() ? "big5" : "gb2312";
}

std::string Declaration() {
  return std::string("<?xml version='1.0' encoding='") + EncodingName() + "' ?>\n";
}

std::string FileOf(int index, const std::vector<std::string>& elements) {
  std::string text =
      Declaration() + "<Result>\n<SymbolList DefaultIdx='" + std::to_string(index) + "'>\n";
  for (const std::string& element : elements)
    text += "\t" + element + "\n";
  return text + "</SymbolList>\n</Result>";
}

const char kSystem[] = "<List ID='ZUSYSLIST1' Name='One' Value='2330.TW,2317.TW' Flag='1'/>";
const char kUser[] =
    "<List ID='0A1B2C3D-4E5F-6a7b-8C9D-0E1F2A3B4C5D' Name='\xB3\x5C\xA5\x5C\xBB\x5C' "
    "Value='Chips:,NOSUCH.TW,2330.TW' Flag='0'/>";

TEST_F(ListFileTest, SavingWhatWasLoadedGivesTheSameBytes) {
  const std::string file = FileOf(1, {kSystem, kUser});
  WriteWorking(file);
  StartWithoutTables();
  ASSERT_EQ(manager.GetSymbolListCount(1), 2);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), file);
}

TEST_F(ListFileTest, EverySavedDoubleByteCharacterComesBackAsItsBytes) {
  // All pairs of bytes that both code pages have, including twins and user-defined characters.
  std::vector<std::string> elements;
  for (int lead = 0x81; lead <= 0xFE; ++lead) {
    std::string name;
    for (int trail = 0x40; trail <= 0xFE; ++trail) {
      if (trail >= 0x7F && trail <= 0xA0)
        continue;
      name += static_cast<char>(lead);
      name += static_cast<char>(trail);
      if (name.size() == 64 || trail == 0xFE) {
        elements.push_back("<List ID='" + std::to_string(elements.size()) + "' Name='" + name +
                           "' Value='" + name + "' Flag='0'/>");
        name.clear();
      }
    }
  }
  const std::string file = FileOf(0, elements);
  WriteWorking(file);
  StartWithoutTables();
  ASSERT_EQ(manager.GetSymbolListCount(1), static_cast<int>(elements.size()));
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), file);
}

TEST_F(ListFileTest, ZeroListsWriteTheFrameWithTheCurrentIndex) {
  WriteWorking(FileOf(0, {kUser}));
  StartWithoutTables();
  manager.ClearSymbolList();
  manager.SetDefaultIndex(-1);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), FileOf(-1, {}));
}

TEST_F(ListFileTest, LoadingAFileWithoutListsSavesAtOnce) {
  WriteWorking("<?xml version=\"1.0\" encoding=\"big5\"?><Result><SymbolList DefaultIdx='-1'>"
               "<Other/></SymbolList></Result>");
  StartWithoutTables();
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(ReadWorking(), FileOf(-1, {}));
}

TEST_F(ListFileTest, NegativeDefaultIndexWithListsIsStoredAsZero) {
  WriteWorking(FileOf(-1, {kSystem}));
  StartWithoutTables();
  int index = 7;
  EXPECT_EQ(manager.GetDefaultListIdx(index), 0);
  EXPECT_EQ(index, -1);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), FileOf(0, {kSystem}));
  EXPECT_EQ(manager.GetDefaultListIdx(index), 1);
  EXPECT_EQ(index, 0);
}

TEST_F(ListFileTest, ApostropheInANameIsWrittenVerbatimAndTheNextLoadYieldsNothing) {
  WriteWorking(FileOf(0, {kSystem}));
  StartWithoutTables();
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("ZUSYSLIST1", &list, 1), 1);
  list->Update1("it's,2330.TW");
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_NE(ReadWorking().find("Value='it's,2330.TW'"), std::string::npos);
  EXPECT_EQ(manager.LoadSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
}

TEST_F(ListFileTest, FlagOfTheFileIsThrownAwayAndWorkedOutFromTheId) {
  WriteWorking(FileOf(0, {"<List ID='mine' Name='n' Value='' Flag='1'/>",
                          "<List ID='zusyslist2' Name='s' Value='' Flag='0'/>"}));
  StartWithoutTables();
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("MINE", &list, 1), 1);
  EXPECT_EQ(list->GetFlag(), 0);
  ASSERT_EQ(manager.GetSymbolList("ZUSYSLIST2", &list, 1), 1);
  EXPECT_EQ(list->GetFlag(), 1);
  manager.SaveSymbolList();
  EXPECT_EQ(ReadWorking(), FileOf(0, {"<List ID='mine' Name='n' Value='' Flag='0'/>",
                                      "<List ID='zusyslist2' Name='s' Value='' Flag='0'/>"}));
}

TEST_F(ListFileTest, SwitchingTheLanguageBetweenSavesChangesOnlyTheDeclaration) {
  WriteWorking(FileOf(1, {kSystem, kUser}));
  StartWithoutTables();
  const std::string before = ReadWorking();
  standin::SetTraditional(!IsTraditionChinese());
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  const std::string after = ReadWorking();
  EXPECT_EQ(after.substr(0, Declaration().size()), Declaration());
  EXPECT_EQ(after.substr(after.find('\n')), before.substr(before.find('\n')));
  EXPECT_NE(after, before);
}

TEST_F(ListFileTest, RestoringAMissingBackupEmptiesTheManagerAndLeavesTheWorkingFile) {
  const std::string file = FileOf(0, {kSystem, kUser});
  WriteWorking(file);
  StartWithoutTables();
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(ReadWorking(), file);
}

TEST_F(ListFileTest, BackupRestoresTheListsAndNotTheWorkingFile) {
  WriteWorking(FileOf(1, {kSystem, kUser}));
  StartWithoutTables();
  EXPECT_EQ(manager.BackupSymbolList(), 1);
  EXPECT_EQ(ReadBackup(), FileOf(1, {kSystem, kUser}));
  WriteWorking("damaged");
  manager.LoadSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 2);
  EXPECT_EQ(ReadWorking(), "damaged");
}

TEST_F(ListFileTest, RestoringABackupWithoutListsRewritesTheWorkingFile) {
  WriteWorking(FileOf(0, {kSystem}));
  StartWithoutTables();
  WriteBackup(FileOf(-1, {}));
  manager.RestorSymbolList();
  EXPECT_EQ(ReadWorking(), FileOf(-1, {}));
}

TEST_F(ListFileTest, MissingOrUnreadableDefaultIndexIsZeroWithALogLine) {
  StartWithoutTables();
  const char* attributes[] = {"",
                              " DefaultIdx=''",
                              " DefaultIdx='x'",
                              " DefaultIdx='40000'",
                              " DefaultIdx='1.5'",
                              " defaultidx='3'"};
  for (const char* attribute : attributes) {
    SCOPED_TRACE(attribute);
    const size_t lines = standin::LogLines().size();
    WriteWorking(Declaration() + "<Result><SymbolList" + attribute + ">" + kSystem +
                 "</SymbolList></Result>");
    manager.SetDefaultIndex(5);
    manager.LoadSymbolList();
    int index = 9;
    EXPECT_EQ(manager.GetDefaultListIdx(index), 1);
    EXPECT_EQ(index, 0);
    ASSERT_EQ(standin::LogLines().size(), lines + 1);
    EXPECT_EQ(standin::LogLines().back().level, 64);
    EXPECT_EQ(standin::LogLines().back().text, "CXMLDOMParser don't find GetDefaultIndex");
  }
}

TEST_F(ListFileTest, DefaultIndexIsAnySixteenBitNumberWhateverTheLists) {
  StartWithoutTables();
  const struct {
    const char* text;
    int index;
  } rows[] = {{"7", 7},   {"-1", -1},       {" 2 ", 2},        {"+3", 3},
              {"007", 7}, {"32767", 32767}, {"-32768", -32768}};
  for (const auto& row : rows) {
    WriteWorking(Declaration() + "<Result><SymbolList DefaultIdx='" + row.text + "'>" + kSystem +
                 "</SymbolList></Result>");
    manager.LoadSymbolList();
    int index = 99;
    EXPECT_EQ(manager.GetDefaultListIdx(index), row.index >= 0 ? 1 : 0);
    EXPECT_EQ(index, row.index);
  }
}

TEST_F(ListFileTest, AnElementWithoutAttributesEndsTheLoadAndTheListsReadSoFarStay) {
  StartWithoutTables();
  WriteWorking(Declaration() + "<Result><SymbolList DefaultIdx='0'>" + kSystem + "<List/>" + kUser +
               "</SymbolList></Result>");
  const std::string file = ReadWorking();
  manager.LoadSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
  EXPECT_EQ(ReadWorking(), file);
}

TEST_F(ListFileTest, LongIdsAndNamesAreCutAtAWholeCharacterWhenRead) {
  StartWithoutTables();
  const std::string name = std::string(63, 'n') + "\xB3\x5C";
  WriteWorking(FileOf(0, {"<List ID='" + std::string(40, 'i') + "' Name='" + name +
                          "' Value='2330.TW' Flag='0'/>"}));
  manager.LoadSymbolList();
  TQSymbolListInfo info;
  ASSERT_EQ(manager.GetTQSymbolListInfo(0, &info, 1), 1);
  EXPECT_EQ(std::string(info.ID), std::string(36, 'i'));
  EXPECT_EQ(std::string(info.Name), std::string(63, 'n'));
}

TEST_F(ListFileTest, DuplicateListsOfTheFileAreKept) {
  const std::string file = FileOf(0, {kSystem, kSystem, kUser});
  WriteWorking(file);
  StartWithoutTables();
  EXPECT_EQ(manager.GetSymbolListCount(1), 3);
  manager.SaveSymbolList();
  EXPECT_EQ(ReadWorking(), file);
}

TEST_F(ListFileTest, ListsOfEverySymbolListElementAreReadInDocumentOrder) {
  StartWithoutTables();
  WriteWorking(Declaration() + "<Result><SymbolList DefaultIdx='1'>" + kSystem +
               "</SymbolList><SymbolList DefaultIdx='5'>" + kUser + "</SymbolList></Result>");
  manager.LoadSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(1), 2);
  int index = 0;
  manager.GetDefaultListIdx(index);
  EXPECT_EQ(index, 1);
}

TEST_F(ListFileTest, ADocumentThatIsNoListFileLoadsNothingAndIsLeftAlone) {
  StartWithoutTables();
  const std::string file = "<Other><SymbolList DefaultIdx='0'/></Other>";
  WriteWorking(file);
  manager.LoadSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(ReadWorking(), file);
}

TEST_F(ListFileTest, TheOtherLanguagesFileIsReadByItsDeclaredEncoding) {
  // The character that both code pages have, under the other one's declaration.
  const bool traditional = IsTraditionChinese() != 0;
  const std::string theirs = traditional ? "\xD6\xD0" : "\xA4\xA4"; // "middle" in GBK, in Big5
  const std::string ours = traditional ? "\xA4\xA4" : "\xD6\xD0";
  StartWithoutTables();
  WriteWorking(std::string("<?xml version='1.0' encoding='") + (traditional ? "gb2312" : "big5") +
               "' ?>\n<Result><SymbolList DefaultIdx='0'><List ID='a' Name='" + theirs +
               "' Value=''/></SymbolList></Result>");
  manager.LoadSymbolList();
  TQSymbolListInfo info;
  ASSERT_EQ(manager.GetTQSymbolListInfo(0, &info, 1), 1);
  EXPECT_EQ(std::string(info.Name), ours);
}

// Symptom: both operations were private and could not be called.
TEST_F(ListFileTest, AnyFileIsSavedAndLoadedByItsPath) {
  WriteWorking(FileOf(1, {kSystem, kUser}));
  StartWithoutTables();
  const CString other = directory.Joined("Other.xml").c_str();
  EXPECT_EQ(manager.DoSaveSymbolList(other), 1);
  EXPECT_EQ(directory.Read("Other.xml"), FileOf(1, {kSystem, kUser}));
  manager.ClearSymbolList();
  manager.SetDefaultIndex(-1);
  EXPECT_EQ(manager.DoLoadSymbolList(other), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 2);
  int index = 0;
  EXPECT_EQ(manager.GetDefaultListIdx(index), 1);
  EXPECT_EQ(index, 1);
  EXPECT_EQ(ReadWorking(), FileOf(1, {kSystem, kUser}));
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(ListFileTest, AnEmptyPathSavesNothingAndLoadsNoLists) {
  WriteWorking(FileOf(0, {kSystem}));
  StartWithoutTables();
  EXPECT_EQ(manager.DoSaveSymbolList(""), 0);
  EXPECT_TRUE(standin::Messages().empty());
  EXPECT_EQ(manager.DoLoadSymbolList(""), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
}

TEST_F(ListFileTest, AFileThatCannotBeOpenedByItsPathIsReportedOnce) {
  WriteWorking(FileOf(-1, {kSystem}));
  StartWithoutTables();
  const CString nowhere = (directory.Path() + "-none\\Other.xml").c_str();
  EXPECT_EQ(manager.DoSaveSymbolList(nowhere), 0);
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages().back().id, 48026u);
  int index = 0;
  manager.GetDefaultListIdx(index);
  EXPECT_EQ(index, -1);
  EXPECT_EQ(manager.DoLoadSymbolList(nowhere), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(standin::Messages().size(), 1u);
}

TEST_F(ListFileTest, LoadingAnEmptyFileByItsPathRewritesTheWorkingFile) {
  WriteWorking(FileOf(0, {kSystem}));
  StartWithoutTables();
  directory.Write("Other.xml", FileOf(3, {}));
  EXPECT_EQ(manager.DoLoadSymbolList(directory.Joined("Other.xml").c_str()), 1);
  EXPECT_EQ(ReadWorking(), FileOf(3, {}));
  EXPECT_EQ(directory.Read("Other.xml"), FileOf(3, {}));
}

} // namespace
