// How an id and an exchange name, as a person or a program writes them, lead to a symbol.
#pragma once

#include <string_view>

#include "symboltable/TableSlots.h"
#include "symboltable/UpperText.h"

namespace tq {

// What a bare symbol that several default exchanges hold means.
enum class BareSymbol { Refused, FirstDefault };

struct FoundSymbol {
  const CSymbolItem* item; // null when there is none
  bool bySuffix;           // on the exchange whose name the id's suffix is
};

// The symbol. `id` is not empty. Without `exchName` the id's
// suffix names the exchange, and failing that the default exchanges are asked.
FoundSymbol FindSymbol(const TableSlots& slots, const UpperText& id, std::string_view exchName,
                       BareSymbol rule);

// Whether the full id of the symbol that FindSymbol found for `id` is certainly that very text.
bool IsIdOf(const FoundSymbol& found, const UpperText& id);

// The exchange that `id` names by its suffix; empty when it names none.
std::string_view ExchangeIn(const TableSlots& slots, const UpperText& id);

} // namespace tq
