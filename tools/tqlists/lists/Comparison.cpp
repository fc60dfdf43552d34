#include "tools/tqlists/lists/Comparison.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace tqlists {
namespace {

using Places = std::unordered_map<std::string, std::size_t>;

Places PlacesOf(const std::vector<List>& lists) {
  Places places;
  for (std::size_t i = 0; i < lists.size(); ++i)
    places.emplace(LowerCase(lists[i].id), i);
  return places;
}

// An entry that both lists have, with its places from 0.
struct Pair {
  std::string_view entry;
  std::size_t from;
  std::size_t to;
};

// Which pairs keep their order: a longest rising run of `from`, pairs being in the order of `to`.
std::vector<bool> KeepOrder(const std::vector<Pair>& pairs) {
  std::vector<std::size_t> ends; // the pair that ends the best run of each length
  std::vector<std::size_t> before(pairs.size(), pairs.size());
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    const auto place =
        std::lower_bound(ends.begin(), ends.end(), i, [&](std::size_t a, std::size_t b) {
          return pairs[a].from < pairs[b].from;
        });
    if (place != ends.begin())
      before[i] = *(place - 1);
    if (place == ends.end())
      ends.push_back(i);
    else
      *place = i;
  }
  std::vector<bool> keep(pairs.size(), false);
  for (std::size_t i = ends.empty() ? pairs.size() : ends.back(); i != pairs.size(); i = before[i])
    keep[i] = true;
  return keep;
}

// Where an entry stands in the first list; those in front of `next` have been matched.
struct Occurrences {
  std::vector<std::size_t> places;
  std::size_t next = 0;

  bool HasMore() const { return next < places.size(); }
};
using Entries = std::unordered_map<std::string_view, Occurrences>;

Entries EntriesOf(std::string_view symbols) {
  Entries entries;
  std::size_t place = 0;
  ForEachEntry(symbols, [&](std::string_view entry) { entries[entry].places.push_back(place++); });
  return entries;
}

std::vector<Pair> MatchEntries(const List& before, const List& after, Change& change) {
  Entries left = EntriesOf(before.symbols);
  std::vector<Pair> pairs;
  std::size_t place = 0;
  ForEachEntry(after.symbols, [&](std::string_view entry) {
    const auto found = left.find(entry);
    if (found == left.end() || !found->second.HasMore())
      change.added.emplace_back(entry);
    else
      pairs.push_back({entry, found->second.places[found->second.next++], place});
    ++place;
  });
  ForEachEntry(before.symbols, [&](std::string_view entry) {
    Occurrences& occurrences = left[entry];
    if (!occurrences.HasMore())
      return;
    change.removed.emplace_back(entry);
    ++occurrences.next;
  });
  return pairs;
}

bool HasChanged(const Change& change) {
  return change.name != change.oldName || !change.added.empty() || !change.removed.empty() ||
         !change.moved.empty();
}

} // namespace

std::string Lists::DefaultId() const {
  const auto place = static_cast<std::size_t>(defaultList);
  return defaultList >= 0 && place < lists.size() ? lists[place].id : "";
}

Change CompareEntries(const List& before, const List& after) {
  Change change{after.id, after.name, before.name, {}, {}, {}};
  const std::vector<Pair> pairs = MatchEntries(before, after, change);
  const std::vector<bool> keep = KeepOrder(pairs);
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    if (!keep[i])
      change.moved.push_back({std::string(pairs[i].entry), pairs[i].from + 1, pairs[i].to + 1});
  }
  return change;
}

Comparison Compare(const Lists& before, const Lists& after) {
  Comparison result;
  const Places old = PlacesOf(before.lists);
  const Places now = PlacesOf(after.lists);
  for (const List& list : before.lists) {
    if (!now.contains(LowerCase(list.id)))
      result.removed.push_back(list);
  }
  std::size_t last = 0;
  for (const List& list : after.lists) {
    const auto found = old.find(LowerCase(list.id));
    if (found == old.end()) {
      result.added.push_back(list);
      continue;
    }
    result.otherOrder = result.otherOrder || found->second < last;
    last = found->second;
    Change change = CompareEntries(before.lists[found->second], list);
    if (HasChanged(change))
      result.changed.push_back(std::move(change));
  }
  result.oldDefault = LowerCase(before.DefaultId());
  result.newDefault = LowerCase(after.DefaultId());
  return result;
}

} // namespace tqlists
