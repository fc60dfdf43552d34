// Comparing, searching and cutting of CString: everything that leaves the string as it is.
#include "platform/framework/CString.h"

#include <cstring>

#include "platform/CodePage.h"
#include "platform/framework/CharSet.h"
#include "platform/framework/TextLength.h"

namespace tq {

namespace {

int CompareBytes(const char* left, size_t leftLength, const char* right, size_t rightLength) {
  const size_t common = leftLength < rightLength ? leftLength : rightLength;
  const int order = std::memcmp(left, right, common);
  if (order != 0 || leftLength == rightLength)
    return order;
  return leftLength < rightLength ? -1 : 1;
}

size_t SizeOf(const CString& text) {
  return static_cast<size_t>(text.GetLength());
}

} // namespace

int CompareText(const CString& left, const CString& right) {
  return CompareBytes(left, SizeOf(left), right, SizeOf(right));
}

int CompareText(const CString& left, const char* right) {
  const char* text = right == nullptr ? "" : right;
  return CompareBytes(left, SizeOf(left), text, std::strlen(text));
}

} // namespace tq

namespace {

int PositionOf(const CString& text, const char* found) {
  return found == nullptr ? -1 : static_cast<int>(found - text.GetString());
}

} // namespace

int CString::Compare(const char* other) const {
  return tq::CompareText(*this, other);
}

int CString::CompareNoCase(const char* other) const {
  return tq::CompareNoCase(m_text, other);
}

// The bytes in [from, to) without a character that either end splits.
CString CString::Part(const char* from, const char* to) const {
  const char* first = tq::IsCharStart(m_text, from) ? from : from + 1;
  const char* last = tq::IsCharStart(m_text, to) ? to : to - 1;
  if (first == m_text && last == End())
    return *this;
  return first < last ? CString(first, static_cast<int>(last - first)) : CString();
}

CString CString::Left(int count) const {
  return Part(m_text, m_text + Clamp(count));
}

CString CString::Right(int count) const {
  return Part(End() - Clamp(count), End());
}

CString CString::Mid(int first) const {
  return Part(m_text + Clamp(first), End());
}

CString CString::Mid(int first, int count) const {
  const int from = Clamp(first);
  const int left = GetLength() - from;
  const int taken = count < 0 ? 0 : count < left ? count : left;
  return taken == 0 ? CString() : Part(m_text + from, m_text + from + taken);
}

CString CString::SpanIncluding(const char* set) const {
  return Part(m_text, tq::CharSet(set).FindOutside(m_text, End()));
}

CString CString::SpanExcluding(const char* set) const {
  return Part(m_text, tq::CharSet(set).FindIn(m_text, End()));
}

int CString::Find(char letter, int start) const {
  if (start > GetLength())
    return -1;
  const char* from = m_text + Clamp(start);
  if (!tq::IsCharStart(m_text, from))
    ++from;
  return PositionOf(*this, tq::FindChar(from, End(), letter));
}

int CString::Find(const char* text, int start) const {
  if (start > GetLength())
    return -1;
  const char* from = m_text + Clamp(start);
  if (!tq::IsCharStart(m_text, from))
    ++from;
  const auto length = static_cast<size_t>(tq::LengthOf(text));
  return PositionOf(*this, tq::FindText(from, End(), text, length));
}

int CString::ReverseFind(char letter) const {
  return PositionOf(*this, tq::FindLastChar(m_text, End(), letter));
}

int CString::FindOneOf(const char* set) const {
  const char* found = tq::CharSet(set).FindIn(m_text, End());
  return found == End() ? -1 : PositionOf(*this, found);
}

CString CString::Tokenize(const char* separators, int& start) const {
  const bool ended = start < 0 || start >= GetLength();
  const tq::CharSet set(separators);
  const char* const end = End();
  const char* from = ended ? end : m_text + start;
  if (!tq::IsCharStart(m_text, from))
    ++from;
  from = set.FindOutside(from, end);
  if (from == end) {
    start = -1;
    return CString();
  }
  const char* const to = set.FindIn(from, end);
  const char* const next = to == end ? end : tq::NextChar(to, end);
  start = PositionOf(*this, next);
  return Part(from, to);
}
