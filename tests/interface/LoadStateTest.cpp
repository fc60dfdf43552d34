// What a terminal can ask about the latest load of a list file.
#include <string>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class LoadStateTest : public EditTest {
protected:
  static std::string File(const std::string& lists) {
    return std::string("<?xml version='1.0' encoding='") +
           (IsTraditionChinese() ? "big5" : "gb2312") +
           "' ?>\n<Result>\n<SymbolList DefaultIdx='0'>\n" + lists + "</SymbolList>\n</Result>";
  }
  static std::string Good() { return File("\t<List ID='a' Name='A' Value='2330.TW' Flag='0'/>\n"); }

  void Expect(TQListFile file, TQLoadState state, int line, const std::string& reason) {
    int where = -1;
    CString why = "left over";
    EXPECT_EQ(manager.GetLoadState(file, where, why), state);
    EXPECT_EQ(where, line);
    EXPECT_EQ(std::string(why.GetString()), reason);
  }
  void ExpectAfterLoading(const std::string& bytes, TQLoadState state, int line,
                          const std::string& reason) {
    WriteWorking(bytes);
    EXPECT_EQ(manager.LoadSymbolList(), 1);
    Expect(TQListFileWorking, state, line, reason);
  }
};

TEST_F(LoadStateTest, NothingWasLoadedBeforeAStart) {
  Expect(TQListFileWorking, TQLoadNever, 0, "");
  Expect(TQListFileBackup, TQLoadNever, 0, "");
}

TEST_F(LoadStateTest, AStartLoadsTheWorkingFileAlone) {
  WriteWorking(Good());
  ASSERT_EQ(StartWithoutTables(), 1);
  Expect(TQListFileWorking, TQLoadWhole, 0, "");
  Expect(TQListFileBackup, TQLoadNever, 0, "");
}

TEST_F(LoadStateTest, AFreshDirectoryHasAnEmptyFile) {
  ASSERT_EQ(StartWithoutTables(), 1);
  Expect(TQListFileWorking, TQLoadEmpty, 0, "");
}

TEST_F(LoadStateTest, AMissingFileIsMissing) {
  ASSERT_EQ(StartWithoutTables(), 1);
  manager.ReLoadList(directory.Joined("elsewhere").c_str());
  Expect(TQListFileWorking, TQLoadMissing, 0, "does not exist");
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  Expect(TQListFileBackup, TQLoadMissing, 0, "does not exist");
}

TEST_F(LoadStateTest, ADamagedFileSaysWhereAndWhy) {
  ASSERT_EQ(StartWithoutTables(), 1);
  const std::string bad = "\t<List ID='b' Name='A & B' Value='' Flag='0'/>\n";
  ExpectAfterLoading(File("\t<List ID='a' Name='A' Value='' Flag='0'/>\n" + bad), TQLoadDamaged, 5,
                     "line 5, column 23: an ampersand that is not written as &amp;");
  const std::string cut = Good().substr(0, Good().size() - 3);
  ExpectAfterLoading(cut, TQLoadDamaged, 6, "line 6, column 7: the end of the file is missing");
  ExpectAfterLoading("", TQLoadDamaged, 1, "line 1, column 1: the file holds nothing");
}

TEST_F(LoadStateTest, ABadListIsNamedByItsLine) {
  ASSERT_EQ(StartWithoutTables(), 1);
  ExpectAfterLoading(File("\t<List ID='a' Name='A' Value='' Flag='0'/>\n\t<List/>\n"),
                     TQLoadDamaged, 5, "line 5, column 2: the list has no identifier");
}

TEST_F(LoadStateTest, AnotherDocumentHasNoLine) {
  ASSERT_EQ(StartWithoutTables(), 1);
  ExpectAfterLoading("<Other/>", TQLoadDamaged, 0, "is no list file");
}

TEST_F(LoadStateTest, ADirectoryInThePlaceOfTheFileCannotBeRead) {
  ASSERT_EQ(StartWithoutTables(), 1);
  directory.MakeDirectory("SymbolList_Backup.xml");
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  Expect(TQListFileBackup, TQLoadUnreadable, 0, "cannot be read");
}

TEST_F(LoadStateTest, EachFileHasAStateOfItsOwnThatSavesLeaveAlone) {
  WriteWorking("damaged");
  ASSERT_EQ(StartWithoutTables(), 1);
  directory.Write("SymbolList_Backup.xml", Good());
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  Expect(TQListFileBackup, TQLoadWhole, 0, "");
  int line = 0;
  CString reason;
  EXPECT_EQ(manager.GetLoadState(TQListFileWorking, line, reason), TQLoadDamaged);
  EXPECT_EQ(manager.LoadSymbolList(), 1);
  Expect(TQListFileWorking, TQLoadWhole, 0, "");
}

TEST_F(LoadStateTest, OtherPathsCountForNeither) {
  WriteWorking(Good());
  ASSERT_EQ(StartWithoutTables(), 1);
  EXPECT_EQ(manager.DoLoadSymbolList(directory.Joined("Other.xml").c_str()), 1);
  Expect(TQListFileWorking, TQLoadWhole, 0, "");
  Expect(TQListFileBackup, TQLoadNever, 0, "");
}

TEST_F(LoadStateTest, AStartThatFailsAtTheTablesForgetsThem) {
  WriteWorking(Good());
  ASSERT_EQ(StartWithTables(), 1);
  manager.RestorSymbolList();
  standin::FailCall("VLGetExch", 1);
  ASSERT_EQ(StartWithTables(), 0);
  Expect(TQListFileWorking, TQLoadNever, 0, "");
  Expect(TQListFileBackup, TQLoadNever, 0, "");
}

TEST_F(LoadStateTest, ANumberThatIsNoFileHasNoState) {
  WriteWorking(Good());
  ASSERT_EQ(StartWithoutTables(), 1);
  for (const int file : {-1, 2, 1000})
    Expect(static_cast<TQListFile>(file), TQLoadNever, 0, "");
}

} // namespace
