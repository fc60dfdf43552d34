// The stand-in's controls for tests: ordered failures, recorded calls, counted arrays.
#include "platform/framework/CString.h"
#include "platform/services/TQSProxy.h"
#include "platform/services/tqStock.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TradingMarket.h"
#include "tests/terminal/ArrayOwner.h"
#include "tests/terminal/ServiceOperations.h"

namespace {

class ScriptTest : public StandInTest {
protected:
  ScriptTest() {
    standin::Market market = GroupMarket();
    market.tradingSystems = TradingMarket().tradingSystems;
    market.fullMenuKey = "1";
    standin::SetMarket(market);
  }
};

TEST_F(ScriptTest, EveryOperationFailsInTheCallItIsToldTo) {
  for (const Operation& operation : Operations()) {
    SCOPED_TRACE(operation.name);
    standin::FailCall(operation.name, 2);
    EXPECT_NE(operation.call(), 0);
    EXPECT_EQ(operation.call(), 0);
    EXPECT_NE(operation.call(), 0);
  }
}

TEST_F(ScriptTest, EveryOperationFailsAlwaysUntilTheOrderIsTakenBack) {
  for (const Operation& operation : Operations()) {
    SCOPED_TRACE(operation.name);
    standin::FailAlways(operation.name);
    EXPECT_EQ(operation.call(), 0);
    EXPECT_EQ(operation.call(), 0);
    standin::FailCall(operation.name, 0);
    EXPECT_NE(operation.call(), 0);
  }
}

TEST_F(ScriptTest, EveryOperationIsRecordedByItsName) {
  for (const Operation& operation : Operations()) {
    SCOPED_TRACE(operation.name);
    standin::ClearCalls();
    operation.call();
    EXPECT_EQ(standin::CountCalls(operation.name), 1);
  }
}

TEST_F(ScriptTest, EveryOperationRunsItsActionOnceACall) {
  for (const Operation& operation : Operations()) {
    SCOPED_TRACE(operation.name);
    int runs = 0;
    standin::OnCall(operation.name, [&] {
      ++runs;
      operation.call(); // an action does not run inside itself
    });
    operation.call();
    EXPECT_EQ(runs, 1);
    standin::OnCall(operation.name, {});
    operation.call();
    EXPECT_EQ(runs, 1);
  }
}

TEST_F(ScriptTest, AnActionRunsInsideOfEachCallButNotOfItself) {
  int runs = 0;
  standin::OnCall("VLGetExch", [&] {
    ++runs;
    EXPECT_EQ(standin::CountCalls("VLGetExch"), 2 * runs - 1) << "recorded before";
    EXPECT_NE(GetExch(), 0);
  });
  EXPECT_NE(GetExch(), 0);
  EXPECT_NE(GetExch(), 0);
  EXPECT_EQ(runs, 2);
  SymbolInfo info;
  VLGetSymbolInfo("2330.TW", &info);
  EXPECT_EQ(runs, 2) << "another operation";
}

TEST_F(ScriptTest, AnActionIsTakenBackByAnEmptyOneByResetAndByItself) {
  int runs = 0;
  const auto count = [&] { ++runs; };
  standin::OnCall("VLGetExch", count);
  standin::OnCall("VLGetExch", nullptr);
  GetExch();
  standin::OnCall("VLGetExch", count);
  standin::Reset();
  GetExch();
  EXPECT_EQ(runs, 0);
  standin::OnCall("VLGetExch", [&] {
    standin::OnCall("VLGetExch", nullptr);
    ++runs;
  });
  GetExch();
  GetExch();
  EXPECT_EQ(runs, 1);
}

TEST_F(ScriptTest, AnActionChangesWhatTheCallAnswers) {
  standin::OnCall("VLGetExch", [] { standin::SetMarket({}); });
  Exchs exchanges;
  EXPECT_NE(VLGetExch(&exchanges.list, &exchanges.count, 1), 0);
  EXPECT_EQ(exchanges.count, 0);
}

TEST_F(ScriptTest, TheStarCountsTheCallsOfEveryOperation) {
  SymbolInfo info;
  standin::FailCall("*", 2);
  EXPECT_NE(GetExch(), 0);
  EXPECT_EQ(VLGetSymbolInfo("2330.TW", &info), 0);
  EXPECT_NE(VLGetSymbolInfo("2330.TW", &info), 0);
  standin::FailAlways("*");
  EXPECT_EQ(GetExch(), 0);
  EXPECT_EQ(VLGetSymbolInfo("2330.TW", &info), 0);
}

TEST_F(ScriptTest, AFailedNotificationIsLost) {
  standin::FailCall("TQSCall", 1);
  TQSCall("", -1, 40, "lost");
  TQSCall("", -1, 40, "kept");
  ASSERT_EQ(standin::Notifications().size(), 1u);
  EXPECT_EQ(standin::Notifications()[0].reason, "kept");
}

TEST_F(ScriptTest, FieldReadsCanFailButAreNotRecorded) {
  Attrs attrs;
  ASSERT_NE(VLGetBaseAttrs("2330.TW", &attrs.list, &attrs.count, 1), 0);
  CStaticKey key;
  ASSERT_NE(key.Setup(attrs.list), 0);
  standin::ClearCalls();
  CString text = "before";
  int number = 7;
  standin::FailCall("CStockAttr::GetID", 1);
  EXPECT_EQ(key.GetID(text, 1), 0);
  EXPECT_STREQ(text, "");
  standin::FailCall("CStaticKey::GetFieldString", 1);
  EXPECT_EQ(key.GetFieldString(FieldSymbolName, text), 0);
  standin::FailCall("CStaticKey::GetFieldInt", 1);
  EXPECT_EQ(key.GetFieldInt(FieldTradeLot, number), 0);
  EXPECT_EQ(number, 7);
  EXPECT_NE(key.GetFieldInt(FieldTradeLot, number), 0);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(ScriptTest, CallsCarryTheirInputsInOrder) {
  standin::ClearCalls();
  Infos infos;
  VLGetSymbolInfos2(2, -1, &infos.list, &infos.count, 0);
  VLGetSymbolInfo(nullptr, nullptr);
  TQSCall("", -1, 40, "ListCntChange");
  ASSERT_EQ(standin::Calls().size(), 3u);
  EXPECT_EQ(standin::Calls()[0].operation, "VLGetSymbolInfos2");
  EXPECT_EQ(standin::Calls()[0].arguments, "2,-1,0");
  EXPECT_EQ(standin::Calls()[1].arguments, "(null)");
  EXPECT_EQ(standin::Calls()[2].arguments, ",-1,40,ListCntChange");
}

TEST_F(ScriptTest, RecordingCanBeTurnedOffWhileOrdersStillHold) {
  standin::ClearCalls();
  standin::RecordCalls(false);
  EXPECT_NE(GetExch(), 0);
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(GetExch(), 0);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(ScriptTest, ResetForgetsOrdersAndCalls) {
  standin::FailAlways("*");
  standin::RecordCalls(false);
  standin::Reset();
  EXPECT_TRUE(standin::Calls().empty());
  EXPECT_TRUE(standin::CurrentMarket().exchanges.empty());
  EXPECT_NE(GetExch(), 0);
  EXPECT_EQ(standin::CountCalls("VLGetExch"), 1);
}

TEST(Arrays, AreCountedUntilTheyAreReleased) {
  standin::Reset();
  standin::SetMarket(SmallMarket());
  SymbolInfo* list = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSymbolInfos("2330.TW", &list, &count), 0);
  EXPECT_EQ(standin::OutstandingArrays(), 1);
  standin::Reset();
  EXPECT_EQ(standin::OutstandingArrays(), 1);
  VLFree(list);
  EXPECT_EQ(standin::OutstandingArrays(), 0);
  EXPECT_EQ(standin::BadReleases(), 0);
}

TEST(Arrays, ReleasedTwiceOrNeverHandedOutAreBadReleases) {
  standin::Reset();
  standin::SetMarket(SmallMarket());
  SymbolInfo* list = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSymbolInfos("2330.TW", &list, &count), 0);
  VLFree(list);
  VLFree(list);
  EXPECT_EQ(standin::BadReleases(), 1);
  VLFree(&count);
  EXPECT_EQ(standin::BadReleases(), 2);
  VLFree(nullptr);
  EXPECT_EQ(standin::BadReleases(), 2);
  standin::Reset();
  EXPECT_EQ(standin::BadReleases(), 0);
}

} // namespace
