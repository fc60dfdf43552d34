// How the characters of a CString lie in memory: a header, then the characters and a NUL. CString
// holds the address of the characters; strings with the same text share them and count themselves.
#pragma once

#include <atomic>

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

#include "platform/framework/FrameworkApi.h"

namespace tq {

#if __has_include(<sys/single_threaded.h>)
// True while the process has one thread; locked instructions are saved then.
inline bool HasOneThread() {
  return __libc_single_threaded != 0;
}
#else
// On Windows the system does not tell, and each process has threads from the start.
constexpr bool HasOneThread() {
  return false;
}
#endif

// In front of the characters. `refs` is negative for the empty text, which all empty strings share
// uncounted and nobody writes to.
struct StringHeader {
  std::atomic<int> refs;
  int length;   // bytes of text, without the NUL
  int capacity; // bytes there is room for, without the NUL
};

struct EmptyString {
  StringHeader header;
  char text[4];
};

static_assert(sizeof(StringHeader) == 12 && sizeof(EmptyString) == 16);

extern TQFRAMEWORK_API EmptyString emptyString;

inline StringHeader* HeaderOf(char* text) {
  return reinterpret_cast<StringHeader*>(text) - 1;
}
inline const StringHeader* HeaderOf(const char* text) {
  return reinterpret_cast<const StringHeader*>(text) - 1;
}

// The characters behind a header.
inline char* TextOf(StringHeader* header) {
  return reinterpret_cast<char*>(header + 1);
}

inline char* EmptyText() {
  return TextOf(reinterpret_cast<StringHeader*>(&emptyString));
}

// Room for `capacity` bytes and a NUL; counted once, length 0, terminated.
TQFRAMEWORK_API char* AllocateText(int capacity);

// Ends one share of characters that are counted; the last one frees them.
TQFRAMEWORK_API void ReleaseSharedText(char* text);

// Takes one more share of the characters.
inline char* ShareText(char* text) {
  std::atomic<int>& refs = HeaderOf(text)->refs;
  const int count = refs.load(std::memory_order_relaxed);
  if (count < 0)
    return text;
  if (HasOneThread())
    refs.store(count + 1, std::memory_order_relaxed);
  else
    refs.fetch_add(1, std::memory_order_relaxed);
  return text;
}

// Ends one share; the last one frees.
inline void ReleaseText(char* text) {
  std::atomic<int>& refs = HeaderOf(text)->refs;
  const int count = refs.load(std::memory_order_relaxed);
  if (count < 0)
    return;
  if (count > 1 && HasOneThread())
    refs.store(count - 1, std::memory_order_relaxed);
  else
    ReleaseSharedText(text);
}

} // namespace tq
