#include "dialogs/TqSymbolApp.h"

#include "platform/Log.h"

namespace {

// This library keeps the logging library loaded: on Windows by its import, on POSIX by the symbols
// that it resolved. While only this library is unloaded, all threads run, and the logger can be
// destroyed.
const tq::LibraryApp<CTqSymbolApp> theApp;

} // namespace

int CTqSymbolApp::ExitInstance() {
  tq::CloseLog();
  return CWinApp::ExitInstance();
}
