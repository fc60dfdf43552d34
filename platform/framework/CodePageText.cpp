// The functions of CodePage.h that need nothing of the platform but its lead bytes.
#include "platform/CodePage.h"

#include <cstring>

namespace tq {

namespace {

// True when the text ends with a lead byte without a trail: it must not match the first half of a
// character.
bool EndsInHalf(const char* text, size_t length) {
  return IsLeadByte(text[length - 1]) && IsCharStart(text, text + length - 1);
}

// A single-byte first character is found by memchr, and the few hits are checked. IsCharStart looks
// at no byte twice in all, since the byte at each hit is not a lead byte.
const char* FindFromSingle(const char* text, const char* end, const char* wanted, size_t length) {
  for (const char* at = text; length <= static_cast<size_t>(end - at); ++at) {
    const size_t room = static_cast<size_t>(end - at) - length + 1;
    at = static_cast<const char*>(std::memchr(at, *wanted, room));
    if (at == nullptr)
      return nullptr;
    if (std::memcmp(at, wanted, length) == 0 && IsCharStart(text, at))
      return at;
  }
  return nullptr;
}

const char* FindFromDouble(const char* text, const char* end, const char* wanted, size_t length) {
  for (const char* at = text; length <= static_cast<size_t>(end - at); at = NextChar(at, end)) {
    if (std::memcmp(at, wanted, length) == 0)
      return at;
  }
  return nullptr;
}

} // namespace

bool IsCharStart(const char* text, const char* at) {
  if (at == text || !IsLeadByte(at[-1]) || *at == '\0')
    return true;
  const char* run = at;
  while (run != text && IsLeadByte(run[-1]))
    --run;
  return (at - run) % 2 == 0;
}

const char* PreviousChar(const char* text, const char* at) {
  if (at - text < 2)
    return text;
  return IsCharStart(text, at - 1) ? at - 1 : at - 2;
}

size_t CutLength(const char* text, size_t length, size_t limit) {
  if (limit >= length)
    return length;
  return IsCharStart(text, text + limit) ? limit : limit - 1;
}

size_t CopyCut(char* dest, size_t size, const char* text) {
  if (size == 0)
    return 0;
  const size_t given = text == nullptr ? 0 : strnlen(text, size);
  const size_t kept = CutLength(text, given, size - 1);
  if (kept != 0)
    std::memmove(dest, text, kept);
  std::memset(dest + kept, 0, size - kept);
  return kept;
}

int CompareNoCase(const char* left, const char* right) {
  const char* a = left == nullptr ? "" : left;
  const char* b = right == nullptr ? "" : right;
  bool trail = false;
  for (;; ++a, ++b) {
    const char x = trail ? *a : ToLowerLetter(*a);
    const char y = trail ? *b : ToLowerLetter(*b);
    if (x != y)
      return static_cast<unsigned char>(x) < static_cast<unsigned char>(y) ? -1 : 1;
    if (x == '\0')
      return 0;
    trail = !trail && IsLeadByte(x);
  }
}

bool EqualNoCase(const char* left, size_t leftLength, const char* right, size_t rightLength) {
  if (leftLength != rightLength)
    return false;
  bool trail = false;
  for (size_t i = 0; i < leftLength; ++i) {
    const char x = left[i];
    if (x != right[i] && (trail || ToLowerLetter(x) != ToLowerLetter(right[i])))
      return false;
    trail = !trail && IsLeadByte(x);
  }
  return true;
}

const char* FindChar(const char* text, const char* end, char wanted) {
  return text == end ? nullptr : FindText(text, end, &wanted, 1);
}

const char* FindLastChar(const char* text, const char* end, char wanted) {
  if (text == end)
    return nullptr;
  if (IsLeadByte(wanted)) // a character of its own only where its trail is missing
    return end[-1] == wanted && IsCharStart(text, end - 1) ? end - 1 : nullptr;
  for (const char* at = end; at != text;) {
    --at;
    if (*at == wanted && IsCharStart(text, at))
      return at;
  }
  return nullptr;
}

const char* FindText(const char* text, const char* end, const char* wanted, size_t length) {
  if (length == 0)
    return text;
  if (length > static_cast<size_t>(end - text))
    return nullptr;
  if (EndsInHalf(wanted, length)) {
    const char* tail = end - length;
    return std::memcmp(tail, wanted, length) == 0 && IsCharStart(text, tail) ? tail : nullptr;
  }
  return IsLeadByte(*wanted) ? FindFromDouble(text, end, wanted, length)
                             : FindFromSingle(text, end, wanted, length);
}

} // namespace tq
