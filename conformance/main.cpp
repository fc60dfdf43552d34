// Checks the terminal's services against what their headers promise, and says which call breaks
// which rule. See README.md in this folder.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>
#include <system_error>

#include "Checks.h"

namespace {

namespace fs = std::filesystem;
using conformance::Finding;
using conformance::Options;
using conformance::Rule;

enum ExitCode { kClean = 0, kFindings = 1, kUsage = 2 };

// Of one rule so many findings are shown; a fault often shows in each of thousands of symbols.
constexpr int kShownOfARule = 20;

constexpr char kUsageText[] =
    "Checks the services that this program is linked with.\n"
    "  --quick   a sample of symbols, groups and searches\n"
    "  --ui      message boxes too: somebody has to answer them\n"
    "  --trace   names each call on the error output before it is made\n"
    "  --list    the rules, each a sentence of a service header\n"
    "  --help    this text\n"
    "Each finding is a line: the call, the rule, what was seen.\n"
    "Exit code: 0 nothing found, 1 findings, 2 the arguments are wrong.\n";

// A directory for the logger's files, removed with all that is in it.
class Scratch {
public:
  Scratch() {
    std::error_code failed;
    const fs::path base = fs::temp_directory_path(failed);
    for (int i = 0; i < 1000 && path_.empty(); ++i) {
      const fs::path tried = base / ("tq-conformance-" + std::to_string(i));
      if (fs::create_directory(tried, failed))
        path_ = tried;
    }
  }
  ~Scratch() {
    std::error_code failed;
    if (!path_.empty())
      fs::remove_all(path_, failed);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  std::string Path() const { return path_.string(); }

private:
  fs::path path_;
};

void PrintRules() {
  for (const conformance::RuleText& rule : conformance::RuleTexts())
    std::printf("%s\n    %s: %s\n", rule.id, rule.header, rule.sentence);
}

class Printer {
public:
  void Print(const Finding& finding) {
    if (++counts_[finding.rule] > kShownOfARule)
      return;
    std::printf("%s: %s: %s\n", finding.call.c_str(), conformance::TextOf(finding.rule).id,
                finding.seen.c_str());
    std::fflush(stdout); // a service may crash at the next call
  }
  void PrintRest() const {
    for (const auto& [rule, count] : counts_)
      if (count > kShownOfARule)
        std::printf("%s: %d more\n", conformance::TextOf(rule).id, count - kShownOfARule);
  }

private:
  std::map<Rule, int> counts_;
};

int Run(Options options) {
  const Scratch scratch;
  if (scratch.Path().empty()) {
    std::fputs("no directory for temporary files\n", stderr);
    return kUsage;
  }
  options.directory = scratch.Path();
  Printer printer;
  options.found = [&](const Finding& finding) { printer.Print(finding); };
  std::size_t calls = 0;
  options.calling = [&calls, trace = options.calling](const std::string& call) {
    ++calls;
    if (trace)
      trace(call);
  };
  const std::size_t count = conformance::Check(options);
  printer.PrintRest();
  std::printf("%zu findings in %zu calls\n", count, calls);
  return count == 0 ? kClean : kFindings;
}

void TraceTo(std::FILE* stream, Options& options) {
  options.calling = [stream](const std::string& call) {
    std::fprintf(stream, "%s\n", call.c_str());
    std::fflush(stream);
  };
}

} // namespace

int main(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const char* const argument = argv[i];
    if (std::strcmp(argument, "--help") == 0)
      return std::fputs(kUsageText, stdout) < 0 ? kUsage : kClean;
    if (std::strcmp(argument, "--list") == 0) {
      PrintRules();
      return kClean;
    }
    if (std::strcmp(argument, "--quick") == 0)
      options.quick = true;
    else if (std::strcmp(argument, "--ui") == 0)
      options.ui = true;
    else if (std::strcmp(argument, "--trace") == 0)
      TraceTo(stderr, options);
    else {
      std::fprintf(stderr, "%s is no option\n%s", argument, kUsageText);
      return kUsage;
    }
  }
  return Run(std::move(options));
}
