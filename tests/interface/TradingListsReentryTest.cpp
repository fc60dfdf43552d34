// The terminal handles messages while the trading-system proxy works or it is notified, and calls
// the library from there: logins, changes of holdings, removed lists and starts within each call.
#include <functional>
#include <memory>
#include <set>

#include "tests/interface/TradingTest.h"

namespace {

using Operation = std::pair<std::string, std::function<void()>>;

class TradingListsReentryTest : public TradingTest {
protected:
  static void AtCall(const std::string& operation, int n, const std::function<void()>& run) {
    const auto left = std::make_shared<int>(n);
    standin::OnCall(operation, [left, run] {
      if (--*left == 0)
        run();
    });
  }

  int Restart(int tradingLists) {
    return manager.Init(directory.Path().c_str(), 0, 0, 0, nullptr, 0, tradingLists);
  }

  // The terminal's operations within a call.
  std::vector<Operation> Calls() {
    return {
        {"logs in to T1", [this] { manager.UpdateTSLogin("T1"); }},
        {"logs in to T2", [this] { manager.UpdateTSLogin("T2"); }},
        {"logs in to an unknown system", [this] { manager.UpdateTSLogin("none"); }},
        {"changes 9801", [this] { manager.UpDataTSAccHodling("T1", "9801", kStocks); }},
        {"changes F01", [this] { manager.UpDataTSAccHodling("T1", "F01", kFutures); }},
        {"clears the lists", [this] { manager.ClearTSSymbolList(); }},
        {"removes a list", [this] { manager.DeleteTSSymbolList("19801"); }},
        {"removes all holdings", [this] { manager.DeleteTSSymbolList("ALLMYSTOCKLISTS"); }},
        {"adds a list", [this] { manager.AddTSSymbolList("19802", 6, "x", "2330.TW", 0); }},
        {"updates a list", [this] { manager.UpdateTSSymbolList("19802", 6, "x", "2330.TW", 0); }},
        {"builds lists by system", [this] { manager.BuildTSListToSymbolList(); }},
        {"starts again", [this] { Restart(1); }},
        {"starts without trading lists", [this] { Restart(0); }},
        {"loads groups", [this] { manager.LoadGroupList(); }},
        {"asks", [this] {
           Shape();
           CString symbols;
           manager.GetTSSymbolLists("T1", kStocks, symbols);
           manager.GetTSAccHodling("T1", "9801", symbols);
         }}};
  }

  void ExpectIdsOnce() {
    std::set<std::string> ids;
    for (int i = 0; i < manager.GetSymbolListCount(6); ++i) {
      TQSymbolListInfo info = {};
      ASSERT_EQ(manager.GetTQSymbolListInfo(i, &info, 6), 1);
      EXPECT_TRUE(ids.insert(info.ID).second) << info.ID;
    }
  }

  // Runs `work` once for each pair of a call that it makes to the operation and an operation of
  // Calls(), which runs within that call. Whatever results, the next login restores the lists of
  // T1.
  void ReenterAtEach(const std::string& operation, const std::function<void()>& work) {
    Prepare();
    standin::ClearCalls();
    work();
    const int count = standin::CountCalls(operation);
    ASSERT_GT(count, 0) << operation;
    for (const Operation& call : Calls()) {
      for (int n = 1; n <= count; ++n) {
        SCOPED_TRACE("in call " + std::to_string(n) + " of " + operation + " the terminal " +
                     call.first);
        Prepare();
        const int arrays = standin::OutstandingArrays();
        AtCall(operation, n, call.second);
        work();
        standin::OnCall(operation, nullptr);
        ExpectIdsOnce();
        EXPECT_EQ(standin::OutstandingArrays(), arrays);
        Prepare();
        EXPECT_EQ(Shape(), AfterLoginOfT1());
      }
    }
  }
  void Prepare() {
    Restart(1);
    manager.ClearTSSymbolList();
    manager.LoadTSList();
    manager.UpdateTSLogin("T1");
  }
};

TEST_F(TradingListsReentryTest, ALoginSurvivesWhateverTheTerminalDoesMeanwhile) {
  for (const char* operation :
       {"TQSGetTSStatus", "TQSGetTSCount", "TQSGetTSInfo", "TQSGetTSAccountCount",
        "TQSGetTSAccount", "TQSGetTSAccountHolding", "TQSCall"})
    ReenterAtEach(operation, [this] { manager.UpdateTSLogin("T1"); });
}

TEST_F(TradingListsReentryTest, AChangeOfHoldingsSurvivesWhateverTheTerminalDoesMeanwhile) {
  for (const char* operation : {"TQSGetTSAccountHolding", "TQSCall"})
    ReenterAtEach(operation, [this] { manager.UpDataTSAccHodling("T1", "9801", kStocks); });
}

TEST_F(TradingListsReentryTest, ListsBySystemSurviveWhateverTheTerminalDoesMeanwhile) {
  ReenterAtEach("VLGetSymbolInfos", [this] { manager.BuildTSListToSymbolList(); });
}

TEST_F(TradingListsReentryTest, AListThatIsAddedTwiceIsThereOnce) {
  Start();
  AtCall("VLGetSymbolInfos", 1, [this] { manager.AddTSSymbolList("x", 6, "X", "2330.TW", 0); });
  EXPECT_EQ(manager.AddTSSymbolList("x", 6, "X", "2317.TW", 0), 0);
  EXPECT_EQ(Symbols("x"), "2330.TW");
}

// Symptom: accounts of a nested login kept their lists although the outer login no longer has them.
TEST_F(TradingListsReentryTest, TheLoginThatEndsLastSaysWhichAccountsHaveLists) {
  Start();
  AtCall("TQSGetTSAccountCount", 1, [this] {
    manager.UpdateTSLogin("T1");
    standin::Market market = Market();
    market.tradingSystems[0].accounts = {{1, "9802", "9802-*", "2454.TW"}};
    standin::SetMarket(market);
  });
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/2454.TW|19802/9802-*/2454.TW");
}

// Symptom: the outer login went on with what it had read, and showed the account's earlier
// holdings.
TEST_F(TradingListsReentryTest, HoldingsThatChangeWhileALoginTellsAreShown) {
  Start();
  manager.UpdateTSLogin("T1");
  const auto change = [this] {
    standin::SetHoldings("T1", "9802", 1, "1101.TW");
    manager.UpDataTSAccHodling("T1", "9802", kStocks);
  };
  AtCall("TQSCall", 1, change);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Symbols("19802"), "1101.TW");
}

TEST_F(TradingListsReentryTest, AllHoldingsAreThoseOfTheAccountsAsTheyAreAfterTheTelling) {
  Start();
  manager.UpdateTSLogin("T1");
  AtCall("TQSCall", 1, [this] {
    standin::SetHoldings("T1", "F01", 2, "1101.TW");
    manager.UpDataTSAccHodling("T1", "F01", kFutures);
  });
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "2330.TW,2317.TW,2454.TW,1101.TW");
}

TEST_F(TradingListsReentryTest, ALoginEndsWhereTradingListsAreNotWantedAnyMore) {
  Start();
  AtCall("TQSGetTSAccountHolding", 2, [this] { Restart(0); });
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/");
  EXPECT_FALSE(directory.Exists("TSList.xml"));
}

} // namespace
