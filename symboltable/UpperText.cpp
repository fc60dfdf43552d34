#include "symboltable/UpperText.h"

#include <algorithm>
#include <cstdint>

#include "symboltable/PackedText.h"

namespace tq {
namespace {

enum class Letters { Upper, SomeLower, DoubleByte };

Letters Classify(std::uint64_t word) {
  if ((word & TopBits) != 0)
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

std::string_view UpperCasedCopy(CString& text, UpperBuffer& buffer) {
  const std::string_view view = ViewOf(text);
  const Letters letters = Classify(view);
  if (letters == Letters::Upper)
    return view;
  if (letters == Letters::DoubleByte || view.size() > buffer.size()) {
    text.MakeUpper();
    return ViewOf(text);
  }
  for (std::size_t i = 0; i < view.size(); ++i)
    buffer[i] = ToUpperLetter(view[i]);
  return {buffer.data(), view.size()};
}

void MakeUpper(CString& text) {
  if (Classify(ViewOf(text)) != Letters::Upper)
    text.MakeUpper();
}

} // namespace tq
