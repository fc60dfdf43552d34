#include "terminal/desk/Selection.h"

namespace desk {
namespace {

constexpr int kAllSymbols = 4;

struct GroupKind {
  int type;
  int kind;
};
constexpr GroupKind kGroupKinds[] = {{1, 2}, {3, 3}, {101, 7}, {201, 8}};

int KindOfGroup(int type) {
  for (const GroupKind& each : kGroupKinds) {
    if (each.type == type)
      return each.kind;
  }
  return 0;
}

// A group without sub-groups has nothing behind the comma.
CString NamesOf(const NamedSource& group, const NamedList& subGroup) {
  return group.name + "," + (subGroup.id.IsEmpty() ? CString() : subGroup.name);
}

// What the function is asked of: each sub-group of each group that the selection offers. Ends with
// the first for which it says true.
template <class FUNCTION> void ForEachGroup(CTQSymbolListMgr& manager, FUNCTION function) {
  for (const NamedSource& group : SourcesOf(manager)) {
    if (KindOfGroup(group.source.groupType) == 0)
      continue;
    for (const NamedList& subGroup : ListsOf(manager, group.source)) {
      if (function(Place{group.source, subGroup.id}, NamesOf(group, subGroup)))
        return;
    }
  }
}

std::optional<Place> GroupPlace(CTQSymbolListMgr& manager, const Selection& selection) {
  std::optional<Place> found;
  ForEachGroup(manager, [&](const Place& place, const CString& names) {
    if (KindOfGroup(place.source.groupType) == selection.kind && names == selection.text)
      found = place;
    return found.has_value();
  });
  return found;
}

} // namespace

Selection SelectionOf(CTQSymbolListMgr& manager, const Place& place) {
  if (place.source.from == From::AllSymbols)
    return {kAllSymbols};
  if (place.source.from != From::Group)
    return {KindOf(place.source.from), place.list};
  Selection selection;
  ForEachGroup(manager, [&](const Place& each, const CString& names) {
    if (each == place)
      selection = {KindOfGroup(place.source.groupType), names};
    return each == place;
  });
  return selection;
}

std::optional<Place> PlaceOf(CTQSymbolListMgr& manager, const Selection& selection) {
  if (selection.kind == kAllSymbols)
    return Place{{From::AllSymbols}};
  // 8 stands for cloud lists and for cloud groups: what is no identifier of a list are names.
  for (const From from : {From::UserLists, From::Holdings, From::CloudLists}) {
    if (KindOf(from) == selection.kind &&
        manager.CheckSymbolListExist(selection.text, selection.kind) != 0)
      return Place{{from}, selection.text};
  }
  return GroupPlace(manager, selection);
}

} // namespace desk
