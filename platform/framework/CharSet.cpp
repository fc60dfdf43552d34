#include "platform/framework/CharSet.h"

#include <cstring>

#include "platform/CodePage.h"

namespace tq {

CharSet::CharSet(const char* characters) {
  const char* at = characters == nullptr ? "" : characters;
  m_end = at + std::strlen(at);
  m_doubles = m_end;
  while (at != m_end) {
    const size_t length = CharLength(at, m_end);
    const auto value = static_cast<unsigned char>(*at);
    if (length == 1)
      m_singles[value / 64] |= uint64_t{1} << (value % 64);
    else if (m_doubles == m_end)
      m_doubles = at;
    at += length;
  }
}

bool CharSet::HoldsDouble(const char* at) const {
  return FindText(m_doubles, m_end, at, 2) != nullptr;
}

const char* CharSet::Walk(const char* at, const char* end, bool wanted) const {
  while (at != end) {
    const size_t length = CharLength(at, end);
    if (Holds(at, length) == wanted)
      return at;
    at += length;
  }
  return end;
}

const char* CharSet::TrimEnd(const char* at, const char* end) const {
  if (m_doubles == m_end) { // single bytes only: backwards, which usually stops at once
    while (end != at && HoldsSingle(end[-1]) && IsCharStart(at, end - 1))
      --end;
    return end;
  }
  const char* kept = at;
  while (at != end) {
    const size_t length = CharLength(at, end);
    if (!Holds(at, length))
      kept = at + length;
    at += length;
  }
  return kept;
}

} // namespace tq
