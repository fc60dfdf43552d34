// Texts that many symbols have in common: industry, currency, contract month and so on. Symbols with
// equal texts share one immutable record.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/framework/CString.h"

class CStaticKey;

namespace tq {

constexpr int kItemTextCount = 6;

// The index in ItemTexts of a field (a Field code of tqStock); -1 for a field that is not there.
int ItemTextIndex(int field);
// The index of the exchange's own code.
constexpr int kExchangeCodeText = 5;

struct ItemTexts {
  CString texts[kItemTextCount];
};

// Reads the texts of symbols and interns them, best-effort, in a cache of fixed size: since the
// service lists symbols by kind, equal texts come close together. One reader serves one pass over
// the service's records.
class ItemTextReader {
public:
  // The texts of `key`; null when it has none of them. An exchange's own code that equals `symbol`,
  // as most do, is left out and reported in `codeIsSymbol`: no two symbols could share it.
  std::shared_ptr<const ItemTexts> Read(const CStaticKey& key, std::string_view symbol,
                                        bool& codeIsSymbol);

  // The first byte of a field's text; a blank when `key` does not have the field.
  char ReadLetter(const CStaticKey& key, int field);

private:
  std::shared_ptr<const ItemTexts> Shared(std::uint32_t hash);
  bool Matches(const ItemTexts& known) const;

  ItemTexts read_; // the latest symbol's; the strings' memory is reused for the next one
  CString letter_;
  std::vector<std::shared_ptr<const ItemTexts>> recent_;
};

} // namespace tq
