// Case and order of the characters of a CString.
#include "platform/framework/CString.h"

#include "platform/CodePage.h"

namespace {

// The first character that LETTER would change; `end` when there is none.
template <char (*LETTER)(char)> const char* FindChange(const char* at, const char* end) {
  for (; at != end; ++at) {
    if (LETTER(*at) != *at)
      return at;
    if (tq::CharLength(at, end) == 2)
      ++at;
  }
  return end;
}

} // namespace

template <char (*LETTER)(char)> CString& CString::ChangeCase() {
  const char* change = FindChange<LETTER>(m_text, End());
  if (change == End()) // nothing to change: the text stays shared
    return *this;
  const auto first = change - m_text;
  char* at = Writable(GetLength()) + first;
  const char* const end = End();
  for (; at != end; ++at) {
    *at = LETTER(*at);
    if (tq::CharLength(at, end) == 2)
      ++at;
  }
  return *this;
}

CString& CString::MakeUpper() {
  return ChangeCase<tq::ToUpperLetter>();
}

CString& CString::MakeLower() {
  return ChangeCase<tq::ToLowerLetter>();
}

CString& CString::MakeReverse() {
  if (GetLength() < 2)
    return *this;
  CString reversed;
  char* to = reversed.GetBufferSetLength(GetLength()) + GetLength();
  const char* const end = End();
  for (const char* at = m_text; at != end;) {
    const size_t length = tq::CharLength(at, end);
    to -= length;
    for (size_t i = 0; i < length; ++i)
      to[i] = at[i];
    at += length;
  }
  return *this = static_cast<CString&&>(reversed);
}
