#include "dialogs/ListContents.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "idlist/IdString.h"
#include "idlist/RecordIndex.h"
#include "idlist/StorableText.h"
#include "platform/FieldText.h"
#include "platform/Text.h"
#include "symbollist/SymbolList.h"

namespace tq {

ListContents::ListContents(CSymbolList& list) {
  const int count = list.GetCount(); // resolves
  idsBefore_ = list.GetIDs();
  SymbolInfo record = {};
  int row = 0;
  bool there = row < count && list.GetAt(row, &record);
  std::string_view piece;
  for (std::size_t at = 0; NextPiece(ViewOf(idsBefore_), at, piece);) {
    Entry entry;
    entry.text = piece;
    const bool heading = tq::IsHeading(piece);
    // Rows are in the order of the entries, and an entry's record has the entry's id.
    if (there &&
        (heading ? IdOf(record) == kHeadingMarker : EqualsNoCase(IdOf(record), Trimmed(piece)))) {
      entry.kind = heading ? Entry::Kind::Heading : Entry::Kind::Symbol;
      if (!heading) {
        entry.text = IdOf(record);
        entry.name = FieldText(record.name);
      }
      there = ++row < count && list.GetAt(row, &record);
    }
    if (!heading)
      ids_.emplace(Trimmed(piece));
    entries_.push_back(std::move(entry));
  }
  NumberRows();
}

bool ListContents::IsHeading(int row) const {
  return At(row).kind == Entry::Kind::Heading;
}

CString ListContents::RowText(int row) const {
  const Entry& entry = At(row);
  if (entry.kind == Entry::Kind::Symbol)
    return ToCString(entry.text + ' ' + entry.name);
  const std::string_view text = entry.text;
  return ToCString(text.ends_with(kHeadingMarker) ? text.substr(0, text.size() - 1) : text);
}

CString ListContents::TextAt(int row) const {
  return ToCString(At(row).text);
}

std::vector<int> ListContents::RowsOf(std::span<const CString> ids) const {
  std::unordered_set<std::string_view, NoCaseHash, NoCaseEqual> wanted;
  for (const CString& id : ids)
    wanted.insert(Trimmed(ViewOf(id)));
  std::vector<int> found;
  for (int row = 0; row < RowCount(); ++row) {
    if (!IsHeading(row) && wanted.contains(Trimmed(At(row).text)))
      found.push_back(row);
  }
  return found;
}

bool ListContents::CanHold(std::string_view id) {
  return IsOneToken(id) && !tq::IsHeading(id) && id != kHeadingMarker && IsLoadable(id);
}

bool ListContents::Holds(std::string_view id) const {
  return ids_.contains(Trimmed(id));
}

int ListContents::Insert(int row, std::span<const SymbolInfo> symbols) {
  std::vector<Entry> fresh;
  std::unordered_set<std::string_view, NoCaseHash, NoCaseEqual> seen;
  for (const SymbolInfo& symbol : symbols) {
    const std::string_view id = IdOf(symbol);
    if (CanHold(id) && !Holds(id) && seen.insert(Trimmed(id)).second)
      fresh.push_back({std::string(id), std::string(FieldText(symbol.name)), Entry::Kind::Symbol});
  }
  const int count = static_cast<int>(fresh.size());
  if (count > 0)
    Do(Spliced{{{PlaceOf(row), count}}, std::move(fresh), false});
  return count;
}

void ListContents::InsertHeading(int row, const CString& entry) {
  Do(Spliced{{{PlaceOf(row), 1}}, {{std::string(ViewOf(entry)), {}, Entry::Kind::Heading}}, false});
}

void ListContents::SetHeading(int row, const CString& entry) {
  if (At(row).text != ViewOf(entry))
    Do(Retitled{row, std::string(ViewOf(entry))});
}

void ListContents::Remove(std::span<const int> rows) {
  Spliced removed{{}, {}, true};
  for (const int row : rows)
    AddPlace(removed.places, PlaceOf(row));
  if (!rows.empty())
    Do(std::move(removed));
}

bool ListContents::Move(std::span<const int> rows, bool up) {
  if (rows.empty() || (up ? rows.front() <= 0 : rows.back() >= RowCount() - 1))
    return false;
  Moved moved{{}, up};
  for (const int row : rows)
    AddPlace(moved.rows, row);
  Do(std::move(moved));
  return true;
}

void ListContents::Sort() {
  std::vector<int> order(rows_.size());
  std::iota(order.begin(), order.end(), 0);
  const auto isBefore = [this](int left, int right) { return At(left).text < At(right).text; };
  const auto isHeading = [this](int row) { return IsHeading(row); };
  for (auto first = order.begin(); first != order.end();) {
    const auto last = std::find_if(first, order.end(), isHeading);
    std::stable_sort(first, last, isBefore);
    first = last == order.end() ? last : last + 1;
  }
  int first = 0;
  int end = RowCount();
  while (first < end && order[static_cast<std::size_t>(first)] == first)
    ++first;
  while (end > first && order[static_cast<std::size_t>(end - 1)] == end - 1)
    --end;
  if (first == end)
    return;
  Sorted sorted{first, {}};
  for (int row = first; row < end; ++row)
    sorted.order.push_back(order[static_cast<std::size_t>(row)] - first);
  Do(std::move(sorted));
}

CString ListContents::Ids() const {
  if (!IsChanged())
    return idsBefore_;
  std::string ids;
  for (const Entry& entry : entries_) {
    if (!ids.empty())
      ids += ',';
    ids += entry.text;
  }
  return ToCString(ids);
}

// Behind the last row also means behind the unknown ids that end the list.
int ListContents::PlaceOf(int row) const {
  return static_cast<int>(row >= RowCount() ? entries_.size()
                                            : rows_[static_cast<std::size_t>(row)]);
}

void ListContents::NumberRows() {
  rows_.clear();
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (entries_[i].kind != Entry::Kind::Unknown)
      rows_.push_back(i);
  }
}

CString HeadingEntry(const CString& text) {
  if (!IsOneToken(ViewOf(text)) || !IsStorable(text))
    return {};
  return text + kHeadingMarker;
}

} // namespace tq
