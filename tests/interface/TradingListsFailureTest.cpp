// Each service call of a login and of a change of holdings fails once: the remaining state is
// consistent, nothing leaks, and the next call restores everything.
#include <set>

#include "tests/interface/TradingTest.h"

namespace {

class TradingListsFailureTest : public TradingTest {
protected:
  // The names of the calls that `work` makes.
  template <typename Work> std::vector<std::string> CallsOf(Work work) {
    standin::ClearCalls();
    work();
    std::vector<std::string> calls;
    for (const standin::Call& call : standin::Calls())
      calls.push_back(call.operation);
    return calls;
  }

  // Expects unique ids, the list of all holdings among them, and the rows of every list among its
  // symbols.
  void ExpectConsistent() {
    std::set<std::string> ids;
    for (int i = 0; i < manager.GetSymbolListCount(6); ++i) {
      TQSymbolListInfo info = {};
      ASSERT_EQ(manager.GetTQSymbolListInfo(i, &info, 6), 1);
      EXPECT_TRUE(ids.insert(info.ID).second) << info.ID;
      CStringArray tokens;
      CString symbols;
      ASSERT_EQ(manager.GetSymbolListIDs(6, info.ID, symbols, &tokens), 1);
      EXPECT_LE(manager.GetTQSymbolCount(info.ID, 6), tokens.GetSize());
      EXPECT_STRNE(info.Name, "");
    }
    EXPECT_EQ(ids.count("ALLMYSTOCKLISTS"), 1u);
    EXPECT_EQ(TradingFile().substr(TradingFile().size() - 9), "</TSList>");
  }
  void ExpectAllRows() {
    const std::pair<const char*, int> rows[] = {
        {"ALLMYSTOCKLISTS", 4}, {"19801", 2}, {"19802", 2}, {"2F01", 1}};
    for (const auto& [id, count] : rows)
      EXPECT_EQ(manager.GetTQSymbolCount(id, 6), count) << id;
  }
};

TEST_F(TradingListsFailureTest, EveryCallOfAFirstLoginFailingOnceIsSurvived) {
  Start();
  const std::vector<std::string> calls = CallsOf([&] { manager.UpdateTSLogin("T1"); });
  ASSERT_GE(calls.size(), 15u);
  for (size_t n = 0; n < calls.size(); ++n) {
    SCOPED_TRACE("call " + std::to_string(n + 1) + ", " + calls[n]);
    Start();
    const int arrays = standin::OutstandingArrays();
    standin::FailCall("*", static_cast<int>(n) + 1);
    manager.UpdateTSLogin("T1");
    standin::FailCall("*", 0);
    ExpectConsistent();
    EXPECT_EQ(standin::OutstandingArrays(), arrays);
    manager.UpdateTSLogin("T1");
    EXPECT_EQ(Shape(), AfterLoginOfT1());
    ExpectAllRows();
  }
}

TEST_F(TradingListsFailureTest, EveryCallOfASecondLoginFailingOnceIsSurvived) {
  Start();
  manager.UpdateTSLogin("T1");
  const std::vector<std::string> calls = CallsOf([&] { manager.UpdateTSLogin("T1"); });
  ASSERT_GE(calls.size(), 15u);
  const std::string file = TradingFile();
  for (size_t n = 0; n < calls.size(); ++n) {
    SCOPED_TRACE("call " + std::to_string(n + 1) + ", " + calls[n]);
    const int arrays = standin::OutstandingArrays();
    standin::FailCall("*", static_cast<int>(n) + 1);
    manager.UpdateTSLogin("T1");
    standin::FailCall("*", 0);
    ExpectConsistent();
    EXPECT_EQ(standin::OutstandingArrays(), arrays);
    manager.UpdateTSLogin("T1");
    EXPECT_EQ(Shape(), AfterLoginOfT1());
    EXPECT_EQ(TradingFile(), file);
    ExpectAllRows();
  }
}

TEST_F(TradingListsFailureTest, EveryCallOfAChangeOfHoldingsFailingOnceIsSurvived) {
  Start();
  manager.UpdateTSLogin("T1");
  const auto change = [&](const char* holdings) {
    standin::SetHoldings("T1", "9801", 1, holdings);
    manager.UpDataTSAccHodling("T1", "9801", kStocks);
  };
  const std::vector<std::string> calls = CallsOf([&] { change("1101.TW"); });
  ASSERT_GE(calls.size(), 5u);
  for (size_t n = 0; n < calls.size(); ++n) {
    SCOPED_TRACE("call " + std::to_string(n + 1) + ", " + calls[n]);
    const int arrays = standin::OutstandingArrays();
    change("2330.TW,2317.TW");
    standin::FailCall("*", static_cast<int>(n) + 1);
    change("1101.TW");
    standin::FailCall("*", 0);
    ExpectConsistent();
    EXPECT_EQ(standin::OutstandingArrays(), arrays);
    change("2330.TW,2317.TW");
    EXPECT_EQ(Shape(), AfterLoginOfT1());
    ExpectAllRows();
  }
}

TEST_F(TradingListsFailureTest, EachOperationFailingAlwaysIsSurvived) {
  for (const char* operation :
       {"TQSGetTSStatus", "TQSGetTSCount", "TQSGetTSInfo", "TQSGetTSAccountCount",
        "TQSGetTSAccount", "TQSGetTSAccountHolding", "VLGetSymbolInfos", "TQSCall"}) {
    SCOPED_TRACE(operation);
    Start();
    standin::FailAlways(operation);
    manager.UpdateTSLogin("T1");
    manager.UpDataTSAccHodling("T1", "9801", kStocks);
    ExpectConsistent();
    standin::FailCall(operation, 0);
    manager.UpdateTSLogin("T1");
    EXPECT_EQ(Shape(), AfterLoginOfT1());
    ExpectAllRows();
  }
}

// Symptom: a login took a minute when the proxy claimed two billion systems or accounts.
TEST_F(TradingListsFailureTest, ClaimsBeyondAllReasonAreNotFollowed) {
  constexpr int kClaimed = 1'000'000;
  constexpr int kAnswered = 200'000;
  Start();
  standin::AnswerTradingSystems({}, kClaimed);
  manager.UpdateTSLogin("T1");
  EXPECT_LT(standin::CountCalls("TQSGetTSInfo"), kAnswered);
  TQS_TSINFO system = {};
  std::strcpy(system.id, "T1");
  TQS_ACCOUNTINFO account = {};
  account.type = kStocks;
  std::strcpy(account.id, "9801");
  std::strcpy(account.displayId, "shown");
  standin::AnswerTradingSystems({system});
  standin::AnswerAccounts("T1", {account}, kClaimed);
  standin::ClearCalls();
  manager.UpdateTSLogin("T1");
  EXPECT_LT(standin::CountCalls("TQSGetTSAccount"), kAnswered);
  EXPECT_EQ(NameOf("19801"), "shown");
}

} // namespace
