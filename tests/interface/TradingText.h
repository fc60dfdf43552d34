// A manager with lists from trading accounts, and its answers as text.
#pragma once

#include <cstring>

#include "tests/interface/TradingTest.h"

class TradingTextTest : public TradingTest {
protected:
  static std::string Declaration() {
    return std::string("<?xml version='1.0' encoding='") +
           (IsTraditionChinese() ? "big5" : "gb2312") + "' ?>\n";
  }
  static std::string File(const std::string& systems) {
    return Declaration() + "<TSList>\n" + systems + "</TSList>";
  }
  static std::string System(const char* id, const std::string& name, const std::string& accounts) {
    return std::string("\t<TS ID = '") + id + "' Name = '" + name + "' >\n" + accounts +
           "\t</TS>\n";
  }
  static std::string Account(const char* id, const char* shown, int type, const char* symbols) {
    return std::string("\t\t<Account ID = '") + id + "' DispID = '" + shown + "' TqsAccType = '" +
           std::to_string(type) + "' SymbolList = '" + symbols + "' />\n";
  }
  static std::string SystemT1(const char* holdings9801 = "2330.TW,2317.TW") {
    return System("T1", Broker("甲"),
                  Account("9801", "9801-*", 1, holdings9801) +
                      Account("9802", "9802-*", 1, "2317.TW,2454.TW") +
                      Account("F01", "F01-*", 2, "TXFL6.TF"));
  }
  static std::string SystemT2() {
    return System("T2", Broker("乙"), Account("77", "77-*", 1, "1101.TW"));
  }
  static std::string AllAsked(const char* prefix) {
    std::string all;
    for (const standin::Call& call : standin::Calls()) {
      if (call.operation.rfind(prefix, 0) == 0)
        all += (all.empty() ? "" : "|") + call.operation.substr(3) + "(" + call.arguments + ")";
    }
    return all;
  }
  // With one account for T1.
  static void OneAccount(standin::TradingAccount account) {
    standin::Market market = Market();
    market.tradingSystems[0].accounts = {std::move(account)};
    standin::SetMarket(market);
  }
};
