#include "platform/Log.h"

#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "platform/Module.h"

namespace tq {
namespace {

TQLog* theLog = nullptr;
bool isOpen = false;
int uses = 0;                                 // of loggers, one within the other
std::vector<std::unique_ptr<TQLog>> replaced; // while in use

// Lines are written until the library is gone, so these are plain values; the directory is asked
// for only when a file is opened.
int leastLevel = 0;
TQLogCallback callback = nullptr;
void* callbackContext = nullptr;
CString logDirectory;

// Constructed after the logger, so it is destroyed before everything that the log service had
// constructed by then, in whatever order the two libraries were loaded.
struct LogEnd {
  ~LogEnd() { CloseLog(); }
};

void DeleteLogger() {
  TQLog* const log = std::exchange(theLog, nullptr);
  if (ProcessIsEnding() || log == nullptr)
    return;
  std::unique_ptr<TQLog> owned(log);
  if (uses > 0)
    replaced.push_back(std::move(owned));
}

CString DirectoryOfLog() {
  if (!logDirectory.IsEmpty())
    return logDirectory;
  CString directory;
  directory.Format("%s\\%s", OwnModuleDirectory().c_str(), "Log");
  return directory;
}

// 0 also without memory for a logger.
int OpenFile() {
  if (uses > 0)
    DeleteLogger(); // it is not to open another file below its own feet
  if (theLog == nullptr)
    theLog = new (std::nothrow) TQLog;
  const LogUse use;
  return theLog == nullptr ? 0 : theLog->storage(DirectoryOfLog(), "tqSymbol", "TQ", true, false);
}

} // namespace

LogUse::LogUse() {
  ++uses;
}

LogUse::~LogUse() {
  if (--uses == 0)
    replaced.clear();
}

TQLog* Log() {
  return theLog;
}

bool LogTakes(int level) {
  return level >= leastLevel && (theLog != nullptr || callback != nullptr);
}

void HandLine(int level, const CString& line) {
  if (callback != nullptr)
    callback(callbackContext, level, line);
}

int SetLogTarget(const LogTarget& target) {
  logDirectory = target.directory;
  leastLevel = target.level;
  callback = target.callback;
  callbackContext = target.context;
  if (callback == nullptr)
    return !isOpen || OpenFile() != 0 ? 1 : 0;
  DeleteLogger();
  return 1;
}

void OpenLog() {
  if (isOpen)
    return;
  isOpen = true; // opening asks a service, from where the terminal may start once more
  if (callback == nullptr) {
    OpenFile();
    isOpen = theLog != nullptr;
  }
  if (!isOpen)
    return;
  LogLine(kLogGeneral, "CTQSymbolListMgr::Init Log init");
  static const LogEnd end;
}

void CloseLog() {
  isOpen = false;
  callback = nullptr;
  DeleteLogger();
}

} // namespace tq
