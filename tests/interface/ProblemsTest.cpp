// What GetLastProblem tells of operations that fail, or that succeed with something to know.
#include <string>

#include "platform/services/tqCommon.h"
#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class ProblemsTest : public EditTest {
protected:
  static TQProblem Last() {
    CString text;
    return CTQSymbolListMgr::GetLastProblem(text);
  }
  static std::string LastText() {
    CString text;
    CTQSymbolListMgr::GetLastProblem(text);
    return text.GetString();
  }
  void ExpectProblem(TQProblem problem, const std::string& text) {
    EXPECT_EQ(Last(), problem);
    EXPECT_EQ(LastText(), text);
  }
  std::string Working() const { return directory.Joined("SymbolList.xml"); }
};

TEST_F(ProblemsTest, ThereIsNoneAfterAStart) {
  ASSERT_EQ(StartWithTables(), 1);
  ExpectProblem(TQProblemNone, "");
}

TEST_F(ProblemsTest, AStartNamesTheServiceThatFails) {
  standin::FailCall("VLGetExch", 1);
  ASSERT_EQ(StartWithTables(), 0);
  ExpectProblem(TQProblemService, "Init: the symbol tables: VLGetExch or VLGetBaseAttrs2 fails");
  standin::FailCall("TQSGetUserInfo", 1);
  ASSERT_EQ(StartWithTables(), 0);
  ExpectProblem(TQProblemService, "Init: the user's exchanges: TQSGetUserInfo fails");
}

TEST_F(ProblemsTest, ASuccessfulOperationTakesTheProblemBack) {
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(manager.DeleteSymbolList("gone"), 0);
  ExpectProblem(TQProblemNoList, "DeleteSymbolList: there is no list 'gone'");
  EXPECT_EQ(manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0), 1);
  ExpectProblem(TQProblemNone, "");
}

TEST_F(ProblemsTest, AQueryLeavesTheProblemAlone) {
  ASSERT_EQ(StartWithTables(), 1);
  manager.DeleteSymbolList("gone");
  manager.GetSymbolListCount(1);
  CString name;
  manager.GetSymbolListName("gone", name, 1);
  EXPECT_EQ(Last(), TQProblemNoList);
}

TEST_F(ProblemsTest, ALoadSaysWhyThereAreNoLists) {
  ASSERT_EQ(StartWithTables(), 1);
  WriteWorking("<Result><SymbolList DefaultIdx='0'><List ID='a' Na");
  EXPECT_EQ(manager.LoadSymbolList(), 1);
  ExpectProblem(TQProblemFileDamaged, "LoadSymbolList: " + Working() +
                                          " is damaged: no well-formed document; line 1, column " +
                                          "51: the end of the file is missing");
  WriteWorking("<Other/>");
  EXPECT_EQ(manager.LoadSymbolList(), 1);
  ExpectProblem(TQProblemFileForeign, "LoadSymbolList: " + Working() + " is no list file");
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  ExpectProblem(TQProblemFileMissing,
                "RestorSymbolList: " + directory.Joined("SymbolList_Backup.xml") +
                    " does not exist");
}

TEST_F(ProblemsTest, AStartOnADamagedFileSaysSoAlthoughItSucceeds) {
  WriteWorking("<Result>");
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(Last(), TQProblemFileDamaged);
}

TEST_F(ProblemsTest, AStartWithoutADirectorySaysSo) {
  ASSERT_EQ(manager.Init("", 0, 1, 0, nullptr, 0, 0), 1);
  ExpectProblem(TQProblemNoFile, "Init: there is no data directory, or the path is empty");
}

TEST_F(ProblemsTest, ASaveThatCannotBeWrittenNamesTheFile) {
  ASSERT_EQ(StartWithTables(), 1);
  const std::string path = directory.Joined("missing\\SymbolList.xml");
  EXPECT_EQ(manager.DoSaveSymbolList(path.c_str()), 0);
  ExpectProblem(TQProblemFileNotWritten,
                "DoSaveSymbolList: " + path + " cannot be opened for writing");
}

TEST_F(ProblemsTest, TheEmptyPathIsNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(manager.DoSaveSymbolList(""), 0);
  ExpectProblem(TQProblemNoFile,
                "DoSaveSymbolList: there is no data directory, or the path is empty");
}

TEST_F(ProblemsTest, TwoManagersOnOneDirectoryAreToldAndLoseNothing) {
  ASSERT_EQ(StartWithTables(), 1);
  CTQSymbolListMgr other;
  ASSERT_EQ(other.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 0), 1);
  ASSERT_EQ(manager.AddSymbolList("mine", 0, "Mine", "2330.TW", 1, 0), 1);
  EXPECT_EQ(Last(), TQProblemNone);
  ASSERT_EQ(other.AddSymbolList("theirs", 0, "Theirs", "2317.TW", 1, 0), 1);
  EXPECT_EQ(Last(), TQProblemFileShared);
  EXPECT_NE(LastText().find("another program has written it"), std::string::npos) << LastText();
  EXPECT_NE(directory.Read("SymbolList_Kept.xml").find("'mine'"), std::string::npos);
  EXPECT_NE(ReadWorking().find("'theirs'"), std::string::npos);
}

TEST_F(ProblemsTest, ASaveOverWhatWasNotLoadedSaysWhereItIsKept) {
  WriteWorking("<Result><SymbolList DefaultIdx='0'><List ID='a' Na");
  ASSERT_EQ(StartWithTables(), 1);
  ASSERT_EQ(manager.SaveSymbolList(), 1);
  ExpectProblem(TQProblemFileKept, "SaveSymbolList: List file " + Working() + " is kept as " +
                                       directory.Joined("SymbolList_Kept.xml") + ": it is damaged");
}

TEST_F(ProblemsTest, RefusedListsAreGivenAReason) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.AddSymbolList("", 0, "", "2330.TW", 1, 0), 0);
  ExpectProblem(TQProblemName, "AddSymbolList: the name is empty");
  EXPECT_EQ(manager.AddSymbolList("", 0, "B", "", 1, 0), 0);
  ExpectProblem(TQProblemSymbols, "AddSymbolList: there are no symbols");
  const std::string id(37, 'x');
  EXPECT_EQ(manager.AddSymbolList(id.c_str(), 0, "B", "2330.TW", 1, 0), 0);
  ExpectProblem(TQProblemId, "AddSymbolList: no list can bear the identifier '" + id + "'");
  EXPECT_EQ(manager.AddSymbolList("a", 0, "B", "2330.TW", 1, 0), 0);
  ExpectProblem(TQProblemTaken, "AddSymbolList: the list 'a' has another name, 'A'");
}

TEST_F(ProblemsTest, RefusedEntriesAreGivenAReason) {
  StartWith({"a/A/2330.TW,2317.TW"});
  EXPECT_EQ(manager.InsertSymbolList("gone", 0, "2454.TW", 0, 0), 0);
  ExpectProblem(TQProblemNoList, "InsertSymbolList: there is no list 'gone'");
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "2330.TW", 0, 0), 0);
  ExpectProblem(TQProblemEntry, "InsertSymbolList: the list 'a' has '2330.TW' already, or its rows "
                                "are not known");
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "x,y", 0, 0), 0);
  ExpectProblem(TQProblemEntry, "InsertSymbolList: 'x,y' is empty or holds a comma");
  EXPECT_EQ(manager.DeleteSymbolList("a", 7), 0);
  EXPECT_EQ(Last(), TQProblemNoEntry);
  EXPECT_EQ(LastText(), "DeleteSymbolList: the list 'a' has no entry 7");
  EXPECT_EQ(manager.SwapSymbolList("a", 0, 7), 0);
  ExpectProblem(TQProblemNoEntry,
                "SwapSymbolList: entries 0 and 7 of the list 'a' are one, or not both there");
  EXPECT_EQ(manager.ReplaceSymbolList("a", 7, "x"), 0);
  ExpectProblem(TQProblemNoEntry, "ReplaceSymbolList: the list 'a' has no entry 7");
  EXPECT_EQ(manager.ReplaceSymbolList("a", 0, " "), 0);
  ExpectProblem(TQProblemEntry, "ReplaceSymbolList: ' ' is empty or holds a comma");
}

TEST_F(ProblemsTest, AListThatItsFileCannotBeLoadedWithIsToldAtTheSave) {
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(manager.AddSymbolList("b", 0, "a & b", "2330.TW", 1, 0), 1);
  ExpectProblem(TQProblemFileUnloadable, "AddSymbolList: the list 'a & b' has an apostrophe, & or "
                                         "<: its file does not load again");
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(Last(), TQProblemFileUnloadable);
  EXPECT_EQ(manager.DeleteSymbolList("b"), 1);
  ExpectProblem(TQProblemNone, "");
  EXPECT_EQ(manager.AddSymbolList("c", 0, "C", "2330.TW,it's:", 1, 0), 1);
  EXPECT_EQ(Last(), TQProblemFileUnloadable);
  EXPECT_EQ(manager.DeleteSymbolList("c"), 1);
  EXPECT_EQ(manager.AddSymbolList("d<", 0, "D", "2330.TW", 1, 0), 1);
  EXPECT_EQ(Last(), TQProblemFileUnloadable);
}

TEST_F(ProblemsTest, BytesThatAreLeftOutAreToldAlthoughTheListIsAdded) {
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(manager.AddSymbolList("b", 0, "AB\xA4", "2330.TW", 1, 0), 1);
  EXPECT_EQ(Last(), TQProblemLeftOut);
  EXPECT_EQ(LastText().substr(0, 46), "AddSymbolList: 1 bytes that are no text of cod");
}

TEST_F(ProblemsTest, AStartNamesTheDirectoryThatIsMissing) {
  const std::string gone = directory.Joined("gone");
  ASSERT_EQ(manager.Init(gone.c_str(), 0, 1, 0, nullptr, 0, 0), 1);
  ExpectProblem(TQProblemFileMissing, "Init: there is no directory " + gone);
}

TEST_F(ProblemsTest, NullPointersAreNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(manager.SetSymbolList(nullptr), 0);
  ExpectProblem(TQProblemNull, "SetSymbolList: lists is null");
  EXPECT_EQ(manager.AddTQSymbolList(nullptr, 1), 0);
  ExpectProblem(TQProblemNull, "AddTQSymbolList: source is null");
  EXPECT_EQ(manager.SetCloudSymbolList(nullptr, 8), 0);
  ExpectProblem(TQProblemNull, "SetCloudSymbolList: lists is null");
  EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(nullptr, nullptr, nullptr), -1);
  ExpectProblem(TQProblemNull, "DoSymbolListUI: there is no manager, or no list");
}

TEST_F(ProblemsTest, ListsThatInitDidNotWantAreNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(manager.AddTSSymbolList("t", 6, "T", "2330.TW", 0), 0);
  ExpectProblem(TQProblemOff,
                "AddTSSymbolList: Init was told not to keep lists from trading accounts");
}

TEST_F(ProblemsTest, AGroupTypeOutOfRangeIsNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(manager.LoadGroupList(202), 0);
  ExpectProblem(TQProblemRange, "LoadGroupList: there are no groups of type 202");
  standin::FailCall("VLGetSubGroup", 1);
  EXPECT_EQ(manager.LoadGroupList(3), 1);
  ExpectProblem(TQProblemService, "LoadGroupList: VLGetSubGroup fails for type 3");
}

// From within a service the terminal calls another operation, which fails: that is not the outer
// one's problem.
TEST_F(ProblemsTest, AnOperationFromWithinHasAProblemOfItsOwn) {
  ASSERT_EQ(StartWithTables(), 1);
  TQProblem inner = TQProblemNone;
  standin::OnCall("VLGetSymbolInfos", [&] {
    manager.DeleteSymbolList("gone");
    inner = Last();
  });
  EXPECT_EQ(manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0), 1);
  standin::OnCall("VLGetSymbolInfos", {});
  EXPECT_EQ(inner, TQProblemNoList);
  ExpectProblem(TQProblemNone, "");
}

// The message box of the failed save lets the terminal work, and what it does succeeds.
TEST_F(ProblemsTest, TheProblemOutlivesWhatTheTerminalDoesWhileTheUserIsTold) {
  ASSERT_EQ(StartWithTables(), 1);
  standin::OnCall("tqShowDllMessage", [&] { manager.SetSymbolList(nullptr); });
  EXPECT_EQ(manager.DoSaveSymbolList(directory.Joined("missing\\SymbolList.xml").c_str()), 0);
  standin::OnCall("tqShowDllMessage", {});
  EXPECT_EQ(Last(), TQProblemFileNotWritten);
}

TEST_F(ProblemsTest, AnImportThatCannotBeReadNamesTheFile) {
  ASSERT_EQ(StartWithTables(), 1);
  CString path = directory.Joined("none.xml").c_str();
  EXPECT_EQ(manager.DoLoadOtherProductList(path, 1), 0);
  EXPECT_EQ(Last(), TQProblemFileUnreadable);
  EXPECT_NE(LastText().find("none.xml"), std::string::npos);
}

} // namespace
