#include "terminal/desk/Choice.h"

#include <algorithm>

namespace desk {
namespace {

template <class ROWS, class TEST> int IndexOf(const ROWS& rows, TEST isIt) {
  const auto found = std::find_if(rows.begin(), rows.end(), isIt);
  return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

template <class ROWS> bool Has(const ROWS& rows, int index) {
  return index >= 0 && index < static_cast<int>(rows.size());
}

} // namespace

Choice::Choice(CTQSymbolListMgr& manager) : manager_(manager), place_(FirstPlace(manager)) {
  Reload();
}

int Choice::SourceIndex() const {
  return IndexOf(sources_,
                 [this](const NamedSource& each) { return each.source == place_.source; });
}

// Identifiers are compared as the manager does: ignoring letter case.
int Choice::ListIndex() const {
  return IndexOf(lists_,
                 [this](const NamedList& each) { return each.id.CompareNoCase(place_.list) == 0; });
}

void Choice::ChooseSource(int index) {
  if (!Has(sources_, index))
    return;
  place_ = {sources_[static_cast<size_t>(index)].source};
  lists_ = ListsOf(manager_, place_.source);
  ChooseList(0);
}

void Choice::ChooseList(int index) {
  if (Has(lists_, index))
    place_.list = lists_[static_cast<size_t>(index)].id;
}

void Choice::Choose(const Place& place) {
  place_ = place;
  Reload();
}

void Choice::Reload() {
  sources_ = SourcesOf(manager_);
  if (SourceIndex() == -1)
    place_ = FirstPlace(manager_);
  lists_ = ListsOf(manager_, place_.source);
  if (ListIndex() == -1)
    place_.list = lists_.empty() ? CString() : lists_.front().id;
}

} // namespace desk
