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

// Eight bytes of a string's block that begin at most eight in front of its text. There lie the
// length and the room of the header, which nobody writes to while the string is shared; the count
// of its owners, which other threads may be counting, lies in front of them.
constexpr int kReadableBefore = sizeof(std::uint64_t);
static_assert(offsetof(StringHeader, refs) + sizeof(StringHeader::refs) + kReadableBefore <=
              sizeof(StringHeader));
inline std::uint64_t WordAt(const CString& text, int position) {
  const char* const block = reinterpret_cast<const char*>(HeaderOf(text.GetString()));
  std::uint64_t word;
  std::memcpy(&word, block + (static_cast<int>(sizeof(StringHeader)) + position), sizeof word);
  return word;
}

// The last eight bytes of a string that is not empty. In front of a short text its header is read,
// so that one load serves every length.
constexpr int TailPosition(int length) {
  return length - static_cast<int>(sizeof(std::uint64_t));
}
inline std::uint64_t TailOf(const CString& text) {
  return WordAt(text, TailPosition(text.GetLength()));
}

// Where the word is read that goes in front of the tail. All of it is shifted out for texts of up
// to eight bytes, which the tail holds: what is read there then does not matter.
constexpr int BeforePosition(int length) {
  constexpr int half = sizeof(std::uint64_t);
  return std::max(length, half) - 2 * half;
}

// PackHead of a string of one to sixteen bytes with that tail, without a branch on its length,
// which differs from id to id.
inline PackedText HeadOfShort(const CString& text, std::uint64_t tail) {
  constexpr int half = sizeof tail;
  const int length = text.GetLength();
  const std::uint64_t before = WordAt(text, BeforePosition(length));
  const auto unused = static_cast<unsigned>(2 * half - length);
  const WideNumber text16 = ShiftRight({before, tail}, 8 * unused);
  return {text16.low, text16.high};
}

// UpperCased for texts that are not short and in upper case.
UpperId UpperCasedCopy(CString& text, UpperBuffer& buffer);

// `text` in upper case. The result lies in `text` itself when that is in upper case already, in
// `buffer` when it fits there and is plain ASCII, and else in `text`, which is changed then. It is
// valid while both live.
inline UpperId UpperCased(CString& text, UpperBuffer& buffer) {
  const std::string_view view = ViewOf(text);
  if (view.empty())
    return {view, {}, 0};
  if (view.size() <= sizeof(PackedText)) {
    const std::uint64_t tail = TailOf(text);
    const PackedText head = HeadOfShort(text, tail);
    if (IsUpperAscii(head))
      return {view, head, tail};
  }
  return UpperCasedCopy(text, buffer);
}

// Upper-cases in place.
void MakeUpper(CString& text);

} // namespace tq
