#include "platform/Log.h"

#include <new>
#include <utility>

#include "platform/Module.h"
#include "platform/framework/CString.h"

namespace tq {
namespace {

TQLog* theLog = nullptr;

// Made behind the logger, so it goes in front of everything that the log service had made by then,
// in whatever order the two libraries were loaded.
struct LogEnd {
  ~LogEnd() { CloseLog(); }
};

} // namespace

TQLog* Log() {
  return theLog;
}

void OpenLog() {
  if (theLog != nullptr)
    return;
  theLog = new (std::nothrow) TQLog;
  if (theLog == nullptr)
    return;
  CString directory;
  directory.Format("%s\\%s", OwnModuleDirectory().c_str(), "Log");
  theLog->storage(directory, "tqSymbol", "TQ", true, false);
  LogLine(kLogGeneral, "CTQSymbolListMgr::Init Log init");
  static const LogEnd end;
}

void CloseLog() {
  TQLog* const log = std::exchange(theLog, nullptr);
  if (!ProcessIsEnding())
    delete log;
}

} // namespace tq
