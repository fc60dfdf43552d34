// Changing a part of a CString: replacing, inserting, removing, trimming.
#include "platform/framework/CString.h"

#include "platform/CodePage.h"
#include "platform/framework/CharSet.h"
#include "platform/framework/TextLength.h"

namespace {

constexpr const char* kBlanks = " \t\n\v\f\r";

int CountOf(const char* at, const char* end, const char* what, int length) {
  const auto size = static_cast<size_t>(length);
  int count = 0;
  while ((at = tq::FindText(at, end, what, size)) != nullptr) {
    ++count;
    at += length;
  }
  return count;
}

} // namespace

int CString::Replace(char what, char with) {
  int count = 0;
  int at = what == with ? -1 : Find(what);
  while (at >= 0) {
    ++count;
    Writable(GetLength())[at] = with;
    const char* found = tq::FindChar(m_text + at + 1, End(), what);
    at = found == nullptr ? -1 : static_cast<int>(found - m_text);
  }
  return count;
}

int CString::Replace(const char* what, const char* with) {
  const int length = tq::LengthOf(what);
  const int count = length == 0 ? 0 : CountOf(m_text, End(), what, length);
  if (count == 0)
    return 0;
  const int added = tq::LengthOf(with);
  const long long change = static_cast<long long>(added - length) * count;
  if (change > INT_MAX - GetLength())
    tq::OutOfMemory();
  CString replaced;
  replaced.Preallocate(GetLength() + static_cast<int>(change));
  const char* at = m_text;
  for (int i = 0; i < count; ++i) {
    const char* found = tq::FindText(at, End(), what, static_cast<size_t>(length));
    replaced.Append(at, static_cast<int>(found - at));
    replaced.Append(with, added);
    at = found + length;
  }
  replaced.Append(at, static_cast<int>(End() - at));
  *this = static_cast<CString&&>(replaced);
  return count;
}

int CString::Remove(char letter) {
  int from = Find(letter);
  if (from < 0)
    return 0;
  char* to = Writable(GetLength()) + from;
  const char* const end = End();
  int count = 0;
  for (const char* at = m_text + from; at != end;) {
    const size_t length = tq::CharLength(at, end);
    if (length == 1 && *at == letter)
      ++count;
    else
      for (size_t i = 0; i < length; ++i)
        *to++ = at[i];
    at += length;
  }
  SetLength(GetLength() - count);
  return count;
}

int CString::Insert(int index, char letter) {
  const char text[] = {letter, '\0'};
  return Insert(index, letter == '\0' ? nullptr : text);
}

int CString::Insert(int index, const char* text) {
  const int length = tq::LengthOf(text);
  int at = Clamp(index);
  if (!tq::IsCharStart(m_text, m_text + at))
    --at;
  if (length != 0)
    Exchange(at, 0, text, length);
  return GetLength();
}

int CString::Delete(int index, int count) {
  int from = Clamp(index);
  const int left = GetLength() - from;
  const int taken = count < left ? count : left;
  if (taken <= 0)
    return GetLength();
  int to = from + taken;
  if (!tq::IsCharStart(m_text, m_text + from))
    --from;
  if (!tq::IsCharStart(m_text, m_text + to))
    ++to;
  Exchange(from, to - from, nullptr, 0);
  return GetLength();
}

void CString::Truncate(int length) {
  const auto size = static_cast<size_t>(GetLength());
  const size_t kept = tq::CutLength(m_text, size, static_cast<size_t>(Clamp(length)));
  Keep(m_text, m_text + kept);
}

void CString::Keep(const char* from, const char* to) {
  const int length = static_cast<int>(to - from);
  if (length != GetLength())
    SetString(from, length);
}

CString& CString::Trim() {
  return Trim(kBlanks);
}
CString& CString::TrimLeft() {
  return TrimLeft(kBlanks);
}
CString& CString::TrimRight() {
  return TrimRight(kBlanks);
}

CString& CString::Trim(char letter) {
  const char set[] = {letter, '\0'};
  return Trim(set);
}

CString& CString::TrimLeft(char letter) {
  const char set[] = {letter, '\0'};
  return TrimLeft(set);
}

CString& CString::TrimRight(char letter) {
  const char set[] = {letter, '\0'};
  return TrimRight(set);
}

CString& CString::Trim(const char* set) {
  const tq::CharSet characters(set);
  const char* from = characters.FindOutside(m_text, End());
  Keep(from, characters.TrimEnd(from, End()));
  return *this;
}

CString& CString::TrimLeft(const char* set) {
  Keep(tq::CharSet(set).FindOutside(m_text, End()), End());
  return *this;
}

CString& CString::TrimRight(const char* set) {
  Keep(m_text, tq::CharSet(set).TrimEnd(m_text, End()));
  return *this;
}
