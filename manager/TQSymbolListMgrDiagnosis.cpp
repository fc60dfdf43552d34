// What went wrong, where the log goes, and the debug mode.
#include "manager/TQSymbolListMgr.h"
#include "platform/Log.h"
#include "platform/diagnostics/Operation.h"

TQProblem CTQSymbolListMgr::GetLastProblem(CString& text) noexcept {
  tq::CheckCall("GetLastProblem");
  return tq::LastProblem(text);
}

int CTQSymbolListMgr::SetLog(const char* directory, int level, TQLogCallback callback,
                             void* context) noexcept {
  tq::CheckCall("SetLog", "directory", directory);
  return tq::SetLogTarget({directory, level, callback, context});
}

void CTQSymbolListMgr::SetDebugMode(TQDebugMode mode) noexcept {
  tq::SetDebugMode(mode);
}
