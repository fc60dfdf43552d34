// The operations of the stand-in's services that can be made to fail, each with a call of it.
#pragma once

#include <functional>
#include <vector>

struct Operation {
  const char* name;
  std::function<int()> call; // one that succeeds unless it is ordered to fail
};

// The calls are good for GroupMarket() with the trading systems of TradingMarket() and a full menu
// key.
std::vector<Operation> Operations();
