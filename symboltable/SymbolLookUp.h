// How an id and an exchange name, as a person or a program writes them, lead to a symbol.
#pragma once

#include <string_view>

#include "symboltable/TableSlots.h"
#include "symboltable/UpperText.h"

namespace tq {

// What a bare symbol that several default exchanges hold means.
enum class BareSymbol { Refused, FirstDefault };

// The symbol, or null. `id` is not empty. Without `exchName` the id's
// suffix names the exchange, and failing that the default exchanges are asked.
const CSymbolItem* FindSymbol(const TableSlots& slots, const UpperText& id,
                              std::string_view exchName, BareSymbol rule);

// The exchange that `id` names by its suffix; empty when it names none.
std::string_view ExchangeIn(const TableSlots& slots, const UpperText& id);

} // namespace tq
