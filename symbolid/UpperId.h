// Upper-casing and comparison that ignores letter case, without a copy where there is nothing to
// change.
//
// Both go by whole characters: the second byte of a double-byte character may be an ASCII letter
// and is left as it is. Two texts are equal ignoring case when their upper-cased forms are equal.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "platform/Text.h"
#include "symbolid/PackedText.h"

namespace tq {

// Room for the upper-cased form of every id that a person or a service writes.
using UpperBuffer = std::array<char, 64>;

// A text with its first and last bytes as numbers.
struct UpperId {
  std::string_view text;
  PackedText head;
  // The last eight bytes. A shorter text is in the upper ones, and the lower ones say nothing.
  std::uint64_t tail;
};

// UpperCased for any text.
UpperId UpperCasedCopy(CString& text, UpperBuffer& buffer);

// `text` in upper case. The result lies in `text` itself when that is in upper case already, in
// `buffer` when it fits there and is plain ASCII, and else in `text`, which is changed then. It is
// valid while both live.
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
