// The second form of Init, versions, and whether changes have reached the disk.
#include <cstdio>
#include <string>

#include "platform/interface/TQSymbolVersion.h"
#include "symboltable/SymbolTableMgr.h"
#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class InitOptionsTest : public EditTest {
protected:
  TQInitOptions Options() {
    TQInitOptions options;
    path_ = directory.Path();
    options.dataDirectory = path_.c_str();
    return options;
  }
  int Start() { return manager.Init(Options()); }

private:
  std::string path_;
};

TEST_F(InitOptionsTest, TheDefaultsStartWithTablesAndNoFurtherLists) {
  ASSERT_EQ(Start(), 1);
  ASSERT_NE(manager.GetSymbolTableMgr(), nullptr);
  CString id;
  EXPECT_EQ(manager.GetSymbolTableMgr()->LookUpSymbolGetString(1, "2330", "TW", id), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(manager.LoadTSList(), 0);
  EXPECT_EQ(manager.IsUseUserDefExch(), 0);
  EXPECT_EQ(manager.GetbCN(), 0);
  EXPECT_TRUE(directory.Exists("SymbolList.xml"));
}

TEST_F(InitOptionsTest, EachOptionIsTakenOver) {
  CStringArray names;
  names.Add("First");
  TQInitOptions options = Options();
  options.bCN = 3;
  options.systemLists = true;
  options.systemListNames = &names;
  options.userDefaultExchanges = true;
  options.accountLists = true;
  ASSERT_EQ(manager.Init(options), 1);
  EXPECT_EQ(manager.GetbCN(), 3);
  EXPECT_EQ(manager.GetSymbolListCount(1), 6);
  EXPECT_EQ(NameAt(0), "First");
  EXPECT_EQ(manager.IsUseUserDefExch(), 1);
  EXPECT_EQ(manager.CheckSymbolListExist("ALLMYSTOCKLISTS", 6), 1);
}

TEST_F(InitOptionsTest, WithoutTablesNothingIsAskedForThem) {
  TQInitOptions options = Options();
  options.buildTables = false;
  ASSERT_EQ(manager.Init(options), 1);
  EXPECT_EQ(standin::CountCalls("VLGetBaseAttrs2"), 0);
}

TEST_F(InitOptionsTest, ATerminalOfALaterOrAnotherMajorVersionIsRefusedAndNothingChanges) {
  StartWith({"a/A/2330.TW"});
  TQInitOptions options = Options();
  for (const int version :
       {TQSYMBOL_VERSION + 100, TQSYMBOL_VERSION + 10000, TQSYMBOL_VERSION - 10000, 0, -1}) {
    options.version = version;
    EXPECT_EQ(manager.Init(options), 0) << version;
    CString text;
    EXPECT_EQ(CTQSymbolListMgr::GetLastProblem(text), TQProblemVersion) << version;
  }
  EXPECT_EQ(Shape(), "a/A/2330.TW");
}

TEST_F(InitOptionsTest, ATerminalOfAnEarlierPatchOrMinorVersionStarts) {
  TQInitOptions options = Options();
  options.version = TQSYMBOL_VERSION_MAJOR * 10000;
  EXPECT_EQ(manager.Init(options), 1);
}

TEST_F(InitOptionsTest, LibrariesAndHeadersAreOfOneVersion) {
  EXPECT_EQ(tqSymbolVersion(), TQSYMBOL_VERSION);
  EXPECT_EQ(tqFrameworkVersion(), TQSYMBOL_VERSION);
}

class UnsavedChangesTest : public EditTest {};

TEST_F(UnsavedChangesTest, ThereAreNoneAfterALoadAndAfterASave) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  EXPECT_EQ(manager.HasUnsavedChanges(), 0);
  ASSERT_EQ(manager.AddSymbolList("c", 0, "C", "2454.TW", 1, 0), 1);
  EXPECT_EQ(manager.HasUnsavedChanges(), 0);
}

TEST_F(UnsavedChangesTest, AnEditThatDoesNotSaveIsOne) {
  StartWith({"a/A/2330.TW,2317.TW"});
  ASSERT_EQ(manager.DeleteSymbolList("a", 0), 1);
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
  ASSERT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(manager.HasUnsavedChanges(), 0);
}

TEST_F(UnsavedChangesTest, AChangeThroughAListOfTheManagersIsOne) {
  StartWith({"a/A/2330.TW"});
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("a", &list, 1), 1);
  list->SetName("Other");
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
}

TEST_F(UnsavedChangesTest, TheDefaultIndexCounts) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  manager.SetDefaultIndex(1);
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
  manager.SetDefaultIndex(0);
  EXPECT_EQ(manager.HasUnsavedChanges(), 0);
}

TEST_F(UnsavedChangesTest, AFileThatIsGoneHoldsNoLists) {
  StartWith({"a/A/2330.TW"});
  ASSERT_EQ(std::remove(directory.Native("SymbolList.xml").c_str()), 0);
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
}

TEST_F(UnsavedChangesTest, WhatAnotherProgramHasWrittenIsComparedAsLists) {
  StartWith({"a/A/2330.TW"});
  const std::string bytes = ReadWorking();
  WriteWorking(bytes + "\n\n");
  EXPECT_EQ(manager.HasUnsavedChanges(), 0) << "the same lists in other bytes";
  std::string other = bytes;
  other.replace(other.find("2330"), 4, "2317");
  WriteWorking(other + "\n");
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
  WriteWorking("<Result>");
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
}

TEST_F(UnsavedChangesTest, WithoutADirectoryOnlyListsCount) {
  ASSERT_EQ(manager.Init("", 0, 1, 0, nullptr, 0, 0), 1);
  EXPECT_EQ(manager.HasUnsavedChanges(), 0);
  CSymbolList list;
  ASSERT_EQ(manager.AddTQSymbolList(&list, 1), 1);
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
}

TEST_F(UnsavedChangesTest, ItAsksNoServiceAndWritesNothing) {
  StartWith({"a/A/2330.TW"});
  ASSERT_EQ(manager.DeleteSymbolList("a", 0), 1);
  standin::ClearCalls();
  const std::string bytes = ReadWorking();
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
  EXPECT_TRUE(standin::Calls().empty());
  EXPECT_EQ(ReadWorking(), bytes);
}

} // namespace
