// Holdings: symbol ids joined by ",". Cleans up the service's text and merges several.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/framework/CString.h"

namespace tq {

// The trading-system proxy's text without blanks around ids and without empty pieces. Order, letter
// case and repetitions stay. Empty for a null text.
CString TidyHoldings(const char* text);

// Merges the holdings of several accounts: each id once, in order of first occurrence, compared
// byte by byte. A hash table with open addressing over the merged text, so that an id costs no
// allocation of its own.
class MergedHoldings {
public:
  // `holdings` comes from TidyHoldings.
  void Add(const CString& holdings);
  CString Text() const;
  // Table entries examined so far, for look-ups and rehashing: a few for each id, whatever the ids
  // are.
  size_t Steps() const { return steps_; }

private:
  // An id as a range of text_. A length of 0 marks a free slot.
  struct Slot {
    uint32_t hash;
    uint32_t begin;
    uint32_t length;
  };
  void AddId(std::string_view id);
  bool IsAt(const Slot& slot, uint32_t hash, std::string_view id) const;
  void Grow();

  std::string text_;
  std::vector<Slot> slots_; // the size is a power of two; at most half are in use
  size_t count_ = 0;
  size_t steps_ = 0;
};

} // namespace tq
