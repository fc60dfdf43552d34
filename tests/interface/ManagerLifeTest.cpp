// The manager's life cycle: Init, its order and its failures, the default index, clearing.
#include <string>
#include <vector>

#include "symboltable/SymbolTableMgr.h"
#include "terminal/StandIn.h"
#include "tests/interface/ManagerTest.h"

namespace {

class ManagerLifeTest : public ManagerTest {
protected:
  std::string EmptyFile(int index) {
    return std::string("<?xml version='1.0' encoding='") +
           (IsTraditionChinese() ? "big5" : "gb2312") + "' ?>\n<Result>\n<SymbolList DefaultIdx='" +
           std::to_string(index) + "'>\n</SymbolList>\n</Result>";
  }
  std::string TwoLists() {
    return "<Result><SymbolList DefaultIdx='7'><List ID='a' Name='A' Value='2330.TW' Flag='0'/>"
           "<List ID='b' Name='B' Value='' Flag='0'/></SymbolList></Result>";
  }
};

TEST_F(ManagerLifeTest, ConstructionTouchesNothing) {
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(manager.GetSymbolTableMgr(), nullptr);
  int index = 9;
  EXPECT_EQ(manager.GetDefaultListIdx(index), 0);
  EXPECT_EQ(index, 0);
  EXPECT_TRUE(standin::Calls().empty());
  EXPECT_FALSE(directory.Exists("SymbolList.xml"));
}

TEST_F(ManagerLifeTest, FirstInitOnAnEmptyDirectoryWritesTheSkeleton) {
  EXPECT_EQ(StartWithoutTables(), 1);
  EXPECT_EQ(ReadWorking(), EmptyFile(0));
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_NE(manager.GetSymbolTableMgr(), nullptr);
}

TEST_F(ManagerLifeTest, MissingDirectoryIsNotCreated) {
  const std::string missing = directory.Path() + "-missing";
  EXPECT_EQ(manager.Init(missing.c_str(), 0, 0, 0, nullptr, 0, 0), 1);
  EXPECT_TRUE(standin::Messages().empty());
  EXPECT_FALSE(TempDir::IsDirectory(missing));
}

TEST_F(ManagerLifeTest, EmptyAndNullDirectoriesTouchNoFile) {
  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
    EXPECT_EQ(manager.Init(none, 0, 0, 0, nullptr, 0, 0), 1);
    EXPECT_EQ(manager.SaveSymbolList(), 0);
    EXPECT_EQ(manager.CreateEmptySymbolListFile(), 0);
    EXPECT_EQ(manager.LoadSymbolList(), 1);
    EXPECT_TRUE(standin::Messages().empty());
  }
}

TEST_F(ManagerLifeTest, TablesAreBuiltOnlyWhenAskedFor) {
  StartWithoutTables();
  EXPECT_EQ(standin::CountCalls("VLGetBaseAttrs2"), 0);
  EXPECT_EQ(StartWithTables(), 1);
  CString id;
  EXPECT_NE(manager.GetSymbolTableMgr()->LookUpSymbolGetString(1, "2330.TW", "", id), 0);
  EXPECT_STREQ(id, "2330.TW");
}

TEST_F(ManagerLifeTest, TablesThatFailMakeInitFailBeforeAnyFile) {
  WriteWorking(TwoLists());
  StartWithTables();
  ASSERT_EQ(manager.GetSymbolListCount(1), 2);
  CTQSymbolListMgr fresh;
  for (const char* operation : {"VLGetExch", "VLGetBaseAttrs2", "TQSGetUserInfo"}) {
    SCOPED_TRACE(operation);
    TempDir empty;
    standin::FailCall(operation, 1);
    EXPECT_EQ(fresh.Init(empty.Path().c_str(), 0, 1, 0, nullptr, 0, 0), 0);
    EXPECT_EQ(fresh.GetSymbolListCount(1), 0);
    EXPECT_FALSE(empty.Exists("SymbolList.xml"));
  }
}

TEST_F(ManagerLifeTest, AFailingInitOnALiveManagerLeavesNoLists) {
  WriteWorking(TwoLists());
  StartWithTables();
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(StartWithTables(), 0);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
}

// Each service call of a start fails in turn: nothing leaks, only files that a start may write are
// written, and the next start is complete.
TEST_F(ManagerLifeTest, EveryServiceCallOfInitFailingOnceIsSurvived) {
  WriteWorking(TwoLists());
  standin::ClearCalls();
  ASSERT_EQ(StartWithTables(), 1);
  std::vector<std::string> calls; // of one start; the stand-in's own record keeps growing
  for (const standin::Call& call : standin::Calls())
    calls.push_back(call.operation);
  ASSERT_GT(calls.size(), 5u);
  const std::string file = ReadWorking();
  for (int n = 1; n <= static_cast<int>(calls.size()); ++n) {
    SCOPED_TRACE("call " + std::to_string(n) + ", " + calls[static_cast<size_t>(n - 1)]);
    standin::FailCall("*", n);
    const int result = StartWithTables();
    EXPECT_EQ(manager.GetSymbolListCount(1), result == 0 ? 0 : 2);
    EXPECT_EQ(ReadWorking(), file);
    // Of what the service returned, only the exchange records of the default exchanges are kept.
    EXPECT_LE(standin::OutstandingArrays(), 1);
    standin::FailCall("*", 0);
    ASSERT_EQ(StartWithTables(), 1);
    EXPECT_EQ(manager.GetSymbolListCount(1), 2);
  }
}

TEST_F(ManagerLifeTest, DefaultIndexBeyondTheListsIsReportedAsItStands) {
  WriteWorking(TwoLists());
  StartWithoutTables();
  int index = 0;
  EXPECT_EQ(manager.GetDefaultListIdx(index), 1);
  EXPECT_EQ(index, 7);
}

TEST_F(ManagerLifeTest, SetDefaultIndexStoresAnything) {
  WriteWorking(TwoLists());
  StartWithoutTables();
  for (int stored : {-5, 0, 1, 1000000}) {
    manager.SetDefaultIndex(stored);
    int index = 77;
    EXPECT_EQ(manager.GetDefaultListIdx(index), stored >= 0 ? 1 : 0);
    EXPECT_EQ(index, stored);
  }
}

TEST_F(ManagerLifeTest, SecondInitLeavesExactlyOneLogger) {
  StartWithoutTables();
  const int loggers = standin::LoggersAlive();
  EXPECT_EQ(loggers, 1);
  StartWithoutTables();
  CTQSymbolListMgr other;
  other.Init(directory.Path().c_str(), 0, 0, 0, nullptr, 0, 0);
  EXPECT_EQ(standin::LoggersAlive(), 1);
}

TEST_F(ManagerLifeTest, UnreadableFileGivesNoListsAndNoMessageAndTheNextSaveOverwritesIt) {
  WriteWorking(
      "<Result><SymbolList DefaultIdx='2'><List ID='a' Name='it's'/></SymbolList></Result>");
  EXPECT_EQ(StartWithoutTables(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_TRUE(standin::Messages().empty());
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), EmptyFile(0));
}

TEST_F(ManagerLifeTest, CreateEmptyWritesNoListsButTheCurrentIndex) {
  WriteWorking(TwoLists());
  StartWithoutTables();
  EXPECT_EQ(manager.CreateEmptySymbolListFile(), 1);
  EXPECT_EQ(ReadWorking(), EmptyFile(7));
  EXPECT_EQ(manager.GetSymbolListCount(1), 2);
}

TEST_F(ManagerLifeTest, ReLoadListGoesOverToTheOtherDirectory) {
  StartWithoutTables();
  TempDir other;
  other.Write("SymbolList.xml", TwoLists());
  manager.ReLoadList(other.Path().c_str());
  EXPECT_EQ(manager.GetSymbolListCount(1), 2);
  EXPECT_STREQ(manager.GetBackSymbolListPath(), (other.Path() + "\\SymbolList_Backup.xml").c_str());
}

TEST_F(ManagerLifeTest, UpdateReadsTheFileAgain) {
  StartWithoutTables();
  WriteWorking(TwoLists());
  EXPECT_EQ(manager.UpdateTQSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 2);
}

TEST_F(ManagerLifeTest, ClearingLeavesFileAndIndex) {
  constexpr int kUser = 1;
  constexpr int kTrading = 6;
  constexpr int kCloud = 8;
  WriteWorking(TwoLists());
  ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 0, 0, nullptr, 0, 1), 1);
  ASSERT_EQ(manager.AddCloudSymbolList("c", "C", "2330.TW", 0), 1);
  const auto counts = [this] {
    return std::vector<int>{manager.GetSymbolListCount(kUser), manager.GetSymbolListCount(kTrading),
                            manager.GetSymbolListCount(kCloud)};
  };
  ASSERT_EQ(counts(), (std::vector<int>{2, 1, 1})); // trading accounts: the list of all holdings
  manager.ClearSymbolList();
  EXPECT_EQ(counts(), (std::vector<int>{0, 1, 1}));
  manager.ClearTSSymbolList();
  EXPECT_EQ(counts(), (std::vector<int>{0, 0, 1}));
  manager.ClearCloudSymbolList();
  EXPECT_EQ(counts(), (std::vector<int>{0, 0, 0}));
  EXPECT_EQ(ReadWorking(), TwoLists());
  int index = 0;
  manager.GetDefaultListIdx(index);
  EXPECT_EQ(index, 7);
}

TEST_F(ManagerLifeTest, AddingACopyAppendsOrInsertsAndLeavesTheSource) {
  WriteWorking(TwoLists());
  StartWithoutTables();
  CSymbolList* source = nullptr;
  ASSERT_EQ(manager.GetSymbolList("a", &source, 1), 1);
  EXPECT_EQ(manager.AddTQSymbolList(nullptr, 1), 0);
  EXPECT_EQ(manager.AddTQSymbolList(source, 1), 1);
  EXPECT_EQ(manager.AddTQSymbolList(source, 0), 1);
  ASSERT_EQ(manager.GetSymbolListCount(1), 4);
  const char* ids[] = {"a", "a", "b", "a"};
  for (int i = 0; i < 4; ++i) {
    TQSymbolListInfo info;
    ASSERT_EQ(manager.GetTQSymbolListInfo(i, &info, 1), 1);
    EXPECT_STREQ(info.ID, ids[i]);
  }
}

TEST_F(ManagerLifeTest, KindsWithoutListsAndIndexesOutOfRangeAreRefused) {
  WriteWorking(TwoLists());
  StartWithoutTables();
  TQSymbolListInfo info;
  CSymbolList* list = nullptr;
  for (int kind : {-1, 0, 2, 3, 6, 7, 8, 9, 201}) {
    EXPECT_EQ(manager.GetSymbolListCount(kind), 0);
    EXPECT_EQ(manager.GetTQSymbolListInfo(0, &info, kind), 0);
    EXPECT_EQ(manager.GetSymbolList("a", &list, kind), 0);
    EXPECT_EQ(list, nullptr);
  }
  EXPECT_EQ(manager.GetTQSymbolListInfo(-1, &info, 1), 0);
  EXPECT_EQ(manager.GetTQSymbolListInfo(2, &info, 1), 0);
  EXPECT_EQ(manager.GetTQSymbolListInfo(0, nullptr, 1), 0);
  EXPECT_EQ(manager.GetSymbolList("a", nullptr, 1), 0);
  EXPECT_EQ(manager.GetSymbolList("c", &list, 1), 0);
}

TEST_F(ManagerLifeTest, SearchSwitchIsKept) {
  EXPECT_EQ(manager.GetbCN(), 0);
  manager.Init(directory.Path().c_str(), 5, 0, 0, nullptr, 0, 0);
  EXPECT_EQ(manager.GetbCN(), 5);
  manager.SetbCN(0);
  EXPECT_EQ(manager.GetbCN(), 0);
}

} // namespace
