// What the checker found: which rule of a service header a call broke, and how that was seen.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace conformance {

enum class Rule {
#define TQ_RULE(name, id, header, sentence) name,
#include "Rules.inc"
#undef TQ_RULE
};

// The rule in words: a sentence of a service header.
struct RuleText {
  const char* id;
  const char* header;
  const char* sentence;
};
const std::vector<RuleText>& RuleTexts();
const RuleText& TextOf(Rule rule);

struct Finding {
  std::string call; // "VLGetSymbolInfos2(1, -1)"
  Rule rule;
  std::string seen;
};

struct Options {
  bool quick = false; // a sample of symbols, groups and searches instead of all of them
  bool ui = false;    // message boxes too, which somebody has to answer
  // An existing directory for the logger's files, without a separator at its end.
  std::string directory;
  // Told of each call before it is made, so that the last one is known where a service crashes. May
  // be empty.
  std::function<void(const std::string& call)> calling;
  std::function<void(const Finding& finding)> found;
};

// Bytes as a person can read them: what is not printable ASCII becomes \xNN. Null is "null".
std::string Shown(std::string_view bytes);
std::string Shown(const char* text);
std::string Shown(long number);
inline std::string Shown(int number) {
  return Shown(static_cast<long>(number));
}

// Notes the call that is about to be made; findings are about the latest one.
class Report {
public:
  explicit Report(const Options& options) : options_(options) {}

  template <class... Arguments> void Call(const char* operation, const Arguments&... arguments) {
    std::string text = std::string(operation) + "(";
    [[maybe_unused]] const char* separator = "";
    ((text += separator, text += Shown(arguments), separator = ", "), ...);
    Begin(text + ")");
  }

  // A finding about the latest call, or about an earlier one.
  void Found(Rule rule, const std::string& seen) { FoundIn(call_, rule, seen); }
  void FoundIn(const std::string& call, Rule rule, const std::string& seen);
  // A finding unless `kept`. Returns `kept`.
  bool Hold(bool kept, Rule rule, const std::string& seen);

  const std::string& LatestCall() const { return call_; }
  const Options& Asked() const { return options_; }
  std::size_t Count() const { return count_; }

private:
  void Begin(std::string call);

  const Options& options_;
  std::string call_;
  std::size_t count_ = 0;
};

} // namespace conformance
