#include "symbolid/UpperId.h"

#include <algorithm>
#include <cstdint>

#include "symbolid/PackedText.h"

namespace tq {
namespace {

enum class Letters { Upper, SomeLower, DoubleByte };

Letters Classify(std::uint64_t word) {
  if ((word & kTopBits) != 0)
    return Letters::DoubleByte;
  return LowerLetters(word) != 0 ? Letters::SomeLower : Letters::Upper;
}

Letters Classify(std::string_view text) {
  Letters result = Letters::Upper;
  while (!text.empty()) {
    const Letters part = Classify(PackWord(text));
    if (part == Letters::DoubleByte)
      return part;
    if (part == Letters::SomeLower)
      result = part;
    text.remove_prefix(std::min(text.size(), sizeof(std::uint64_t)));
  }
  return result;
}

} // namespace

UpperId UpperCasedCopy(CString& text, UpperBuffer& buffer) {
  std::string_view view = ViewOf(text);
  const Letters letters = Classify(view);
  if (letters == Letters::DoubleByte ||
      (letters == Letters::SomeLower && view.size() > buffer.size())) {
    text.MakeUpper();
    view = ViewOf(text);
  } else if (letters == Letters::SomeLower) {
    std::transform(view.begin(), view.end(), buffer.begin(), ToUpperLetter);
    view = {buffer.data(), view.size()};
  }
  constexpr std::size_t word = sizeof(std::uint64_t);
  const std::uint64_t tail = view.size() >= word ? PackWord(view.substr(view.size() - word))
                                                 : PackWord(view) << 8 * (word - view.size());
  return {view, PackHead(view), tail};
}

void MakeUpper(CString& text) {
  if (Classify(ViewOf(text)) != Letters::Upper)
    text.MakeUpper();
}

} // namespace tq
