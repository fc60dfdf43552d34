#include "dialogs/editors/MarketChoice.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

#include "idlist/ListKind.h"
#include "idlist/RecordIndex.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/FieldText.h"
#include "platform/LibraryString.h"
#include "platform/Text.h"

namespace tq {
namespace {

// Public, and the terminal's: do not change.
constexpr int kMarkets = 1;
constexpr int kEditionMarkets = 101;
constexpr char kEditionMark[] = "OTV01";

bool HasEditionMarkets(const CTQSymbolListMgr& manager) {
  const std::vector<CString>& texts = manager.GetExtraTQInfo();
  return std::any_of(texts.begin(), texts.end(),
                     [](const CString& text) { return text.Find(kEditionMark) >= 0; });
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
  AddMarkets(kMarkets);
  if (HasEditionMarkets(manager))
    AddMarkets(kEditionMarkets);
  AddMarkets(kCloudGroupType);
}

void MarketChoice::AddMarkets(int type) {
  const int count = manager_.GetGroupCount(type, nullptr);
  for (int i = 0; i < count; ++i) {
    GroupInfo market = {};
    if (manager_.GetGroupInfo(type, nullptr, i, &market) != 0)
      markets_.push_back(market);
  }
}

const GroupInfo* MarketChoice::MarketAt(int market) const {
  if (market <= kAll || market > static_cast<int>(markets_.size()))
    return nullptr;
  return &markets_[static_cast<std::size_t>(market - 1)];
}

std::vector<CString> MarketChoice::MarketNames() const {
  std::vector<CString> names = {LibraryString(kStringAllMarkets)};
  for (const GroupInfo& market : markets_)
    names.push_back(ToCString(FieldText(market.szName)));
  return names;
}

std::vector<CString> MarketChoice::GroupNames(int market) const {
  std::vector<CString> names = {LibraryString(kStringAllSymbols)};
  const GroupInfo* const chosen = MarketAt(market);
  if (chosen == nullptr)
    return names;
  const int count = manager_.GetGroupCounts(chosen->nType, chosen->szID);
  for (int i = 0; i < count; ++i) {
    GroupInfo group = {};
    manager_.GetGroupInfos(chosen->nType, chosen->szID, i, &group);
    names.push_back(ToCString(FieldText(group.szName)));
  }
  return names;
}

SymbolRows MarketChoice::Symbols(int market, int group) const {
  const GroupInfo* const chosen = MarketAt(market);
  if (chosen == nullptr)
    return market == kAll ? AllSymbols() : SymbolRows();
  const int groups = manager_.GetGroupCounts(chosen->nType, chosen->szID);
  if (group == kAll)
    return SymbolRows(groups == 0 ? MembersOf(*chosen) : MembersOfAllGroups(*chosen, groups));
  GroupInfo info = {};
  std::vector<SymbolInfo> members;
  if (group > 0 && group <= groups &&
      manager_.GetGroupInfos(chosen->nType, chosen->szID, group - 1, &info) != 0)
    AppendMembers(info, members);
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
      members.push_back(member);
  }
  return members;
}

std::vector<SymbolInfo> MarketChoice::MembersOfAllGroups(const GroupInfo& market,
                                                         int groups) const {
  std::vector<SymbolInfo> members;
  for (int i = 0; i < groups; ++i) {
    GroupInfo group = {};
    if (manager_.GetGroupInfos(market.nType, market.szID, i, &group) != 0)
      AppendMembers(group, members);
  }
  if (groups > 1)
    DropRepeated(members);
  return members;
}

void MarketChoice::AppendMembers(const GroupInfo& group, std::vector<SymbolInfo>& members) const {
  const int count = manager_.GetGroupSymbolCount(group.nType, group.szID);
  members.reserve(members.size() + static_cast<std::size_t>(std::max(count, 0)));
  for (int i = 0; i < count; ++i) {
    SymbolInfo member;
    if (manager_.GetGroupSymbolInfo(group.nType, group.szID, i, &member) != 0)
      members.push_back(member);
  }
}

} // namespace tq
