// Opens the dialog, with a script for its user.
#include <cstdio>
#include <string>
#include <vector>

#include <StandIn.h>
#include <UserScripts.h>

#include "PickDialog.h"

using standin::User;
using standin::WhenDialogOpens;

namespace {

int Fail(const char* why) {
  std::fprintf(stderr, "%s\n", why);
  return 1;
}

void Complain(const std::string& why) {
  Fail(why.c_str());
}

} // namespace

int main() {
  std::string error;
  CTQSymbolListMgr manager;
  if (!standin::ServeSampleMarket(error) ||
      !manager.Init(standin::SampleLists().c_str(), 0, 1, 0, nullptr, 0, 0))
    return Fail("no sample market");
  bool shown = false;
  WhenDialogOpens(
      [&shown](User& user) {
        user.Select(761, "許功蓋");
        shown = user.Rows(781).size() == 6; // two of the list's eight rows are headings
        user.DoubleClick(781, 1);
      },
      Complain);
  SymbolInfo picked = {};
  if (PickSymbol(manager, nullptr, picked) != CDialog::Accepted || !shown)
    return Fail("nothing was picked");
  std::printf("%s %s\n", picked.id, standin::FromAnsi(picked.name).c_str());
}
