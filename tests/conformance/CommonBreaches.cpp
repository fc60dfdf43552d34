#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/conformance/Breach.h"
#include "tests/conformance/Faults.h"

using conformance::Rule;

namespace {

// The file that a logger writes, by the name that the library would give its directory.
std::string FileOf(std::string directory, const char* base) {
  std::replace(directory.begin(), directory.end(), '\\', '/');
  return directory + "/" + base + ".log";
}

void OpenOtherwise(const std::function<int(TQLog* log, const char* directory, const char* base,
                                           const char* prefix, bool daily)>& open) {
  TheFaults()._ZN5TQLog7storageEPKcS1_S1_bb =
      [=](TQLog* log, const char* directory, const char* base, const char* prefix, bool daily,
          bool) { return open(log, directory, base, prefix, daily); };
}

int OpenLog(TQLog* log, const char* directory, const char* base, const char* prefix, bool daily) {
  return __real__ZN5TQLog7storageEPKcS1_S1_bb(log, directory, base, prefix, daily, true);
}

} // namespace

std::vector<Breach> CommonBreaches() {
  return {
#if defined(_WIN32)
    {"LanguageOfAnotherCodePage",
     Rule::LanguageCodePage,
     [] {
       TheFaults().IsTraditionChinese = [] { return __real_IsTraditionChinese() != 0 ? 0 : 1; };
     },
     {Rule::TextCodePage}},
#endif
        {"LanguageChanges",
         Rule::LanguageSteady,
         [] {
           TheFaults().IsTraditionChinese = [calls = 0]() mutable {
             const bool traditional = __real_IsTraditionChinese() != 0;
             return (++calls % 50 == 0) != traditional ? 1 : 0;
           };
         },
         {Rule::TextCodePage}},
        {"NoNameIsAFileName", Rule::FileName,
         [] { standin::FailAlways("CCheckFileName::IsValidName"); }},
        {"LogDoesNotOpen", Rule::LogOpens, [] { standin::FailAlways("TQLog::storage"); }},
        {"LogIsNotDaily", Rule::LogFileName,
         [] {
           OpenOtherwise([](TQLog* log, const char* directory, const char* base, const char* prefix,
                            bool) { return OpenLog(log, directory, base, prefix, false); });
         }},
        {"LogBeginsAnew", Rule::LogAppends,
         [] {
           OpenOtherwise([](TQLog* log, const char* directory, const char* base, const char* prefix,
                            bool daily) {
             if (directory != nullptr)
               std::ofstream(FileOf(directory, base), std::ios::trunc);
             return OpenLog(log, directory, base, prefix, daily);
           });
         }},
        {"LogWritesTwice",
         Rule::LogLine,
         [] {
           OpenOtherwise([](TQLog* log, const char* directory, const char* base, const char* prefix,
                            bool daily) {
             const int result = OpenLog(log, directory, base, prefix, daily);
             if (directory != nullptr)
               (*log)(1).write("%s", "opened");
             return result;
           });
         },
         {Rule::LogAppends}},
        {"LogHasAnotherPrefix", Rule::LogPrefix,
         [] {
           OpenOtherwise([](TQLog* log, const char* directory, const char* base, const char*,
                            bool daily) { return OpenLog(log, directory, base, "Other", daily); });
         }},
        {"LogLosesLines", Rule::LogFlush, [] { standin::FailAlways("TQLog::write"); }},
        {"LogOpensNothing", Rule::LogDropped, [] {
           OpenOtherwise([](TQLog* log, const char* directory, const char* base, const char* prefix,
                            bool daily) {
             return directory == nullptr ? 1 : OpenLog(log, directory, base, prefix, daily);
           });
         }},
  };
}
