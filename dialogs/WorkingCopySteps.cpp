// Steps of the editor of lists, which are taken back and done again in one way.
#include <string>
#include <utility>

#include "dialogs/WorkingCopy.h"
#include "platform/Text.h"

namespace tq {

void WorkingCopy::Keep(Change change, int defaultBefore, int selectedBefore, int selectedAfter) {
  if (keepsSteps_)
    history_.Add({std::move(change), defaultBefore, defaultIndex_, selectedBefore, selectedAfter});
}

WorkingCopy::Edited WorkingCopy::EditOf(int index, CSymbolList& before, CSymbolList& after) {
  return {index, before.GetName(), IdsChange(ViewOf(before.GetIDs()), ViewOf(after.GetIDs()))};
}

std::optional<int> WorkingCopy::Undo() {
  Step* const step = history_.Back();
  return step == nullptr ? std::nullopt : Turn(*step, step->defaultBefore, step->selectedBefore);
}

std::optional<int> WorkingCopy::Redo() {
  Step* const step = history_.Forth();
  return step == nullptr ? std::nullopt : Turn(*step, step->defaultAfter, step->selectedAfter);
}

// The change comes last, and nothing is done behind it: a list that gets other symbols asks the
// service, which may let the user go on.
std::optional<int> WorkingCopy::Turn(Step& step, int defaultIndex, int selected) {
  const int before = std::exchange(defaultIndex_, defaultIndex);
  if (std::visit([this](auto& change) { return Apply(change); }, step.change))
    return selected;
  defaultIndex_ = before;
  history_.Clear();
  return std::nullopt;
}

bool WorkingCopy::Apply(Marked&) {
  return true;
}

bool WorkingCopy::Apply(Listed& change) {
  if (change.out == nullptr ? !Has(change.index) : change.index > Count())
    return false;
  if (change.out == nullptr)
    change.out = Take(change.index);
  else
    Insert(change.index, std::move(change.out));
  return true;
}

bool WorkingCopy::Apply(Swapped& change) {
  if (!Has(change.index) || !Has(change.neighbour))
    return false;
  std::swap(lists_[static_cast<std::size_t>(change.index)],
            lists_[static_cast<std::size_t>(change.neighbour)]);
  return true;
}

bool WorkingCopy::Apply(Edited& change) {
  if (!Has(change.index))
    return false;
  CSymbolList& list = At(change.index);
  std::string ids(ViewOf(list.GetIDs()));
  if (!change.ids.Turn(ids))
    return false;
  const CString name = std::exchange(change.name, list.GetName());
  list.SetName(name);
  list.Update1(ToCString(ids));
  return true;
}

void WorkingCopy::Insert(int index, std::unique_ptr<CSymbolList> list) {
  lists_.insert(lists_.begin() + index, std::move(list));
}

std::unique_ptr<CSymbolList> WorkingCopy::Take(int index) {
  const auto at = lists_.begin() + index;
  std::unique_ptr<CSymbolList> list = std::move(*at);
  lists_.erase(at);
  return list;
}

} // namespace tq
