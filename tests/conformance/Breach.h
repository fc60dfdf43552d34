// Faults that are planted in the services, each with the rule that it breaks.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "conformance/Report.h"
#include "terminal/StandIn.h"

struct Breach {
  const char* name;
  conformance::Rule rule;
  std::function<void()> plant; // with FaultMarket() set
  // Rules that the fault breaks as well, in the same bytes or in consequence.
  std::set<conformance::Rule> following = {};
};

// Two exchanges' stocks, contracts with extended attributes, accounts, a group with a sub-group,
// info tables.
standin::Market FaultMarket();

// Sets FaultMarket() with a change.
void ChangeMarket(const std::function<void(standin::Market& market)>& change);

std::vector<Breach> ArrayBreaches();
std::vector<Breach> SymbolBreaches();
std::vector<Breach> SearchBreaches();
std::vector<Breach> GroupBreaches();
std::vector<Breach> TradingBreaches();
std::vector<Breach> AttributeBreaches();
std::vector<Breach> CommonBreaches();
