// Reading trading systems from the trading-system proxy.
#pragma once

#include "accounts/TradingRecords.h"

namespace tq {

// Limits on trading systems, and on accounts of one, far above what any proxy has: a broken one
// that claims more is not asked for the rest.
inline constexpr int kMostSystems = 10'000;
inline constexpr int kMostAccounts = 100'000;

// Fills an empty `system` with the trading system of that id, its accounts and their holdings.
// False, with `system` unchanged, when it is not available or not listed. An account that the
// service fails for is left out; one whose holdings it fails for holds nothing.
bool FetchTradingSystem(const CString& tsId, CTS& system);

// What one account holds, tidy. False, `holdings` untouched, when the service fails.
bool FetchHoldings(const CString& tsId, const CString& accountId, TqsAccType type,
                   CString& holdings);

} // namespace tq
