// The packed symbol records in which the terminal announces changed symbols.
#pragma once

#include <string_view>

#include "platform/framework/CString.h"

namespace tq {

constexpr int kSymbolRecordSize = 19;
// Records of one announcement that are looked at.
constexpr int kMaxSymbolChangeItems = 10;

// `count` records at `records`, which stays the caller's. Null or a negative count are no records.
class SymbolRecords {
public:
  SymbolRecords(const char* records, int count);

  int Count() const { return count_; }
  // The symbol of a record: to its NUL, the whole record without one; cut at a whole character,
  // blanks on either side left out.
  std::string_view At(int index) const;
  // All of them joined by ",", empty ones included, but for one "," at the end.
  CString Joined() const;

private:
  const char* records_;
  int count_;
};

} // namespace tq
