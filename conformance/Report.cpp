#include "Report.h"

#include <utility>

namespace conformance {

const std::vector<RuleText>& RuleTexts() {
  static const std::vector<RuleText> texts = {
#define TQ_RULE(name, id, header, sentence) {id, header, sentence},
#include "Rules.inc"
#undef TQ_RULE
  };
  return texts;
}

const RuleText& TextOf(Rule rule) {
  return RuleTexts()[static_cast<std::size_t>(rule)];
}

std::string Shown(std::string_view bytes) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text = "\"";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= ' ' && byte < 0x7f)
      text += c;
    else
      text.append("\\x").append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 15]);
  }
  return text + '"';
}

std::string Shown(const char* text) {
  return text == nullptr ? "null" : Shown(std::string_view(text));
}

std::string Shown(long number) {
  return std::to_string(number);
}

void Report::Begin(std::string call) {
  call_ = std::move(call);
  if (options_.calling)
    options_.calling(call_);
}

void Report::FoundIn(const std::string& call, Rule rule, const std::string& seen) {
  ++count_;
  if (options_.found)
    options_.found({call, rule, seen});
}

bool Report::Hold(bool kept, Rule rule, const std::string& seen) {
  if (!kept)
    Found(rule, seen);
  return kept;
}

} // namespace conformance
