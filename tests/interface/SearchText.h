// The search for one symbol, opened as a terminal does.
#pragma once

#include <cstring>
#include <functional>
#include <string>
#include <utility>

#include "platform/framework/window/CWnd.h"
#include "symbolid/ListID.h"
#include "tests/interface/ContentEditorText.h"

class SearchText : public ContentEditorText {
protected:
  enum SearchControl { kResults = 781, kLook = 801 };
  enum EndCode { kNotCreated = -1, kChosen = 1, kCancelled = 2 };
  enum { kForced = 1 };
  // Entries of the box of markets. TE is a market whose code is that of an exchange; the codes of
  // the others are no exchanges.
  enum Market { kAll = 0, kTse = 1, kOtc = 2, kEtf = 3, kTe = 4 };

  // As every test's market, with TE, and with DIS known to its exchange as Q1234.
  SearchText() {
    standin::Market served = standin::CurrentMarket();
    served.groups.push_back({1, "", "TE", "店頭", "店头", {}});
    served.groups.push_back({1, "TE", "IC", "電子", "电子", {"8069.TE", "7777.TE"}});
    for (standin::Instrument& instrument : served.instruments) {
      if (instrument.code == "DIS")
        instrument.exchangeCode = "Q1234";
    }
    standin::SetMarket(served);
    ForgetChoice();
    SetWindowCursor(WindowCursor::Arrow);
  }
  void SetUp() override { Start({"A/one/2330.TW"}); }

  // The calls and the terminal's record count from the opening. Text is UTF-8.
  int Run(UserScript script, const std::string& input = "", int forceList = 0) {
    WhenDialogOpens(std::move(script));
    standin::ClearCalls();
    ForgetChoice();
    return CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, Ansi(input),
                                        &result, forceList, lists);
  }
  // Opens it, does this, and cancels it.
  void Look(const Action& action, const std::string& input = "", int forceList = 0) {
    const int code = Run(
        [&action](User& user) {
          action(user);
          EXPECT_TRUE(user.Press(WindowKey::Escape));
        },
        input, forceList);
    EXPECT_EQ(code, kCancelled);
    EXPECT_EQ(Chosen(), "nothing");
  }
  static CString Ansi(const std::string& utf8) { return standin::ToAnsi(utf8).c_str(); }

  static void Enter(User& user, const std::string& text) {
    EXPECT_TRUE(user.Fill(kCode, text));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
  }
  static void ChooseMarket(User& user, int market) { EXPECT_TRUE(user.Select(kMarket, market)); }

  // Has messages and timers arrive until the condition holds. False when the dialog ends first.
  static bool Await(User& user, const std::function<bool()>& condition) {
    int patience = 1000; // a timer that nobody stops must not hang the test
    bool holds = false;
    user.WaitFor([&] {
      holds = condition();
      return holds || --patience == 0;
    });
    return holds;
  }
  // Until the first search is over: the wait cursor has come and gone.
  static bool AwaitFirstSearch(User& user) {
    bool waited = false;
    return Await(user, [&waited] {
      waited = waited || GetWindowCursor() == WindowCursor::Wait;
      return waited && GetWindowCursor() == WindowCursor::Arrow;
    });
  }
  static bool AwaitWaitCursor(User& user) {
    return Await(user, [] { return GetWindowCursor() == WindowCursor::Wait; });
  }
  // A script for a dialog that ends by itself.
  static void AwaitTheEnd(User& user) {
    Await(user, [] { return false; });
  }
  // Stops the timer; false when there was none.
  static bool StopTimer(const User& user) {
    return CDialog::FromHandle(user.Dialog().GetSafeHwnd())->KillTimer(1);
  }

  // The names of the results.
  static Lines Names(const User& user) {
    Lines names;
    for (const std::string& row : user.Rows(kResults)) {
      const size_t bar = row.find(" | ");
      names.push_back(bar == std::string::npos ? "no name" : row.substr(bar + 3));
    }
    return names;
  }
  static size_t ResultCount(const User& user) { return user.Rows(kResults).size(); }
  // Two symbols of one code, and of names that begin alike.
  static Lines Twins() { return NamesOf({"7777.TW", "7777.TE"}); }
  static std::string TwinsName() { return Text("雙上", "双上"); }
  static Lines ChipsAndCement() { return NamesOf({"2330.TW", "2454.TW", "1101.TW"}); }

  // What was asked of the service's searches and look-ups: "VLFindSymbol(7777,0,0,-1)", blanks
  // between.
  static std::string Asked() {
    std::string asked;
    for (const standin::Call& call : standin::Calls()) {
      for (const char* operation :
           {"VLFindSymbol", "VLFindSymbol2", "VLEX2ZUID2", "VLGetSymbolInfos"}) {
        if (call.operation == operation)
          asked += (asked.empty() ? "" : " ") + call.operation + "(" +
                   standin::FromAnsi(call.arguments) + ")";
      }
    }
    return asked;
  }

  // The id in the terminal's record, or "nothing" when not one byte of it was written.
  std::string Chosen() const {
    const auto* bytes = reinterpret_cast<const unsigned char*>(&result);
    for (size_t i = 0; i < sizeof result; ++i) {
      if (bytes[i] != kUntouched)
        return result.id;
    }
    return "nothing";
  }
  // Whether the terminal's record is all of that symbol's.
  bool HasRecordOf(const char* id) const {
    SymbolInfo expected = {};
    return VLGetSymbolInfo(id, &expected) != 0 &&
           std::memcmp(&expected, &result, sizeof result) == 0;
  }

  // Exchanges in the order that the user prefers.
  void PreferExchanges(std::initializer_list<unsigned> ids) {
    CUIntArray order;
    for (const unsigned id : ids)
      order.Add(id);
    manager.LoadDefExchOrder(order);
  }
  void GiveMarket(const char* id) { market.SetData(ListIDGroup, id, 0); }

  SymbolInfo result;
  CListID market;           // empty: opens on all markets, whatever was remembered
  CListID* lists = &market; // what the terminal gives

private:
  void ForgetChoice() { std::memset(&result, kUntouched, sizeof result); }

  static constexpr unsigned char kUntouched = 0x5A;
};
