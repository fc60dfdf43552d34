// How an id and an exchange name, as a person or a program writes them, lead to a symbol.
#pragma once

#include <string_view>

#include "symbolid/UpperId.h"
#include "symboltable/ExchangeTables.h"

namespace tq {

// What a bare symbol that several default exchanges hold means.
enum class BareSymbol { Refused, FirstDefault };

// A symbol that was looked for. Its item's memory has not been touched.
struct FoundSymbol {
  const CSymbolTable* table = nullptr; // null when there is none
  CSymbolTable::Place place = CSymbolTable::kNoSymbol;
  bool bySuffix = false; // on the exchange whose name the id's suffix is

  explicit operator bool() const { return table != nullptr; }
  const CSymbolItem& Item() const { return *table->At(place); }
};

// FindSymbol in all cases.
FoundSymbol FindAnySymbol(const ExchangeTables& slots, const UpperId& id, std::string_view exchName,
                          BareSymbol rule);

// Answers for a full id of some bytes of ASCII whose suffix is an exchange's name, as nearly all
// are that are asked for, without a branch that differs from one to the next. False for any other
// id.
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
  const CSymbolTable::Place place = table->FindCode(CodeOf(dot, CutHead(id.head, dot)));
  if (place != CSymbolTable::kNoSymbol)
    found = {table, place, true};
  return true;
}

// The symbol. `id` is not empty. Without `exchName` the id's suffix names the exchange, and failing
// that the default exchanges are asked.
inline FoundSymbol FindSymbol(const ExchangeTables& slots, const UpperId& id,
                              std::string_view exchName, BareSymbol rule) {
  FoundSymbol found;
  if (exchName.empty() && FindByShortId(slots, id, found))
    return found;
  return FindAnySymbol(slots, id, exchName, rule);
}

// Whether the full id of the symbol that FindSymbol found for `id` is certainly that very text.
bool IsIdOf(const FoundSymbol& found, const UpperId& id);

// The exchange that `id` names by its suffix; empty when it names none.
std::string_view ExchangeIn(const ExchangeTables& slots, const UpperId& id);

} // namespace tq
