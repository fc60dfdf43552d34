// Entry edits of a list.
#include <algorithm>
#include <cstring>
#include <utility>

#include "symbollist/IDList.h"
#include "symbollist/IdString.h"

namespace {

bool IsOneEntry(const CString& text) {
  return !text.IsEmpty() && text.Find(',') < 0;
}

} // namespace

int CIDList::RemoveEntry(int row) {
  ResolveIfDue();
  if (row < 0 || row >= count_)
    return 0;
  tokens_.RemoveAt(static_cast<int>(RowTokens()[row]));
  const auto behind = static_cast<size_t>(count_ - row - 1);
  std::memmove(&records_[row], &records_[row + 1], behind * sizeof(SymbolInfo));
  std::memset(&records_[--count_], 0, sizeof(SymbolInfo));
  JoinTokens();
  return 1;
}

int CIDList::SwapEntries(int first, int second) {
  ResolveIfDue();
  if (first == second || std::min(first, second) < 0 || std::max(first, second) >= count_)
    return 0;
  const CUIntArray tokenOf = RowTokens();
  std::swap(tokens_[static_cast<int>(tokenOf[first])], tokens_[static_cast<int>(tokenOf[second])]);
  std::swap(records_[first], records_[second]);
  JoinTokens();
  return 1;
}

int CIDList::ReplaceEntry(int row, const CString& text) {
  ResolveIfDue();
  if (row < 0 || row >= count_ || !IsOneEntry(text))
    return 0;
  tokens_[static_cast<int>(RowTokens()[row])] = text;
  JoinTokens();
  modified_ = 1;
  Update3();
  return 1;
}

int CIDList::InsertEntry(int row, const CString& text, bool before) {
  // Without its rows a list that has ids cannot tell which place is meant.
  if (!ResolveIfDue() && !ids_.IsEmpty())
    return 0;
  if (!IsOneEntry(text) || (!tq::IsHeading(text, text.GetLength()) && Holds(text)))
    return 0;
  int token = 0;
  if (row >= count_)
    token = tokens_.GetSize();
  else if (row >= 0)
    token = static_cast<int>(RowTokens()[row]) + (before ? 0 : 1);
  tokens_.InsertAt(token, text);
  JoinTokens();
  modified_ = 1;
  Update3();
  return 1;
}

void CIDList::JoinRows(CString& out) {
  ResolveIfDue();
  const CUIntArray tokenOf = RowTokens();
  CString rows;
  rows.Preallocate(ids_.GetLength());
  for (int row = 0; row < count_; ++row) {
    if (row > 0)
      rows += ',';
    rows += tokens_[static_cast<int>(tokenOf[row])];
  }
  out = rows;
}

bool CIDList::Holds(const CString& id) const {
  CString wanted = id;
  tq::NormaliseId(wanted);
  for (int i = 0; i < tokens_.GetSize(); ++i) {
    CString token = tokens_[i];
    tq::NormaliseId(token);
    if (token == wanted)
      return true;
  }
  return false;
}

// The token of each row. Rows stand in the order of the tokens, and a token without a row is one whose
// id is not that of the next record.
CUIntArray CIDList::RowTokens() const {
  CUIntArray tokenOf;
  tokenOf.SetSize(count_);
  int row = 0;
  for (int i = 0; i < tokens_.GetSize() && row < count_; ++i) {
    const CString& token = tokens_[i];
    const bool heading = tq::IsHeading(token, token.GetLength());
    const char* wanted = heading ? tq::kHeadingMarker : token.GetString();
    if (std::strncmp(records_[row].id, wanted, sizeof(SymbolInfo::id)) == 0)
      tokenOf[row++] = static_cast<unsigned>(i);
  }
  return tokenOf;
}

void CIDList::JoinTokens() {
  int length = 0;
  for (int i = 0; i < tokens_.GetSize(); ++i)
    length += tokens_[i].GetLength() + 1;
  CString ids;
  ids.Preallocate(length);
  for (int i = 0; i < tokens_.GetSize(); ++i) {
    if (i > 0)
      ids += ',';
    ids += tokens_[i];
  }
  ids_ = ids;
}
