// The texts of a symbol that many symbols have in common: industry, currency, contract month and so
// on. Symbols with the same ones share a single record, which is never changed.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/framework/CString.h"

class CStaticKey;

namespace tq {

constexpr int kItemTextCount = 6;

// The position in ItemTexts of the text with a field code of tqStock, or -1.
int ItemTextIndex(int field);
// The position of the exchange's own code.
constexpr int kExchangeCodeText = 5;

struct ItemTexts {
  CString texts[kItemTextCount];
};

// Reads the texts of one symbol after the other and hands out one record for equal ones. It finds
// most, not all, of the equal ones again: symbols come sorted by kind, so that a bounded memory
// serves as well as a complete one. Made for one run over the service's records.
class ItemTextReader {
public:
  // What `key` has, or null when it has none of the texts. An exchange's own code that equals
  // `symbol` is left out and reported in `codeIsSymbol`, since most are and each would be a record
  // of its own.
  std::shared_ptr<const ItemTexts> Read(const CStaticKey& key, std::string_view symbol,
                                        bool& codeIsSymbol);

  // The first byte of one of the texts, a blank when `key` does not have it.
  char ReadLetter(const CStaticKey& key, int field);

private:
  std::shared_ptr<const ItemTexts> Shared(std::uint32_t hash);
  bool Matches(const ItemTexts& known) const;

  ItemTexts read_; // of the latest symbol; its room serves the next one
  CString letter_;
  std::vector<std::shared_ptr<const ItemTexts>> recent_;
};

} // namespace tq
