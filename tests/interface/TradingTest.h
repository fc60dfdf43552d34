// A manager with lists from trading accounts, on a market with two trading systems.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/ManagerTest.h"

// T1 holds 2330, 2317, 2454 and TXFL6 in accounts 9801 and 9802 (type 1) and F01 (type 2); T2 holds
// 1101 in account 77.
class TradingTest : public ManagerTest {
protected:
  static constexpr TqsAccType kStocks = static_cast<TqsAccType>(1);
  static constexpr TqsAccType kFutures = static_cast<TqsAccType>(2);

  TradingTest() { standin::SetMarket(Market()); }

  static standin::Market Market() {
    standin::Market market = SmallMarket();
    market.tradingSystems = {
        {"T1",
         "甲證券",
         "甲证券",
         true,
         {{1, "9801", "9801-*", "2330.TW,2317.TW"},
          {1, "9802", "9802-*", "2317.TW,2454.TW"},
          {2, "F01", "F01-*", "TXFL6.TF"}}},
        {"T2", "乙證券", "乙证券", true, {{1, "77", "77-*", "1101.TW"}}},
    };
    return market;
  }

  // Starts with trading lists and discards the calls and notifications of the start.
  void Start() {
    ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 0, 0, nullptr, 0, 1), 1);
    ForgetCalls();
  }
  void StartWithUserLists(const std::string& lists) {
    WriteWorking("<?xml version='1.0' encoding='utf-8' ?><Result><SymbolList DefaultIdx='0'>" +
                 lists + "</SymbolList></Result>");
    Start();
  }
  void ForgetCalls() {
    standin::ClearCalls();
    notified_ = standin::Notifications().size();
  }

  // The notifications since then: "40 TSSymbolList
  // 4 TSSymbolList".
  std::string Notified() const {
    std::string told;
    for (size_t i = notified_; i < standin::Notifications().size(); ++i) {
      const standin::Notification& note = standin::Notifications()[i];
      EXPECT_EQ(note.target, "");
      EXPECT_EQ(note.reserved, -1);
      told += (told.empty() ? "" : "|") + std::to_string(note.code) + " " + note.reason;
    }
    return told;
  }

  // The lists of kind 6: "id/name/symbols|...".
  std::string Shape() {
    std::string shape;
    for (int i = 0; i < manager.GetSymbolListCount(6); ++i) {
      CString id;
      CString name;
      CString symbols;
      EXPECT_EQ(manager.GetSymbolListInfo(i, id, name, symbols, 6), 1);
      shape +=
          (i > 0 ? "|" : "") + std::string(id) + "/" + name.GetString() + "/" + symbols.GetString();
    }
    return shape;
  }
  std::string Symbols(const char* id) {
    CString symbols;
    return manager.GetSymbolListIDs(6, id, symbols, nullptr) != 0 ? symbols.GetString()
                                                                  : "(no list)";
  }
  std::string NameOf(const char* id) {
    CString name;
    return manager.GetSymbolListName(id, name, 6) != 0 ? name.GetString() : "(no list)";
  }

  static std::string AllHoldings() {
    return standin::ToAnsi(IsTraditionChinese() ? "全部庫存股" : "全部库存股");
  }
  static std::string UpdateSuffix() { return "-" + standin::ToAnsi("更新"); }
  static std::string Broker(const char* first) {
    return standin::ToAnsi(std::string(first) + (IsTraditionChinese() ? "證券" : "证券"));
  }
  // The list of all holdings and a list for each account of T1, as in the market.
  static std::string AfterLoginOfT1() {
    return "ALLMYSTOCKLISTS/" + AllHoldings() +
           "/2330.TW,2317.TW,2454.TW,TXFL6.TF|19801/9801-*/2330.TW,2317.TW|"
           "19802/9802-*/2317.TW,2454.TW|2F01/F01-*/TXFL6.TF";
  }
  std::string TradingFile() { return directory.Read("TSList.xml"); }

private:
  size_t notified_ = 0;
};
