// Ids in upper case, as look-ups compare them, without a copy when there is nothing to change. By
// whole characters: the second byte of a double-byte character may equal a letter and stays as it
// is.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "platform/Text.h"
#include "symbolid/PackedText.h"

namespace tq {

// Holds the upper-cased form of an id. Longer texts than any real id are upper-cased on the heap.
using UpperBuffer = std::array<char, 64>;

// An upper-cased text with its first sixteen and its last eight bytes as words (PackHead,
// ShortText).
struct UpperId {
  std::string_view text;
  PackedText head;
  std::uint64_t tail;
};

// The general path of UpperCased. `text` is not empty.
UpperId UpperCasedCopy(CString& text, UpperBuffer& buffer);

// Upper-cases `text`. The result refers to `text` if that is in upper case already, to `buffer` if
// it is ASCII and fits, and otherwise to `text`, which is then changed. Valid while both live
// unchanged.
inline UpperId UpperCased(CString& text, UpperBuffer& buffer) {
  const std::string_view view = ViewOf(text);
  if (view.size() - kShortest <= sizeof(PackedText) - kShortest) {
    const ShortText packed = PackShort(view);
    if (IsUpperAscii({packed.low, packed.high}))
      return {view, {packed.low, packed.high}, packed.tail};
  }
  return view.empty() ? UpperId{view, {}, 0} : UpperCasedCopy(text, buffer);
}

// Upper-cases in place.
void MakeUpper(CString& text);

} // namespace tq
