// The lines of accounts.tsv.
#pragma once

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "terminal/StandIn.h"
#include "terminal/control/TableFile.h"

namespace standin {

class AccountRows {
public:
  static constexpr std::string_view kColumns =
      "system\tname_tw\tname_cn\ttype\tid\tdisplay_id\tholdings";

  AccountRows(TableFile& file, std::vector<TradingSystem>& systems)
      : file_(file), systems_(systems) {}

  // Adds the account of a line, and its trading system with the system's first line. Refuses a bad
  // line and returns false.
  bool Add(const TableFile::Row& row);

private:
  TradingSystem* SystemOf(const TableFile::Row& row);
  bool AddAccount(TradingSystem& system, const TableFile::Row& row);

  TableFile& file_;
  std::vector<TradingSystem>& systems_;
  std::unordered_map<std::string, std::size_t> positions_; // by folded id
  std::set<std::string> seen_;                             // system, type and id of the accounts
};

} // namespace standin
