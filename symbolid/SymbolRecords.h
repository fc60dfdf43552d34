// The packed records with which the terminal announces changed symbols.
#pragma once

#include <string_view>

#include "platform/framework/CString.h"

namespace tq {

constexpr int kSymbolRecordSize = 19;
// How many records of one announcement are used.
constexpr int kMaxSymbolChangeItems = 10;

// A view of `count` records at `records`, which the caller owns. Null or a negative count: none.
class SymbolRecords {
public:
  SymbolRecords(const char* records, int count);

  int Count() const { return count_; }
  // The symbol of a record, up to its NUL or the end of the record: cut at a whole character,
  // without blanks on either side.
  std::string_view At(int index) const;
  // All symbols, empty ones included, joined by ",". One trailing "," is dropped.
  CString Joined() const;

private:
  const char* records_;
  int count_;
};

} // namespace tq
