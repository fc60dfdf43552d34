#include "soak/Promise.h"

#include <algorithm>

namespace soak {
namespace {

enum : unsigned {
  kReplaces = 1,
  kLoads = 2,
  kAdds = 4,
  kChangesAll = 8,
  kChangesOne = 16, // the list that the arguments name
  kRemovesOne = 32,
  kChangesSystem = 64,
  kIndexes = 128,
  kSaves = 256,
  kEdits = 512, // a dialog: everything, but removing only after a question
};
constexpr unsigned kReads = kReplaces | kLoads | kIndexes | kSaves;

struct Rule {
  std::string_view name; // of all overloads, unless it has an end of arguments
  unsigned effects;
};

// What is not here changes nothing and writes nothing.
constexpr Rule kRules[] = {
    {"Init", kReads},
    {"LoadSymbolList", kReads},
    {"RestorSymbolList", kReads},
    {"DoLoadSymbolList", kReads},
    {"UpdateTQSymbolList", kReads},
    {"ReLoadList", kReads},
    {"RepairSymbolList", kReplaces | kLoads | kIndexes},
    {"RestoreHistory", kReads},
    {"ClearSymbolList", kReplaces},
    {"SetSymbolList", kReplaces | kIndexes},
    {"SaveSymbolList", kSaves},
    {"BackupSymbolList", kSaves},
    {"DoSaveSymbolList", kSaves},
    {"CreateEmptySymbolListFile", kSaves},
    {"AddSymbolList", kAdds | kChangesOne | kIndexes | kSaves},
    {"AddTQSymbolList", kAdds | kChangesOne},
    {"DeleteSymbolList(CString)", kRemovesOne | kIndexes | kSaves},
    {"DeleteSymbolList", kChangesOne},
    {"InsertSymbolList", kChangesOne},
    {"SwapSymbolList", kChangesOne},
    {"ReplaceSymbolList", kChangesOne},
    {"ReplaceID", kChangesAll | kSaves},
    {"ReplaceSymbolListExchID", kChangesOne},
    {"LoadSystemList", kAdds},
    {"UpdateSystemList", kChangesOne | kChangesSystem | kSaves},
    {"DoLoadOtherProductList", kAdds | kChangesAll | kIndexes | kSaves},
    {"LoadOtherProductList", kAdds | kChangesAll | kIndexes | kSaves},
    {"SetDefaultIndex", kIndexes},
    {"CIDList::Update1", kChangesOne},
    {"CIDList::Update2", kChangesOne},
    {"CIDList::RemoveEntry", kChangesOne},
    {"CIDList::SwapEntries", kChangesOne},
    {"CIDList::ReplaceEntry", kChangesOne},
    {"CIDList::InsertEntry", kChangesOne},
    {"DoSymbolListUI", kEdits},
    {"DoGroupListUI", kEdits},
    {"DoGroupSymbolAdd", kEdits},
    {"DoSymbolAddUI", kEdits},
    {"DoSelectUI", kEdits},
};

unsigned EffectsOf(std::string_view signature) {
  const std::string_view name = signature.substr(0, signature.find('('));
  for (const Rule& rule : kRules)
    if (rule.name == name || rule.name == signature)
      return rule.effects;
  return 0;
}

bool IsIn(const std::set<std::string>& ids, const List& list) {
  return ids.contains(Lower(list.id));
}

// The lists that stay as they are. One that may change is known by its identifier, of which a
// dialog may store another spelling: upper and lower case are the same.
std::vector<List> Untouched(const Promise& promise, const std::vector<List>& lists) {
  std::vector<List> untouched;
  for (const List& list : lists)
    if (!IsIn(promise.changed, list) && !IsIn(promise.removed, list))
      untouched.push_back(promise.changes ? List{Lower(list.id), "", ""} : list);
  return untouched;
}

std::string NameOf(const List& list) {
  return "'" + list.id + "' (" + list.name + ": " + list.symbols.substr(0, 60) + ")";
}

// Each of `stays`, in their order unless the order may change, among `now`.
std::string Missing(const std::vector<List>& stays, const std::vector<List>& now, bool ordered) {
  auto at = now.begin();
  for (const List& list : stays) {
    const auto found = std::find(ordered ? at : now.begin(), now.end(), list);
    if (found == now.end())
      return "the list " + NameOf(list) + " is gone, changed or in another place";
    at = found + 1;
  }
  return "";
}

// A changed list is still there.
std::string MissingChanged(const Promise& promise, const Lists& before, const Lists& after) {
  for (const std::string& id : promise.changed) {
    const List* const was = Find(before.lists, id);
    if (was != nullptr && !promise.removed.contains(id) && Find(after.lists, id) == nullptr)
      return "the list " + NameOf(*was) + " is gone";
  }
  return "";
}

} // namespace

void Promise::Join(const Promise& other) {
  replaces |= other.replaces;
  loads |= other.loads;
  adds |= other.adds;
  changes |= other.changes;
  removes |= other.removes;
  orders |= other.orders;
  indexes |= other.indexes;
  saves |= other.saves;
  changed.insert(other.changed.begin(), other.changed.end());
  removed.insert(other.removed.begin(), other.removed.end());
}

Promise PromiseOf(std::string_view signature, const operations::Arguments& arguments, bool agrees) {
  const unsigned effects = EffectsOf(signature);
  const bool edits = (effects & kEdits) != 0;
  Promise promise;
  promise.replaces = (effects & kReplaces) != 0;
  promise.loads = (effects & kLoads) != 0;
  promise.adds = edits || (effects & kAdds) != 0;
  promise.changes = edits || (effects & kChangesAll) != 0;
  promise.removes = edits && agrees;
  promise.orders = edits;
  promise.indexes = edits || (effects & kIndexes) != 0;
  promise.saves = edits || (effects & kSaves) != 0;
  const std::string id = Lower(arguments.id.GetString());
  if ((effects & kChangesOne) != 0)
    promise.changed.insert(id);
  if ((effects & kRemovesOne) != 0)
    promise.removed.insert(id);
  if ((effects & kChangesSystem) != 0)
    for (const char number : {'1', '2', '3', '4', '5', '6'})
      promise.changed.insert(std::string("zusyslist") + number);
  return promise;
}

std::string Broken(const Promise& promise, const Lists& before, const Lists& after) {
  if (promise.replaces || before == after)
    return "";
  const bool firstDefault = promise.saves && before.index < 0 && after.index == 0;
  if (!promise.indexes && !firstDefault && before.index != after.index)
    return "the default index was " + std::to_string(before.index) + " and is " +
           std::to_string(after.index);
  if (promise.removes)
    return "";
  const std::vector<List> stays = Untouched(promise, before.lists);
  const std::vector<List> now = Untouched(promise, after.lists);
  std::string broken = Missing(stays, now, !promise.orders);
  if (broken.empty() && !promise.adds && stays.size() != now.size())
    broken = "there are " + std::to_string(now.size()) + " lists in the place of " +
             std::to_string(stays.size());
  return broken.empty() ? MissingChanged(promise, before, after) : broken;
}

} // namespace soak
