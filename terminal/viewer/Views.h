// The views of which pictures are taken: of the library's dialogs, and of the stand-in terminal's
// window.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "manager/TQSymbolListMgr.h"
#include "terminal/user/UserScripts.h"

namespace viewer {

struct View {
  std::string name;
  // Opens a dialog as a terminal does, and returns its end code.
  std::function<int(CTQSymbolListMgr& manager)> open;
  // What the user does in it, and in the dialogs that he opens from within it. None: nothing.
  std::vector<standin::UserScript> scripts;
};

// The rows and groups that users choose in them are there in the sample market and lists.
const std::vector<View>& Views();

} // namespace viewer
