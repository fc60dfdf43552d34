// Hash values of text that anybody may have written: ids of a file, of an import, of the user.
//
// The values depend on a secret of the process, so nobody can prepare thousands of ids that share
// one value and turn a hash table into a list. They serve one run and are never stored. Any thread;
// nothing allocates or fails.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/framework/FrameworkApi.h"

namespace tq {

// The secret: two odd numbers, other ones in every process.
struct HashSeed {
  std::uint64_t low;
  std::uint64_t high;
};
TQFRAMEWORK_API const HashSeed& ProcessHashSeed();

TQFRAMEWORK_API size_t SeededHash(const char* text, size_t length);
// The same for texts that differ in the case of ASCII letters only.
TQFRAMEWORK_API size_t SeededHashNoCase(const char* text, size_t length);

inline size_t SeededHash(std::string_view text) {
  return SeededHash(text.data(), text.size());
}
inline size_t SeededHashNoCase(std::string_view text) {
  return SeededHashNoCase(text.data(), text.size());
}

} // namespace tq
