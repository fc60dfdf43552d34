// Look-up of a symbol by an id and an exchange name as a person or a program writes them.
#pragma once

#include <string_view>

#include "symbolid/UpperId.h"
#include "symboltable/ExchangeTables.h"

namespace tq {

// How a bare symbol that several default exchanges hold is resolved.
enum class BareSymbol { Refused, FirstDefault };

// The result of a look-up. The item's memory has not been touched.
struct FoundSymbol {
  const CSymbolTable* table = nullptr; // null: nothing was found
  CSymbolTable::Position position = CSymbolTable::kNoSymbol;
  bool bySuffix = false; // found on the exchange that the id's suffix names

  explicit operator bool() const { return table != nullptr; }
  const CSymbolItem& Item() const { return *table->At(position); }
};

// The general path of FindSymbol.
FoundSymbol FindAnySymbol(const ExchangeTables& slots, const UpperId& id, std::string_view exchName,
                          BareSymbol rule);

// Fast path: ASCII ids of up to sixteen bytes with an exchange's name as suffix, as nearly all ids
// are. False: use the general path.
inline bool FindByShortId(const ExchangeTables& slots, const UpperId& id, FoundSymbol& found) {
  if (id.text.size() > sizeof id.head || ((id.head.low | id.head.high) & kTopBits) != 0)
    return false;
  const std::size_t dot = LastDot(id.head);
  const std::size_t suffix = id.text.size() - dot - 1;
  if (dot > kCodedBytes || suffix - 1 >= sizeof id.tail)
    return false;
  const int slot = slots.FindNameInTail(id.tail, suffix);
  if (slot == ExchangeTables::kNone)
    return false;
  const CSymbolTable* const table = slots.At(slot);
  const CSymbolTable::Position position = table->FindCode(CodeOf(dot, CutHead(id.head, dot)));
  if (position != CSymbolTable::kNoSymbol)
    found = {table, position, true};
  return true;
}

// Looks a symbol up. `id` is not empty. Without `exchName` the id's suffix names the exchange; without
// such a suffix the default exchanges are searched.
inline FoundSymbol FindSymbol(const ExchangeTables& slots, const UpperId& id,
                              std::string_view exchName, BareSymbol rule) {
  FoundSymbol found;
  if (exchName.empty() && FindByShortId(slots, id, found))
    return found;
  return FindAnySymbol(slots, id, exchName, rule);
}

// Whether the full id of the symbol that FindSymbol found for `id` is known to equal `id`. False does
// not mean that it differs.
bool IsIdOf(const FoundSymbol& found, const UpperId& id);

// The exchange named by the suffix of `id`; empty when there is none.
std::string_view ExchangeIn(const ExchangeTables& slots, const UpperId& id);

} // namespace tq
