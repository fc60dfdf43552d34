#include "symbollist/Log.h"

#include <new>
#include <utility>

#include "platform/ModulePath.h"
#include "platform/framework/CString.h"

namespace tq {
namespace {

TQLog* theLog = nullptr;

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
}

void CloseLog() {
  delete std::exchange(theLog, nullptr);
}

} // namespace tq
