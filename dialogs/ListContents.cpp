#include "dialogs/ListContents.h"

#include <algorithm>
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
  for (const SymbolInfo& symbol : symbols) {
    const std::string_view id = IdOf(symbol);
    if (!CanHold(id) || Holds(id))
      continue;
    ids_.emplace(id);
    fresh.push_back({std::string(id), std::string(FieldText(symbol.name)), Entry::Kind::Symbol});
  }
  entries_.insert(PlaceOf(row), std::make_move_iterator(fresh.begin()),
                  std::make_move_iterator(fresh.end()));
  NumberRows();
  changed_ = changed_ || !fresh.empty();
  return static_cast<int>(fresh.size());
}

void ListContents::InsertHeading(int row, const CString& entry) {
  entries_.insert(PlaceOf(row), {std::string(ViewOf(entry)), {}, Entry::Kind::Heading});
  NumberRows();
  changed_ = true;
}

void ListContents::SetHeading(int row, const CString& entry) {
  At(row).text = ViewOf(entry);
  changed_ = true;
}

void ListContents::Remove(std::span<const int> rows) {
  std::vector<Entry> kept;
  kept.reserve(entries_.size());
  auto next = rows.begin();
  std::size_t row = 0;
  for (Entry& entry : entries_) {
    const bool hasRow = entry.kind != Entry::Kind::Unknown;
    if (hasRow && next != rows.end() && static_cast<std::size_t>(*next) == row) {
      ++next;
      if (entry.kind == Entry::Kind::Symbol)
        ids_.erase(ids_.find(Trimmed(entry.text)));
    } else {
      kept.push_back(std::move(entry));
    }
    row += hasRow ? 1 : 0;
  }
  changed_ = changed_ || kept.size() != entries_.size();
  entries_ = std::move(kept);
  NumberRows();
}

bool ListContents::Move(std::span<const int> rows, bool up) {
  if (rows.empty() || (up ? rows.front() <= 0 : rows.back() >= RowCount() - 1))
    return false;
  if (up) {
    for (const int row : rows)
      std::swap(At(row), At(row - 1));
  } else {
    for (std::size_t i = rows.size(); i > 0; --i)
      std::swap(At(rows[i - 1]), At(rows[i - 1] + 1));
  }
  changed_ = true;
  return true;
}

void ListContents::Sort() {
  const auto isBefore = [this](std::size_t left, std::size_t right) {
    return entries_[left].text < entries_[right].text;
  };
  const auto isHeading = [this](std::size_t place) {
    return entries_[place].kind == Entry::Kind::Heading;
  };
  for (auto first = rows_.begin(); first != rows_.end();) {
    const auto last = std::find_if(first, rows_.end(), isHeading);
    if (!std::is_sorted(first, last, isBefore))
      SortRows({first, last});
    first = last == rows_.end() ? last : last + 1;
  }
}

void ListContents::SortRows(std::span<const std::size_t> places) {
  std::vector<Entry> symbols;
  for (const std::size_t place : places)
    symbols.push_back(std::move(entries_[place]));
  std::stable_sort(symbols.begin(), symbols.end(),
                   [](const Entry& left, const Entry& right) { return left.text < right.text; });
  for (std::size_t i = 0; i < places.size(); ++i)
    entries_[places[i]] = std::move(symbols[i]);
  changed_ = true;
}

CString ListContents::Ids() const {
  if (!changed_)
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
std::vector<ListContents::Entry>::iterator ListContents::PlaceOf(int row) {
  if (row >= RowCount())
    return entries_.end();
  return entries_.begin() + static_cast<std::ptrdiff_t>(rows_[static_cast<std::size_t>(row)]);
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
