#include "platform/diagnostics/DebugMode.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/Encoding.h"
#include "platform/Log.h"
#include "platform/diagnostics/Operation.h"

namespace tq {
namespace {

std::atomic<std::thread::id> terminalThread;

// What other threads did, as far as somebody would read it: the log belongs to the terminal's,
// which writes it at its next call.
constexpr size_t kMostElsewhere = 100;
std::mutex elsewhereLock;
std::vector<std::string> elsewhere;

// Whoever takes the line may make the next mistake.
bool isReporting = false;

void WriteOnErrorStream(const char* text) {
  std::fprintf(stderr, "tqSymbol: %s\n", text);
  std::fflush(stderr);
}

void StopIfAsked(const char* text) {
  if (debugMode != TQDebugStop)
    return;
  WriteOnErrorStream(text);
  std::abort();
}

void WriteMistake(const char* text) {
  if (isReporting)
    return;
  isReporting = true;
  if (LogTakes(kLogMisuse))
    LogLine(kLogMisuse, "%s", text);
  else
    WriteOnErrorStream(text);
  isReporting = false;
}

void WriteElsewhere() {
  std::vector<std::string> texts;
  {
    const std::lock_guard lock(elsewhereLock);
    texts.swap(elsewhere);
  }
  for (const std::string& text : texts)
    WriteMistake(text.c_str());
}

// Where the first thing stands that is no character of the process's code page; npos for none.
size_t FirstBroken(std::string_view text) {
  const unsigned codePage = AnsiCodePage();
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const bool high = static_cast<unsigned char>(*at) > 0x7F;
    const size_t length = high ? AnsiCharLength(codePage, at, end) : 1;
    if (length == 0)
      return static_cast<size_t>(at - text.data());
    at += length;
  }
  return std::string_view::npos;
}

// Text of the code page can be UTF-8 by chance. It seldom is, and hardly ever with a character of
// three bytes, which Chinese text in UTF-8 is made of.
bool IsUtf8(std::string_view text) {
  bool three = false;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const bool high = static_cast<unsigned char>(*at) > 0x7F;
    const size_t length = high ? Utf8CharLength(at, end) : 1;
    if (length == 0)
      return false;
    three = three || length == 3;
    at += length;
  }
  return three;
}

std::string_view NameAt(std::string_view names, int index) {
  std::string_view found;
  ForEachPiece(names, [&](int position, std::string_view piece) {
    if (position == index)
      found = piece;
  });
  return found;
}

} // namespace

void SetDebugMode(TQDebugMode mode) {
  terminalThread = std::thread::id();
  debugMode = mode;
}

void ReadDebugMode() {
  static const bool read = [] {
    const char* const wanted = std::getenv("TQSYMBOL_DEBUG");
    if (wanted != nullptr && std::strcmp(wanted, "log") == 0)
      SetDebugMode(TQDebugLog);
    else if (wanted != nullptr && std::strcmp(wanted, "stop") == 0)
      SetDebugMode(TQDebugStop);
    return true;
  }();
  static_cast<void>(read);
}

void ReportMistake(TQProblem kind, const CString& text) {
  StopIfAsked(text);
  Operation::NoteWhole(kind, text);
  WriteMistake(text);
}

bool CheckThread(const char* operation) {
  const std::thread::id here = std::this_thread::get_id();
  std::thread::id first;
  if (terminalThread.compare_exchange_strong(first, here) || first == here) {
    WriteElsewhere();
    return true;
  }
  const std::string text = std::string(operation) + " was called on another thread than the first";
  StopIfAsked(text.c_str());
  const std::lock_guard lock(elsewhereLock);
  if (elsewhere.size() < kMostElsewhere)
    elsewhere.push_back(text);
  return false;
}

void CheckText(const char* operation, std::string_view names, int index, std::string_view text) {
  const std::string name(NameAt(names, index));
  const size_t broken = FirstBroken(text);
  if (broken != std::string_view::npos)
    ReportMistake(TQProblemMisuse,
                  "%s: %s is not text of code page %u: byte %d (%02X) begins no character",
                  operation, name.c_str(), AnsiCodePage(), static_cast<int>(broken),
                  static_cast<unsigned>(static_cast<unsigned char>(text[broken])));
  else if (IsUtf8(text))
    ReportMistake(TQProblemMisuse, "%s: %s seems to be UTF-8, not text of code page %u", operation,
                  name.c_str(), AnsiCodePage());
}

} // namespace tq
