#include "dialogs/editors/ListSources.h"

#include <array>

#include "dialogs/ServiceGroups.h"
#include "idlist/ListKind.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/FieldText.h"
#include "platform/LibraryString.h"
#include "platform/Text.h"

namespace tq {
namespace {

constexpr unsigned kStringUserLists = 48003;
constexpr unsigned kStringHoldings = 48030;

struct GroupKind {
  int type;
  int choice; // its kind as a terminal has it
};
constexpr std::array<GroupKind, 4> kGroupKinds = {
    {{TQGroupTypeMarkets, TQSelectGroup},
     {TQGroupTypeHoldings, TQSelectHoldingsGroup},
     {TQGroupTypeEditionMarkets, TQSelectEditionGroup},
     {TQGroupTypeCloud, TQSelectCloudListOrGroup}}};

void AddGroups(CTQSymbolListMgr& manager, int type, std::vector<ListSource>& sources) {
  for (const GroupInfo& group : TopGroups(manager, type))
    sources.push_back({SourceCode::Group, ToCString(FieldText(group.szName)), group});
}

std::vector<SourceItem> ListsOf(CTQSymbolListMgr& manager, int kind) {
  std::vector<SourceItem> items;
  TQSymbolListInfo info;
  for (int i = 0; manager.GetTQSymbolListInfo(i, &info, kind) != 0; ++i)
    items.push_back({CString(info.Name), CString(info.ID)});
  return items;
}

std::vector<SourceItem> GroupItems(CTQSymbolListMgr& manager, const ListSource& source) {
  std::vector<SourceItem> items;
  for (const GroupInfo& group : SubGroups(manager, source.group))
    items.push_back({ToCString(FieldText(group.szName)), ToCString(FieldText(group.szID))});
  return items;
}

int GroupChoice(int type) {
  for (const GroupKind& kind : kGroupKinds) {
    if (kind.type == type)
      return kind.choice;
  }
  return TQSelectGroup;
}

} // namespace

std::vector<ListSource> ListSources(CTQSymbolListMgr& manager, bool holdings) {
  std::vector<ListSource> sources = {
      {SourceCode::AllSymbols, LibraryString(kStringAllMarkets)},
      {SourceCode::UserLists, LibraryString(kStringUserLists)},
      {SourceCode::Holdings, LibraryString(kStringHoldings)},
      {SourceCode::Cloud, LibraryString(kStringCloudList)},
  };
  for (const GroupKind& kind : kGroupKinds) {
    if (kind.type != TQGroupTypeHoldings || holdings)
      AddGroups(manager, kind.type, sources);
  }
  return sources;
}

std::vector<SourceItem> ItemsOf(CTQSymbolListMgr& manager, const ListSource& source) {
  switch (source.code) {
  case SourceCode::AllSymbols:
    return {{LibraryString(kStringAllSymbols), {}}};
  case SourceCode::Holdings:
    return ListsOf(manager, kTradingLists);
  case SourceCode::Group:
    return GroupItems(manager, source);
  default:
    return {};
  }
}

ListChoice ChoiceOf(const ListSource& source, const SourceItem* item) {
  static const SourceItem kNone;
  const SourceItem& chosen = item == nullptr ? kNone : *item;
  switch (source.code) {
  case SourceCode::AllSymbols:
    return {TQSelectAllSymbols, chosen.name};
  case SourceCode::UserLists:
    return {TQSelectUserList, chosen.id};
  case SourceCode::Holdings:
    return {TQSelectTradingList, chosen.id};
  case SourceCode::Cloud:
    return {TQSelectCloudListOrGroup, chosen.id};
  default:
    return {GroupChoice(source.group.nType), source.name + "," + chosen.name};
  }
}

// Identifiers are compared ignoring letter case, as everywhere.
bool IsChoice(const ListChoice& before, const ListSource& source, const SourceItem& item) {
  const ListChoice choice = ChoiceOf(source, &item);
  return choice.kind == before.kind && choice.text.CompareNoCase(before.text) == 0;
}

} // namespace tq
