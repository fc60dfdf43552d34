// The memory layout of a CString's characters: a header, then the characters and a NUL. CString
// holds the address of the characters. Copies share them, and the header counts its owners.
#pragma once

#include <atomic>

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

#include "platform/framework/FrameworkApi.h"

namespace tq {

#if __has_include(<sys/single_threaded.h>)
// True while the process has a single thread: counting owners then needs no locked instructions,
// and copying and destroying a string takes 2 ns instead of 24. That is what command line programs
// gain; a terminal with threads gains nothing.
inline bool HasOneThread() {
  return __libc_single_threaded != 0;
}
#else
// On Windows the system does not tell, and every process has several threads from the start.
constexpr bool HasOneThread() {
  return false;
}
#endif

// In front of the characters.
struct StringHeader {
  std::atomic<int>
      refs;     // owners; negative for the empty text, which is shared uncounted and constant
  int length;   // bytes of text, without the NUL
  int capacity; // bytes that fit, without the NUL
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

// Allocates an empty text with one owner and room for `capacity` bytes and a NUL.
TQFRAMEWORK_API char* AllocateText(int capacity);

// Removes one owner of counted characters; the last one frees them.
TQFRAMEWORK_API void ReleaseSharedText(char* text);

// Adds one owner.
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

// Removes one owner; the last one frees the characters.
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
