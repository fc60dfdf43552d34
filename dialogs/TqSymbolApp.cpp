#include "dialogs/TqSymbolApp.h"

#include "platform/Log.h"

namespace {

// The logging library is held by this one: on Windows by its import, on POSIX by the names that it
// was asked for. When this library alone goes, all threads run and the logger can be destroyed.
const tq::LibraryApp<CTqSymbolApp> theApp;

} // namespace

int CTqSymbolApp::ExitInstance() {
  tq::CloseLog();
  return CWinApp::ExitInstance();
}
