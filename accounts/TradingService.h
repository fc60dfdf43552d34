// Reading trading systems from the trading-system proxy.
#pragma once

#include "accounts/TradingTable.h"

namespace tq {

// Trading systems, and accounts of one. Far beyond what any proxy has: what a broken one claims to
// have above this is not asked for.
inline constexpr int kMostSystems = 10'000;
inline constexpr int kMostAccounts = 100'000;

// Fills an empty `system` with the trading system of that id, its accounts and their holdings.
// False, and `system` as it was, when the service has it not available or does not list it. An
// account that the service fails for is left out; one whose holdings it fails for holds nothing.
bool FetchTradingSystem(const CString& tsId, CTS& system);

// What one account holds, tidy. False, `holdings` untouched, when the service fails.
bool FetchHoldings(const CString& tsId, const CString& accountId, TqsAccType type,
                   CString& holdings);

} // namespace tq
