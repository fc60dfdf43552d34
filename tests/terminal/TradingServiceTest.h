// Calls of the trading-system proxy, on TradingMarket().
#pragma once

#include <string>

#include "tests/support/StandInTest.h"
#include "tests/support/TradingMarket.h"

inline constexpr TqsAccType kStocks{1};
inline constexpr TqsAccType kFutures{2};

class TradingService : public StandInTest {
protected:
  TradingService() { standin::SetMarket(TradingMarket()); }
};

// The holdings of an account, released; "(failed)" when the call fails.
inline std::string Holdings(const char* tsId, const char* accountId, TqsAccType type) {
  char* text = nullptr;
  if (TQSGetTSAccountHolding(tsId, accountId, type, &text) == 0)
    return text ? "(failed with a text)" : "(failed)";
  const std::string holdings = text;
  TQSFree(text);
  return holdings;
}
