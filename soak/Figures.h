// The figures as a table.
#pragma once

#include "soak/Ledger.h"
#include "soak/Soak.h"

namespace soak {

void PrintFigures(const Ledger& ledger, const Tally& tally, double seconds);
// In one line that the next one replaces, for somebody who looks on.
void PrintProgress(const Ledger& ledger, const Tally& tally, double seconds);
// Whether somebody does.
bool IsWatched();

} // namespace soak
