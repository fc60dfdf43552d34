// From one instrument of a market to the service's records of it. Names are not filled: they go by
// language.
#pragma once

#include "terminal/BaseAttrLayout.h"
#include "terminal/StandIn.h"

namespace standin {

void BuildInfo(const Instrument& instrument, const ExchInfo& exchange, SymbolInfo& info);
void BuildHead(const Instrument& instrument, const ExchInfo& exchange, BaseAttrHead& head);

} // namespace standin
