// Changes of a list's contents, which are done and taken back in one way.
#include <algorithm>
#include <utility>

#include "dialogs/ListContents.h"
#include "platform/Text.h"

namespace tq {

void ListContents::Do(Change change) {
  std::visit([this](auto& each) { Apply(each); }, change);
  history_.Add({std::move(change), {}, {}});
}

void ListContents::KeepSelection(RowSelection before, RowSelection after) {
  history_.Latest().before = std::move(before);
  history_.Latest().after = std::move(after);
}

void ListContents::ForgetSteps() {
  changed_ = IsChanged();
  history_.Clear();
}

std::optional<ListContents::Turned> ListContents::Undo() {
  Step* const step = history_.Back();
  return step == nullptr ? std::nullopt : std::optional(Turn(step->change, step->before));
}

std::optional<ListContents::Turned> ListContents::Redo() {
  Step* const step = history_.Forth();
  return step == nullptr ? std::nullopt : std::optional(Turn(step->change, step->after));
}

ListContents::Turned ListContents::Turn(Change& change, const RowSelection& selected) {
  const int countBefore = RowCount();
  const Margins margins = std::visit([this](auto& each) { return Apply(each); }, change);
  const int around = margins.before + margins.behind;
  return {selected, margins.before, countBefore - around, RowCount() - around};
}

// The places are those of the entries when they are in, so the rows are counted then.
ListContents::Margins ListContents::Apply(Spliced& change) {
  const auto margins = [&] {
    return Margins{RowsInFrontOf(change.places.front().first),
                   RowCount() - RowsInFrontOf(change.places.back().End())};
  };
  if (change.isIn) {
    const Margins before = margins();
    TakeOut(change);
    return before;
  }
  PutIn(change);
  return margins();
}

void ListContents::TakeOut(Spliced& change) {
  change.out = tq::TakeOut(entries_, change.places);
  for (const Entry& entry : change.out) {
    if (entry.kind == Entry::Kind::Symbol)
      ids_.erase(ids_.find(Trimmed(entry.text)));
  }
  change.isIn = false;
  NumberRows();
}

void ListContents::PutIn(Spliced& change) {
  for (const Entry& entry : change.out) {
    if (entry.kind == Entry::Kind::Symbol)
      ids_.emplace(Trimmed(entry.text));
  }
  tq::PutIn(entries_, change.places, std::exchange(change.out, {}));
  change.isIn = true;
  NumberRows();
}

ListContents::Margins ListContents::Apply(Retitled& change) {
  std::swap(At(change.row).text, change.text);
  return {change.row, RowCount() - change.row - 1};
}

// Each row past its neighbour. Back is the same for the rows in their new places.
ListContents::Margins ListContents::Apply(Moved& change) {
  const int first = change.rows.front().first - (change.up ? 1 : 0);
  const int end = change.rows.back().End() + (change.up ? 0 : 1);
  const auto pass = [this](const PlaceRun& run, bool up) {
    for (int i = 0; i < run.count; ++i) {
      const int row = up ? run.first + i : run.End() - 1 - i;
      std::swap(At(row), At(up ? row - 1 : row + 1));
    }
  };
  if (change.up)
    std::for_each(change.rows.begin(), change.rows.end(),
                  [&](const PlaceRun& run) { pass(run, true); });
  else
    std::for_each(change.rows.rbegin(), change.rows.rend(),
                  [&](const PlaceRun& run) { pass(run, false); });
  for (PlaceRun& run : change.rows)
    run.first += change.up ? -1 : 1;
  change.up = !change.up;
  return {first, RowCount() - end};
}

ListContents::Margins ListContents::Apply(Sorted& change) {
  const int count = static_cast<int>(change.order.size());
  std::vector<Entry> sorted;
  std::vector<int> back(change.order.size());
  for (int i = 0; i < count; ++i) {
    const int from = change.order[static_cast<std::size_t>(i)];
    sorted.push_back(std::move(At(change.first + from)));
    back[static_cast<std::size_t>(from)] = i;
  }
  for (int i = 0; i < count; ++i)
    At(change.first + i) = std::move(sorted[static_cast<std::size_t>(i)]);
  change.order = std::move(back);
  return {change.first, RowCount() - change.first - count};
}

int ListContents::RowsInFrontOf(int place) const {
  const auto found =
      std::lower_bound(rows_.begin(), rows_.end(), static_cast<std::size_t>(std::max(0, place)));
  return static_cast<int>(found - rows_.begin());
}

} // namespace tq
