// Makes the service's records of an instrument of the market, without names, which depend on the
// language.
#pragma once

#include "terminal/BaseAttrLayout.h"
#include "terminal/StandIn.h"

namespace standin {

void BuildInfo(const Instrument& instrument, const ExchInfo& exchange, SymbolInfo& info);
void BuildHead(const Instrument& instrument, const ExchInfo& exchange, BaseAttrHead& head);

} // namespace standin
