// A set of characters given as text, as the trimming, splitting and spanning operations take it.
// Internal.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tq {

class CharSet {
public:
  // `characters` must outlive the set, which reads it again; null is the empty set.
  explicit CharSet(const char* characters);

  // True when the character of `length` bytes at `at` is one of the set.
  bool Holds(const char* at, size_t length) const {
    return length == 1 ? HoldsSingle(*at) : m_doubles != m_end && HoldsDouble(at);
  }

  // The first character in [at, end) that is, or is not, in the set; `end` when there is none.
  const char* FindIn(const char* at, const char* end) const { return Walk(at, end, true); }
  const char* FindOutside(const char* at, const char* end) const { return Walk(at, end, false); }

  // The end of [at, end) once trailing characters of the set are trimmed.
  const char* TrimEnd(const char* at, const char* end) const;

private:
  bool HoldsSingle(char byte) const {
    const auto value = static_cast<unsigned char>(byte);
    return (m_singles[value / 64] >> (value % 64) & 1) != 0;
  }
  bool HoldsDouble(const char* at) const;
  const char* Walk(const char* at, const char* end, bool wanted) const;

  uint64_t m_singles[4] = {}; // a bit for each single-byte character
  const char* m_doubles;      // the first double-byte character; m_end when there is none
  const char* m_end;
};

} // namespace tq
