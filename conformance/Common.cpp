// tqCommon, tqUtil and TQLog: the language, file names, the log, message boxes.
#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "Checks.h"
#include "CodePage.h"
#include "TQLog.h"
#include "tqCommon.h"
#include "tqUtil.h"
#if defined(_WIN32)
#include <windows.h>
#endif

namespace conformance {
namespace {

namespace fs = std::filesystem;

constexpr char kPrefix[] = "Conformance";
constexpr char kBase[] = "conformance";
constexpr char kDailyBase[] = "conformance-day";
constexpr int kLevel = 64;

// Whether the process's code page is one that goes with the answer; elsewhere than on Windows it
// follows the answer.
bool GoesWithCodePage([[maybe_unused]] bool traditional) {
#if defined(_WIN32)
  const unsigned codePage = GetACP();
  return codePage == (traditional ? 950U : 936U) || (codePage != 950 && codePage != 936);
#else
  return true;
#endif
}

struct FileName {
  const char* name;
  bool good;
};

// "\xa5\x5c" is a character of both code pages whose second byte is a backslash.
constexpr FileName kFileNames[] = {
    {"list", true},  {"my list 1", true}, {"\xa5\x5c", true},    {"", false},
    {"a\\b", false}, {"a/b", false},      {"a:b", false},        {"a*b", false},
    {"a?b", false},  {"a\"b", false},     {"a<b", false},        {"a>b", false},
    {"a|b", false},  {"a\tb", false},     {"\xa5\x5c\\", false}, {nullptr, false},
};

std::vector<std::string> LinesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    if (!line.empty() && line.back() == '\r')
      line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::string Today() {
  const std::time_t now = std::time(nullptr);
  char text[16];
  return std::string(text, std::strftime(text, sizeof text, "_%Y%m%d", std::localtime(&now)));
}

class LogCheck {
public:
  explicit LogCheck(Report& report)
      : report_(report), directory_(report.Asked().directory + "\\Log"),
        folder_(fs::path(report.Asked().directory) / "Log") {}

  void Run() {
    CheckLines();
    CheckAppending();
    CheckDaily();
    CheckClosed();
  }

private:
  bool Open(TQLog& log, const char* base, bool daily) {
    report_.Call("TQLog::storage", directory_, base, kPrefix, daily ? 1 : 0, 1);
    return report_.Hold(log.storage(directory_.c_str(), base, kPrefix, daily, true) != 0,
                        Rule::LogOpens, "the call fails");
  }
  bool Exists(const fs::path& name) const {
    std::error_code unknown;
    return fs::exists(folder_ / name, unknown);
  }
  void CheckLines();
  void CheckAppending();
  void CheckDaily();
  void CheckClosed();

  Report& report_;
  std::string directory_; // as the library gives it
  fs::path folder_;       // as the system takes it
};

// User text is an argument: percent signs in it are none of the format's.
void LogCheck::CheckLines() {
  TQLog log;
  if (!Open(log, kBase, false))
    return;
  const std::string longText(5000, 'x');
  report_.Hold(Exists("conformance.log"), Rule::LogFileName, "there is no file conformance.log");
  report_.Call("TQLog::write", "%s %d %s", "100% \xa5\x5c %s", 7, "long");
  const int written = log(kLevel).write("%s %d %s", "100% \xa5\x5c %s", 7, longText.c_str());
  const std::vector<std::string> lines = LinesOf(folder_ / "conformance.log");
  report_.Hold(written != 0 && !lines.empty(), Rule::LogFlush, "the line is not in the file");
  if (lines.empty())
    return;
  const std::string& line = lines.back();
  report_.Hold(lines.size() == 1 && line.ends_with("100% \xa5\x5c %s 7 " + longText), Rule::LogLine,
               Shown(static_cast<long>(lines.size())) + " lines, the last " +
                   Shown(std::string_view(line).substr(0, 60)));
  report_.Hold(line.starts_with(kPrefix), Rule::LogPrefix,
               Shown(std::string_view(line).substr(0, 60)));
}

void LogCheck::CheckAppending() {
  const std::size_t before = LinesOf(folder_ / "conformance.log").size();
  if (before == 0)
    return; // which CheckLines has reported
  TQLog log;
  if (!Open(log, kBase, false))
    return;
  log(kLevel).write("%s", "second");
  const std::size_t after = LinesOf(folder_ / "conformance.log").size();
  report_.Hold(after == before + 1, Rule::LogAppends,
               Shown(static_cast<long>(after)) + " lines where " +
                   Shown(static_cast<long>(before + 1)) + " were written");
}

// Midnight may pass in between.
void LogCheck::CheckDaily() {
  const std::string before = Today();
  TQLog log;
  if (!Open(log, kDailyBase, true))
    return;
  const std::string after = Today();
  report_.Hold(Exists(kDailyBase + before + ".log") || Exists(kDailyBase + after + ".log"),
               Rule::LogFileName, "there is no file " + (kDailyBase + before) + ".log");
}

void LogCheck::CheckClosed() {
  TQLog log;
  report_.Call("TQLog::write", "without storage");
  report_.Hold(log(kLevel).write("%s", "lost") == 0, Rule::LogDropped, "the call succeeds");
  report_.Call("TQLog::storage", "null");
  report_.Hold(log.storage(nullptr, kBase, kPrefix, false, true) == 0, Rule::LogDropped,
               "the call succeeds");
}

bool IsIn(int button, std::initializer_list<int> buttons) {
  return std::find(buttons.begin(), buttons.end(), button) != buttons.end();
}

} // namespace

void CheckLanguage(Report& report) {
  report.Call("IsTraditionChinese");
  const bool traditional = IsTraditionChinese() != 0;
  report.Hold(GoesWithCodePage(traditional), Rule::LanguageCodePage,
              traditional ? "Traditional Chinese" : "Simplified Chinese");
  for (int i = 0; i < 100; ++i)
    if (!report.Hold((IsTraditionChinese() != 0) == traditional, Rule::LanguageSteady,
                     "the answer changes"))
      return;
}

void CheckFileNames(Report& report) {
  for (const FileName& each : kFileNames) {
    report.Call("CCheckFileName::IsValidName", "null", each.name, 0);
    const bool good = CCheckFileName::IsValidName(nullptr, each.name, 0) != 0;
    report.Hold(good == each.good, Rule::FileName, good ? "it is a file name" : "it is none");
  }
}

void CheckLog(Report& report) {
  LogCheck(report).Run();
}

void CheckBoxes(Report& report) {
  constexpr unsigned okOnly = 0;
  constexpr unsigned yesNo = 4;
  report.Call("tqShowMessageStr", "100%s", static_cast<int>(okOnly));
  const int ok = tqShowMessageStr("100%s", okOnly);
  report.Hold(ok == 1, Rule::BoxResult, Shown(ok));
  report.Call("tqShowMessageStr", "Yes or no?", static_cast<int>(yesNo));
  const int answer = tqShowMessageStr("Yes or no?", yesNo);
  report.Hold(IsIn(answer, {6, 7}), Rule::BoxResult, Shown(answer));
}

} // namespace conformance
