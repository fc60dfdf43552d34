// Entry edits of a list.
#include <algorithm>
#include <cstring>
#include <utility>

#include "idlist/IDList.h"
#include "idlist/IdString.h"
#include "idlist/LifeWatch.h"
#include "idlist/RecordIndex.h"
#include "idlist/StorableText.h"
#include "platform/Text.h"

int CIDList::RemoveEntry(int row) noexcept {
  if (ResolveIfDue() != Rows::There || row < 0 || row >= count_)
    return 0;
  const auto token = rowTokens_[row];
  std::vector<std::string_view> entries = Entries();
  entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(token));
  StoreEntries(entries);
  tokens_.RemoveAt(static_cast<int>(token));
  const auto behind = static_cast<size_t>(count_ - row - 1);
  std::memmove(&RowAt(row), records_.get() + row + 1, behind * sizeof(SymbolInfo));
  std::memset(&RowAt(--count_), 0, sizeof(SymbolInfo));
  rowTokens_.RemoveAt(row);
  for (int i = row; i < count_; ++i)
    --rowTokens_[i];
  return 1;
}

int CIDList::SwapEntries(int first, int second) noexcept {
  if (ResolveIfDue() != Rows::There || first == second || std::min(first, second) < 0 ||
      std::max(first, second) >= count_)
    return 0;
  const auto firstToken = rowTokens_[first];
  const auto secondToken = rowTokens_[second];
  std::vector<std::string_view> entries = Entries();
  std::swap(entries[firstToken], entries[secondToken]);
  StoreEntries(entries);
  std::swap(tokens_[static_cast<int>(firstToken)], tokens_[static_cast<int>(secondToken)]);
  std::swap(RowAt(first), RowAt(second));
  return 1;
}

int CIDList::ReplaceEntry(int row, const CString& text) noexcept {
  const tq::LifeWatch watch(watch_);
  const CString kept = tq::StorableText(text); // which may log, and the terminal delete the list
  if (watch.IsGone() || ResolveIfDue() != Rows::There || row < 0 || row >= count_ ||
      !tq::IsOneToken(tq::ViewOf(kept)))
    return 0;
  std::vector<std::string_view> entries = Entries();
  entries[rowTokens_[row]] = tq::ViewOf(kept);
  return ChangeEntries(entries);
}

int CIDList::InsertEntry(int row, const CString& text, bool before) noexcept {
  const tq::LifeWatch watch(watch_);
  const CString kept = tq::StorableText(text);
  // Positions count rows: without them the place is unknown.
  const Rows rows = watch.IsGone() ? Rows::ListGone : ResolveIfDue();
  if (rows == Rows::ListGone || (rows == Rows::None && !ids_.IsEmpty()))
    return 0;
  if (!tq::IsOneToken(tq::ViewOf(kept)) || (!tq::IsHeading(tq::ViewOf(kept)) && Holds(kept)))
    return 0;
  std::vector<std::string_view> entries = Entries();
  size_t place = 0;
  if (row >= count_)
    place = entries.size();
  else if (row >= 0)
    place = rowTokens_[row] + (before ? 0 : 1);
  entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(place), tq::ViewOf(kept));
  return ChangeEntries(entries);
}

void CIDList::JoinRows(CString& out) noexcept {
  if (ResolveIfDue() != Rows::There) {
    out.Empty();
    return;
  }
  const std::vector<std::string_view> entries = Entries();
  CString rows;
  rows.Preallocate(ids_.GetLength());
  for (int row = 0; row < count_; ++row) {
    if (row > 0)
      rows += ',';
    const std::string_view entry = entries[rowTokens_[row]];
    rows.Append(entry.data(), static_cast<int>(entry.size()));
  }
  out = rows;
}

bool CIDList::Holds(const CString& id) const noexcept {
  CString wanted = id;
  tq::NormaliseId(wanted);
  return std::find(tokens_.begin(), tokens_.end(), wanted) != tokens_.end();
}

// For each token its text in the rebuilt string: the id of its record, or, for a heading or an
// unknown id, the text unchanged.
std::vector<std::string_view> CIDList::Entries() const {
  std::vector<std::string_view> entries;
  entries.reserve(static_cast<size_t>(tokens_.GetSize()));
  std::string_view piece;
  for (size_t at = 0; tq::NextPiece(tq::ViewOf(ids_), at, piece);)
    entries.push_back(piece);
  for (int row = 0; row < count_; ++row) {
    std::string_view& entry = entries[rowTokens_[row]];
    if (!tq::IsHeading(entry))
      entry = tq::IdOf(RowAt(row));
  }
  return entries;
}

void CIDList::StoreEntries(const std::vector<std::string_view>& entries) {
  size_t length = 0;
  for (const std::string_view& entry : entries)
    length += entry.size() + 1;
  CString ids;
  ids.Preallocate(static_cast<int>(length));
  for (const std::string_view& entry : entries) {
    if (&entry != entries.data())
      ids += ',';
    ids.Append(entry.data(), static_cast<int>(entry.size()));
  }
  ids_ = ids; // the entries may have referred to the string of before
}

int CIDList::ChangeEntries(const std::vector<std::string_view>& entries) {
  StoreEntries(entries);
  modified_ = 1;
  Update3();
  return 1;
}
