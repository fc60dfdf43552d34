#include "symbollist/IDList.h"

#include <algorithm>
#include <cstring>
#include <span>

#include "symbollist/IdString.h"
#include "symbollist/RecordIndex.h"
#include "symboltable/ServiceArray.h"

namespace {

// A resolved list has an array even when it has no rows: that is how it knows not to ask again.
SymbolInfo* NewRecords(int count) {
  return new SymbolInfo[static_cast<size_t>(std::max(count, 1))]();
}

} // namespace

CIDList::CIDList() : records_(nullptr), count_(0), modified_(0) {}

CIDList::CIDList(const CIDList& other)
    : ids_(other.ids_), records_(nullptr), count_(other.count_), modified_(other.modified_) {
  tokens_.Copy(other.tokens_);
  if (other.records_ == nullptr)
    return;
  records_ = NewRecords(count_);
  std::memcpy(records_, other.records_, static_cast<size_t>(count_) * sizeof(SymbolInfo));
}

CIDList::~CIDList() {
  delete[] records_;
}

int CIDList::GetCount() {
  ResolveIfDue();
  return count_;
}

bool CIDList::GetAt(int index, SymbolInfo* out) {
  if (!ResolveIfDue() || out == nullptr || index < 0 || index >= count_)
    return false;
  std::memcpy(out, &records_[index], sizeof(SymbolInfo));
  return true;
}

int CIDList::Update3() {
  DiscardRecords();
  Resolve();
  return 1;
}

int CIDList::Update2(SymbolInfo* records, int count) {
  const int taken = records == nullptr ? 0 : std::max(count, 0);
  DiscardRecords();
  records_ = NewRecords(taken);
  count_ = taken;
  if (taken > 0)
    std::memcpy(records_, records, static_cast<size_t>(taken) * sizeof(SymbolInfo));
  if (records != nullptr)
    VLFree(records);
  RebuildFromRecords();
  return 1;
}

int CIDList::Update1(const CString& ids) {
  if (ids == ids_)
    return 0;
  modified_ = 1;
  DiscardRecords();
  ids_ = ids;
  Resolve();
  return 1;
}

const CString& CIDList::GetIDs() {
  return ids_;
}

void CIDList::DiscardRecords() {
  delete[] records_;
  records_ = nullptr;
  count_ = 0;
}

// A list without a string has nothing to ask for; one whose look-up failed asks again, whether its string
// came from a caller or from records.
bool CIDList::ResolveIfDue() {
  if (records_ == nullptr && (modified_ != 0 || !ids_.IsEmpty()))
    return Resolve();
  return records_ != nullptr;
}

// Fills the records from the string. False when the service failed: the list then has no rows, and the
// next question asks the service again.
bool CIDList::Resolve() {
  const tq::SplitIds split = tq::SplitIdString(ids_, tokens_);
  if (ids_.IsEmpty()) {
    count_ = 0;
    return false;
  }
  tq::ServiceArray<SymbolInfo> answer;
  if (tokens_.GetSize() > split.headings) {
    const CString lookup = split.plain ? ids_ : tq::LookupString(tokens_);
    if (VLGetSymbolInfos(lookup, answer.List(), answer.Count()) == 0)
      return false;
  }
  const std::span<const SymbolInfo> found = answer.Records();
  const int capacity = static_cast<int>(found.size()) + split.headings;
  records_ = NewRecords(capacity);
  tq::RecordIndex index(found);
  int row = 0;
  for (int i = 0; i < tokens_.GetSize(); ++i) {
    CString& token = tokens_[i];
    const bool heading = tq::IsHeading(token.GetString(), token.GetLength());
    if (!heading)
      tq::NormaliseId(token);
    if (row == capacity)
      continue;
    if (heading)
      std::memcpy(records_[row++].id, tq::kHeadingMarker, sizeof(tq::kHeadingMarker));
    else if (const SymbolInfo* record = index.Find(token))
      std::memcpy(&records_[row++], record, sizeof(SymbolInfo));
  }
  // A record that belongs to no token (the service answered with another id) gets no row: an empty
  // row would be a symbol that the user never asked for.
  count_ = row;
  return true;
}

void CIDList::RebuildFromRecords() {
  CString ids;
  for (int i = 0; i < count_; ++i) {
    if (i > 0)
      ids += ',';
    ids.Append(records_[i].id, static_cast<int>(strnlen(records_[i].id, sizeof(records_[i].id))));
  }
  ids_ = ids;
  tq::SplitIdString(ids_, tokens_);
}
