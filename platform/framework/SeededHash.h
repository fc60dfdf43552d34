// Hash values of untrusted text: ids of a file, of an import, of the user.
//
// They depend on a random seed of the process, so nobody can craft thousands of ids that collide
// and turn a hash table into a list. They are valid in one process and never stored. Any thread;
// nothing allocates or fails.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/framework/FrameworkApi.h"

namespace tq {

// The seed: two odd numbers, different in every process.
struct HashSeed {
  std::uint64_t low;
  std::uint64_t high;
};
TQFRAMEWORK_API const HashSeed& ProcessHashSeed();

TQFRAMEWORK_API size_t SeededHash(const char* text, size_t length);
// Texts that differ only in the case of ASCII letters have equal values.
TQFRAMEWORK_API size_t SeededHashNoCase(const char* text, size_t length);

inline size_t SeededHash(std::string_view text) {
  return SeededHash(text.data(), text.size());
}
inline size_t SeededHashNoCase(std::string_view text) {
  return SeededHashNoCase(text.data(), text.size());
}

} // namespace tq
