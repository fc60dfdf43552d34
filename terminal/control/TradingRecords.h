// The market's trading systems as the proxy hands them out. The records are built once, when the
// market is set.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "terminal/StandIn.h"

namespace standin {

class TQSTANDIN_API TradingRecords {
public:
  void Build(const Market& market);

  // In the interface language, in the order of the market's systems and of their accounts.
  const std::vector<TQS_TSINFO>& Systems() const;
  const std::vector<TQS_ACCOUNTINFO>& Accounts(std::size_t system) const;
  // The position of the system's first account with that type and id, ignoring ASCII letter case,
  // or -1.
  int AccountOf(std::size_t system, int type, std::string_view id) const;

private:
  struct Records {
    std::vector<TQS_TSINFO> systems;
    std::vector<std::vector<TQS_ACCOUNTINFO>> accounts;
  };
  const Records& Now() const;

  Records traditional_;
  Records simplified_;
  std::vector<std::unordered_map<std::string, int>> positions_; // by type and folded id
};

// The current market's.
TQSTANDIN_API const TradingRecords& CurrentTradingRecords();

// A trading system of the current market and an account of it, ignoring the ASCII letter case of
// ids; null for an unknown one.
TQSTANDIN_API const TradingSystem* FindSystem(std::string_view tsId);
TQSTANDIN_API const TradingAccount* FindAccount(std::string_view tsId, std::string_view accountId,
                                                int type);

} // namespace standin
