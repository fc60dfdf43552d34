// What the two boxes of a symbol search offer: the markets that the symbol-data service publishes
// as groups, and the groups inside of each. Entry 0 of both stands for all.
#pragma once

#include <vector>

#include "dialogs/search/SymbolRows.h"
#include "platform/framework/CString.h"

class CTQSymbolListMgr;

namespace tq {

class MarketChoice {
public:
  static constexpr int kAll = 0;

  // The groups of type 1, those of type 101 for editions whose extra information has "OTV01", and
  // the cloud groups (201).
  explicit MarketChoice(CTQSymbolListMgr& manager);

  // The entries of the box of markets, and of the box of groups for one of them. A market that is
  // not there has no groups.
  std::vector<CString> MarketNames() const;
  std::vector<CString> GroupNames(int market) const;

  // The id of a market, and of one of its groups; empty for all, and for what is not there. And
  // back: the place of an id, or kAll.
  CString MarketId(int market) const;
  CString GroupId(int market, int group) const;
  int FindMarket(const CString& id) const;
  int FindGroup(int market, const CString& id) const;

  // Whether a group, or a market that is one, is chosen, and not all symbols that there are.
  static bool IsGroup(int market, int group) { return market != kAll || group != kAll; }

  // The symbols of a group; of all groups of a market, each symbol once; of all markets. The last
  // are the manager's buffer of all symbols, which is built when there is none; the others are
  // copies, so that what the user sees is what is added, whatever the terminal reloads meanwhile.
  SymbolRows Symbols(int market, int group) const;

private:
  void AddMarkets(int type);
  const GroupInfo* MarketAt(int market) const;
  std::vector<GroupInfo> GroupsOf(int market) const;
  SymbolRows AllSymbols() const;
  std::vector<SymbolInfo> MembersOf(const GroupInfo& market) const;
  std::vector<SymbolInfo> MembersOfAll(const std::vector<GroupInfo>& groups) const;
  void AppendMembers(const GroupInfo& group, std::vector<SymbolInfo>& members) const;

  CTQSymbolListMgr& manager_;
  std::vector<GroupInfo> markets_;
};

} // namespace tq
