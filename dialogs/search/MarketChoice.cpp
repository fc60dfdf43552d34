#include "dialogs/search/MarketChoice.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

#include "dialogs/ServiceGroups.h"
#include "idlist/IdString.h"
#include "idlist/ListKind.h"
#include "idlist/RecordIndex.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/FieldText.h"
#include "platform/LibraryString.h"
#include "platform/Text.h"

namespace tq {
namespace {

bool HasEditionMarkets(const CTQSymbolListMgr& manager) {
  const std::vector<CString>& texts = manager.GetExtraTQInfo();
  return std::any_of(texts.begin(), texts.end(),
                     [](const CString& text) { return text.Find(TQExtraInfoEditionMarkets) >= 0; });
}

// The entry for all, and the groups.
std::vector<CString> NamesOf(unsigned all, const std::vector<GroupInfo>& groups) {
  std::vector<CString> names = {LibraryString(all)};
  for (const GroupInfo& group : groups)
    names.push_back(ToCString(FieldText(group.szName)));
  return names;
}

// Of the entry at a place of a box.
CString IdAt(const std::vector<GroupInfo>& groups, int place) {
  if (place <= MarketChoice::kAll || place > static_cast<int>(groups.size()))
    return {};
  return ToCString(FieldText(groups[static_cast<std::size_t>(place - 1)].szID));
}

int PlaceOf(const std::vector<GroupInfo>& groups, const CString& id) {
  if (id.IsEmpty())
    return MarketChoice::kAll;
  const auto found = std::find_if(groups.begin(), groups.end(), [&id](const GroupInfo& group) {
    return FieldText(group.szID) == ViewOf(id);
  });
  return found == groups.end() ? MarketChoice::kAll : static_cast<int>(found - groups.begin()) + 1;
}

// A group that is made of a cloud list has the rows of its headings too, which are no symbols.
void AppendSymbol(const SymbolInfo& member, std::vector<SymbolInfo>& members) {
  if (IdOf(member) != kHeadingMarker)
    members.push_back(member);
}

// Keeps the first of each symbol.
void DropRepeated(std::vector<SymbolInfo>& symbols) {
  std::unordered_set<std::string_view> seen; // of ids in place, which do not move any more
  seen.reserve(symbols.size());
  std::size_t kept = 0;
  for (const SymbolInfo& symbol : symbols) {
    if (seen.contains(IdOf(symbol)))
      continue;
    symbols[kept] = symbol;
    seen.insert(IdOf(symbols[kept++]));
  }
  symbols.resize(kept);
}

} // namespace

MarketChoice::MarketChoice(CTQSymbolListMgr& manager) : manager_(manager) {
  AddMarkets(TQGroupTypeMarkets);
  if (HasEditionMarkets(manager))
    AddMarkets(TQGroupTypeEditionMarkets);
  AddMarkets(kCloudGroupType);
}

void MarketChoice::AddMarkets(int type) {
  const std::vector<GroupInfo> markets = TopGroups(manager_, type);
  markets_.insert(markets_.end(), markets.begin(), markets.end());
}

const GroupInfo* MarketChoice::MarketAt(int market) const {
  if (market <= kAll || market > static_cast<int>(markets_.size()))
    return nullptr;
  return &markets_[static_cast<std::size_t>(market - 1)];
}

std::vector<GroupInfo> MarketChoice::GroupsOf(int market) const {
  const GroupInfo* const chosen = MarketAt(market);
  return chosen == nullptr ? std::vector<GroupInfo>() : SubGroups(manager_, *chosen);
}

std::vector<CString> MarketChoice::MarketNames() const {
  return NamesOf(kStringAllMarkets, markets_);
}

std::vector<CString> MarketChoice::GroupNames(int market) const {
  return NamesOf(kStringAllSymbols, GroupsOf(market));
}

CString MarketChoice::MarketId(int market) const {
  return IdAt(markets_, market);
}

CString MarketChoice::GroupId(int market, int group) const {
  return IdAt(GroupsOf(market), group);
}

int MarketChoice::FindMarket(const CString& id) const {
  return PlaceOf(markets_, id);
}

int MarketChoice::FindGroup(int market, const CString& id) const {
  return PlaceOf(GroupsOf(market), id);
}

SymbolRows MarketChoice::Symbols(int market, int group) const {
  const GroupInfo* const chosen = MarketAt(market);
  if (chosen == nullptr)
    return market == kAll ? AllSymbols() : SymbolRows();
  const std::vector<GroupInfo> groups = GroupsOf(market);
  if (group == kAll)
    return SymbolRows(groups.empty() ? MembersOf(*chosen) : MembersOfAll(groups));
  std::vector<SymbolInfo> members;
  if (group > kAll && group <= static_cast<int>(groups.size()))
    AppendMembers(groups[static_cast<std::size_t>(group - 1)], members);
  return SymbolRows(std::move(members));
}

SymbolRows MarketChoice::AllSymbols() const {
  if (manager_.CheckAllSymbolByExch() != 0)
    manager_.SortAllSymbolByExch();
  int count = 0;
  const std::shared_ptr<const SymbolInfo[]> symbols = manager_.ShareAllSymbolInfos(&count);
  return {symbols, count};
}

// A market without groups has its members itself. The count has the service asked, and the terminal
// may remove the group then: so its handle is looked for again.
std::vector<SymbolInfo> MarketChoice::MembersOf(const GroupInfo& market) const {
  std::vector<SymbolInfo> members;
  void* handle = nullptr;
  manager_.GetGroupHandle(market.nType, market.szID, &handle, 0);
  if (handle == nullptr)
    return members;
  const int count = manager_.GetGroupSymbolCount(handle);
  manager_.GetGroupHandle(market.nType, market.szID, &handle, 0);
  for (int i = 0; i < count && handle != nullptr; ++i) {
    SymbolInfo member = {};
    if (manager_.GetGroupSymbolInfo(handle, i, &member) != 0)
      AppendSymbol(member, members);
  }
  return members;
}

std::vector<SymbolInfo> MarketChoice::MembersOfAll(const std::vector<GroupInfo>& groups) const {
  std::vector<SymbolInfo> members;
  for (const GroupInfo& group : groups)
    AppendMembers(group, members);
  if (groups.size() > 1)
    DropRepeated(members);
  return members;
}

void MarketChoice::AppendMembers(const GroupInfo& group, std::vector<SymbolInfo>& members) const {
  const int count = manager_.GetGroupSymbolCount(group.nType, group.szID);
  members.reserve(members.size() + static_cast<std::size_t>(std::max(count, 0)));
  for (int i = 0; i < count; ++i) {
    SymbolInfo member;
    if (manager_.GetGroupSymbolInfo(group.nType, group.szID, i, &member) != 0)
      AppendSymbol(member, members);
  }
}

} // namespace tq
