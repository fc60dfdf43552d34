#include "dialogs/TqSymbolApp.h"

#include "symbollist/Log.h"

namespace {

// The system loads the logging library before this one and keeps it until this one is gone, so the
// logger can be destroyed here. On a system where libraries are not ordered so, the code that
// closes the log stays mapped until the process has ended.
const tq::LibraryApp<CTqSymbolApp> theApp;

} // namespace

int CTqSymbolApp::ExitInstance() {
  tq::CloseLog();
  return CWinApp::ExitInstance();
}
