// Common helpers of the framework's tests.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <ostream>

#include "platform/framework/tqFramework.h"

// Shows a string in a failed expectation.
inline void PrintTo(const CString& text, std::ostream* out) {
  *out << testing::PrintToString(text.GetString());
}

// Three Big5 characters whose trail byte is a backslash, which reveal most double-byte bugs. In
// code page 936 the same bytes are three other characters.
inline constexpr char kBackslashTrails[] = "\xB3\x5C\xA5\x5C\xBB\x5C";

// Counts the allocations of strings, arrays and maps while it lives.
class StorageCount {
public:
  StorageCount() : m_before(tq::SetStorageObserver(&Count)) { s_count = 0; }
  ~StorageCount() { tq::SetStorageObserver(m_before); }
  StorageCount(const StorageCount&) = delete;
  StorageCount& operator=(const StorageCount&) = delete;

  int Taken() const { return s_count; }

private:
  static void Count(size_t) { ++s_count; }

  static inline std::atomic<int> s_count{0};
  tq::StorageObserver m_before;
};
