// Construction, assignment, joining and buffers of CString.
#include "platform/framework/CString.h"

#include <cstring>

#include "platform/framework/TextLength.h"

using tq::CopyBytes;
using tq::LengthOf;
using tq::SumOf;

CString::CString(const char* text) : CString(text, LengthOf(text)) {}

CString::CString(const char* text, int length) : m_text(tq::EmptyText()) {
  if (text == nullptr || length <= 0)
    return;
  m_text = tq::AllocateText(length);
  CopyBytes(m_text, text, length);
  SetLength(length);
}

CString::CString(char letter, int repeat) : m_text(tq::EmptyText()) {
  if (repeat <= 0)
    return;
  m_text = tq::AllocateText(repeat);
  std::memset(m_text, letter, static_cast<size_t>(repeat));
  SetLength(repeat);
}

CString& CString::operator=(const char* text) {
  SetString(text);
  return *this;
}

CString& CString::operator=(char letter) {
  SetString(&letter, 1);
  return *this;
}

void CString::SetString(const char* text) {
  SetString(text, LengthOf(text));
}

void CString::SetString(const char* text, int length) {
  const int kept = text == nullptr || length < 0 ? 0 : length;
  if (kept == 0 && IsEmpty()) // services hand out empty texts most often
    return;
  if (!IsWritable(kept)) { // what is assigned may be a part of the text that is given up
    *this = CString(text, kept);
    return;
  }
  CopyBytes(m_text, text, kept);
  SetLength(kept);
}

void CString::SetAt(int index, char byte) {
  if (Holds(index))
    Writable(GetLength())[index] = byte;
}

CString& CString::operator+=(const CString& other) {
  if (IsEmpty() && !IsWritable(other.GetLength()))
    return *this = other;
  Append(other.m_text, other.GetLength());
  return *this;
}

CString& CString::operator+=(const char* text) {
  Append(text);
  return *this;
}

CString& CString::operator+=(char letter) {
  Append(&letter, 1);
  return *this;
}

void CString::Append(const char* text) {
  Append(text, LengthOf(text));
}

void CString::Append(const char* text, int length) {
  if (text != nullptr && length > 0)
    Exchange(GetLength(), 0, text, length);
}

char* CString::GetBuffer(int minimum) {
  const int length = GetLength();
  if (m_text == tq::EmptyText()) // shared by all empty strings, and the caller will write
    return m_text = tq::AllocateText(minimum < 0 ? 0 : minimum);
  return Writable(minimum > length ? minimum : length);
}

char* CString::GetBufferSetLength(int length) {
  const int wanted = length < 0 ? 0 : length;
  const int before = GetLength();
  char* const buffer = GetBuffer(wanted);
  if (wanted > before)
    std::memset(buffer + before, 0, static_cast<size_t>(wanted - before));
  SetLength(wanted);
  return buffer;
}

void CString::ReleaseBuffer(int length) {
  if (m_text == tq::EmptyText())
    return;
  const int capacity = Header()->capacity;
  if (length >= 0) {
    SetLength(length < capacity ? length : capacity);
    return;
  }
  m_text[capacity] = '\0';
  SetLength(LengthOf(m_text));
}

void CString::Preallocate(int capacity) {
  if (capacity > GetLength())
    Writable(capacity);
}

int CString::Clamp(int position) const noexcept {
  if (position < 0)
    return 0;
  return position < GetLength() ? position : GetLength();
}

bool CString::IsWritable(int capacity) const noexcept {
  return Header()->refs.load(std::memory_order_acquire) == 1 && capacity <= Header()->capacity;
}

char* CString::Writable(int capacity) {
  if (IsWritable(capacity))
    return m_text;
  const int length = GetLength();
  char* const copy = tq::AllocateText(capacity);
  CopyBytes(copy, m_text, length);
  tq::ReleaseText(m_text);
  m_text = copy;
  SetLength(length);
  return m_text;
}

void CString::SetLength(int length) noexcept {
  if (m_text == tq::EmptyText())
    return;
  tq::HeaderOf(m_text)->length = length;
  m_text[length] = '\0';
}

// Replaces `removed` bytes at `index` by `length` bytes of text.
void CString::Exchange(int index, int removed, const char* text, int length) {
  const int before = GetLength();
  const int tail = before - index - removed;
  const int after = SumOf(before - removed, length);
  const bool inside = text >= m_text && text <= m_text + before;
  if (IsWritable(after) && (!inside || tail == 0)) {
    CopyBytes(m_text + index + length, m_text + index + removed, tail);
    CopyBytes(m_text + index, text, length);
    SetLength(after);
    return;
  }
  // Appending grows the capacity by half, so that many appends take linear time.
  const int room = before != 0 && after > before ? SumOf(after, before / 2) : after;
  char* const joined = tq::AllocateText(room);
  CopyBytes(joined, m_text, index);
  CopyBytes(joined + index, text, length);
  CopyBytes(joined + index + length, m_text + index + removed, tail);
  tq::ReleaseText(m_text);
  m_text = joined;
  SetLength(after);
}

namespace {

CString Join(const char* left, int leftLength, const char* right, int rightLength) {
  CString joined;
  joined.Preallocate(SumOf(leftLength, rightLength));
  joined.Append(left, leftLength);
  joined.Append(right, rightLength);
  return joined;
}

} // namespace

CString operator+(const CString& left, const CString& right) {
  if (right.IsEmpty())
    return left;
  if (left.IsEmpty())
    return right;
  return Join(left, left.GetLength(), right, right.GetLength());
}

CString operator+(const CString& left, const char* right) {
  return Join(left, left.GetLength(), right, LengthOf(right));
}

CString operator+(const char* left, const CString& right) {
  return Join(left, LengthOf(left), right, right.GetLength());
}

CString operator+(const CString& left, char right) {
  return Join(left, left.GetLength(), &right, 1);
}

CString operator+(char left, const CString& right) {
  return Join(&left, 1, right, right.GetLength());
}
