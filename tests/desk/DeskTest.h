// The stand-in terminal's window on a small market, with lists, groups, accounts and indicators.
#pragma once

#include <string>
#include <vector>

#include "terminal/desk/DeskDialog.h"
#include "terminal/desk/Session.h"
#include "terminal/user/DialogControls.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"
#include "tests/support/TradingMarket.h"
#include "tests/support/User.h"

using Texts = std::vector<std::string>;

// In the language of the run, UTF-8.
std::string Said(const char* traditional, const char* simplified);

// The user's lists are A "one", a stock under a heading and another one, which is shown first, and
// B "two"; the six system lists come behind them.
class DeskTest : public StandInTest {
protected:
  DeskTest();
  ~DeskTest() override;

  // Opens the window, and closes it when the script has done.
  void InDesk(const UserScript& script);

  // What the log has said since the last call, without the time.
  Texts NewLines(User& user);
  // Clicks the button, behind which one dialog opens.
  static void Open(User& user, int button, UserScript inDialog);

  TempDir directory;
  CTQSymbolListMgr manager;

private:
  size_t seen_ = 0;
};

inline std::string LastOf(const Texts& lines) {
  return lines.empty() ? "" : lines.back();
}
// The first of them that ends so; empty when none does.
std::string LineWith(const Texts& lines, const std::string& end);
