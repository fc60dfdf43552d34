// Holdings as texts of symbol ids joined by ",": taken from the service, and put together.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/framework/CString.h"

namespace tq {

// The trading-system proxy's text with the blanks around ids and the empty pieces left out. Order,
// letter case and repetitions stay. A null text has none.
CString TidyHoldings(const char* text);

// The holdings of several accounts as one text: each id where it is met first, compared byte by
// byte.
class MergedHoldings {
public:
  // `holdings` is tidy and not longer than any CString.
  void Add(const CString& holdings);
  CString Text() const;
  // Entries that were looked at so far, to find ids and to make room: a few for each id, whatever
  // the ids are.
  size_t Steps() const { return steps_; }

private:
  // An id of text_; a length of 0 is a free slot, for no id is empty.
  struct Slot {
    uint32_t hash;
    uint32_t begin;
    uint32_t length;
  };
  void AddId(std::string_view id);
  bool IsAt(const Slot& slot, uint32_t hash, std::string_view id) const;
  void Grow();

  std::string text_;
  std::vector<Slot> slots_; // a power of two, at most half of them in use
  size_t count_ = 0;
  size_t steps_ = 0;
};

} // namespace tq
