// The operations of the stand-in's services that can be made to fail, each with a call of it.
#pragma once

#include <functional>
#include <vector>

struct Operation {
  const char* name;
  std::function<int()> call; // succeeds unless ordered to fail
};

// The calls expect GroupMarket() with the trading systems of TradingMarket() and a full menu key.
std::vector<Operation> Operations();
