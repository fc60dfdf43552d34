// A dialog of the library, with a script for its user. On Windows it is a real window, elsewhere
// one in memory, which is on the screen where there is one and has scripts for its only users where
// there is none; in each case a terminal opens it as is done here.
#include <DialogControls.h>
#include <UserScripts.h>

#include "Example.h"

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr manager;
  Start(manager, directory);

  const auto complain = [](const std::string& why) { Expect(false, why.c_str()); };
  standin::WhenDialogOpens(
      [](standin::User& user) {
        // The search starts by itself, when the dialog is up.
        user.WaitFor([&user] { return !user.Rows(standin::controls::kFound).empty(); });
        for (const std::string& row : user.Rows(standin::controls::kFound))
          std::printf("  %s\n", row.c_str());
        user.DoubleClick(standin::controls::kFound, 0);
      },
      complain);

  SymbolInfo chosen = {};
  constexpr int forceList = 1; // the table is shown for a single hit too
  const int code = CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr,
                                                TQFromUtf8("台積電"), &chosen, forceList, nullptr);
  Expect(code == TQDialogDone, "the user has chosen");
  std::printf("chosen: %s %s\n", chosen.id, TQToUtf8(chosen.name).GetString());
}
