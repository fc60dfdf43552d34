// Parses a resource.
#pragma once

#include <algorithm>
#include <cstring>

#include "tests/interface/win32/Resource.h"

// Reads a resource from its beginning; past the end everything is 0.
class ResourceReader {
public:
  explicit ResourceReader(const Resource& resource) : at_(resource.bytes), left_(resource.size) {}

  template <class T> T Take() {
    T value = 0;
    if (left_ < sizeof value)
      return Fail<T>();
    std::memcpy(&value, at_, sizeof value);
    Skip(sizeof value);
    return value;
  }

  std::wstring TakeText() {
    std::wstring text;
    for (WCHAR next = Take<WCHAR>(); next != 0; next = Take<WCHAR>())
      text += next;
    return text;
  }

  void Align() {
    const size_t over = taken_ % sizeof(DWORD);
    Skip(over == 0 ? 0 : std::min(sizeof(DWORD) - over, left_));
  }

  // Everything was read, except for the padding to a double word.
  bool IsAtEnd() const { return !failed_ && left_ < sizeof(DWORD); }

private:
  template <class T> T Fail() {
    failed_ = true;
    left_ = 0;
    return 0;
  }
  void Skip(size_t size) {
    at_ += size;
    left_ -= size;
    taken_ += size;
  }

  const unsigned char* at_;
  size_t left_;
  size_t taken_ = 0;
  bool failed_ = false;
};
