#include "symbollist/IDList.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

#include "platform/ServiceArray.h"
#include "platform/Text.h"
#include "symbollist/IdString.h"
#include "symbollist/LifeWatch.h"
#include "symbollist/RecordIndex.h"
#include "symbollist/StorableText.h"

namespace {

// A resolved list has an array even when it has no rows: that is how it knows not to ask again.
std::unique_ptr<SymbolInfo[]> NewRecords(int count) {
  return std::make_unique<SymbolInfo[]>(static_cast<size_t>(std::max(count, 1)));
}

bool NamesASymbol(const SymbolInfo& record) {
  const std::string_view id = tq::IdOf(record);
  return tq::IsOneToken(id) && tq::IsStorable({id.data(), static_cast<int>(id.size())});
}

} // namespace

CIDList::CIDList() noexcept : watch_(nullptr), records_(nullptr), count_(0), modified_(0) {}

CIDList::CIDList(const CIDList& other) noexcept : CIDList() {
  CopyContents(other);
}

void CIDList::CopyContents(const CIDList& other) {
  DiscardRecords();
  ids_ = other.ids_;
  count_ = other.count_;
  modified_ = other.modified_;
  tokens_.Copy(other.tokens_);
  rowTokens_.Copy(other.rowTokens_);
  if (other.records_ == nullptr)
    return;
  records_ = NewRecords(count_).release();
  std::memcpy(records_, other.records_, static_cast<size_t>(count_) * sizeof(SymbolInfo));
}

CIDList::~CIDList() {
  tq::LifeWatch::Cut(watch_);
  delete[] records_;
}

int CIDList::GetCount() {
  return ResolveIfDue() == Rows::There ? count_ : 0;
}

bool CIDList::GetAt(int index, SymbolInfo* out) {
  if (ResolveIfDue() != Rows::There || out == nullptr || index < 0 || index >= count_)
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
  return TakeRecords(records, count);
}

int CIDList::TakeRecords(SymbolInfo* records, int count) noexcept {
  const int given = records == nullptr ? 0 : std::max(count, 0);
  DiscardRecords();
  records_ = NewRecords(given).release();
  std::vector<std::string_view> ids;
  ids.reserve(static_cast<size_t>(given));
  for (int i = 0; i < given; ++i) {
    if (!NamesASymbol(records[i]))
      continue;
    std::memcpy(&records_[count_], &records[i], sizeof(SymbolInfo));
    ids.push_back(tq::IdOf(records_[count_++]));
  }
  StoreEntries(ids);
  tq::SplitIdString(ids_, tokens_);
  for (int row = 0; row < count_; ++row)
    rowTokens_.Add(static_cast<unsigned>(row));
  // Last: from within the call the terminal may delete the list.
  if (records != nullptr)
    VLFree(records);
  return 1;
}

int CIDList::Update1(const CString& ids) {
  if (!Keep(ids))
    return 0;
  Resolve();
  return 1;
}

// Whether the string is another one now.
bool CIDList::Keep(const CString& ids) noexcept {
  const tq::LifeWatch watch(watch_);
  const CString kept = tq::StorableText(ids); // which may log, and the terminal delete the list
  if (watch.IsGone() || kept == ids_)
    return false;
  modified_ = 1;
  DiscardRecords();
  ids_ = kept;
  return true;
}

void CIDList::UpdateWithCopy(const CString& ids, CIDList& copy) noexcept {
  const tq::LifeWatch watch(watch_);
  Update1(ids);
  if (!watch.IsGone() && ids_ == ids)
    copy.CopyContents(*this);
  else
    copy.Update1(ids);
}

const CString& CIDList::GetIDs() {
  return ids_;
}

void CIDList::DiscardRecords() noexcept {
  delete[] std::exchange(records_, nullptr);
  count_ = 0;
  rowTokens_.RemoveAll();
}

// A list without a string has nothing to ask for; one whose look-up failed asks again, whether its
// string came from a caller or from records.
CIDList::Rows CIDList::ResolveIfDue() {
  if (records_ == nullptr && (modified_ != 0 || !ids_.IsEmpty()))
    return Resolve();
  return State();
}

// Fills the rows from the string. There are none when the service failed, and the next question
// asks it again.
CIDList::Rows CIDList::Resolve() noexcept {
  const tq::SplitIds split = tq::SplitIdString(ids_, tokens_);
  if (ids_.IsEmpty()) {
    count_ = 0;
    return Rows::None;
  }
  if (tokens_.GetSize() == split.headings)
    TakeRows(nullptr, 0, split.headings);
  else if (!Ask(split.headings, split.plain ? ids_ : tq::LookupString(ids_)))
    return Rows::ListGone;
  return State();
}

// False when the list is gone, which the terminal may delete whenever the service is called, also
// to take its answer back.
bool CIDList::Ask(int headings, const CString& lookup) {
  const CString asked = ids_;
  const tq::LifeWatch watch(watch_);
  {
    tq::ServiceArray<SymbolInfo> answer;
    const int answered = VLGetSymbolInfos(lookup, answer.List(), answer.Count());
    // What the list has now, if the terminal changed it from within the call, was resolved then or
    // could not be; this answer is to another question.
    if (!watch.IsGone() && answered != 0 && ids_ == asked)
      TakeRows(answer.Records().data(), static_cast<int>(answer.Records().size()), headings);
  }
  return !watch.IsGone();
}

void CIDList::TakeRows(const SymbolInfo* found, int foundCount, int headings) {
  const int capacity = foundCount + headings;
  std::unique_ptr<SymbolInfo[]> records = NewRecords(capacity);
  DiscardRecords();
  rowTokens_.SetSize(capacity);
  tq::RecordIndex index({found, static_cast<size_t>(foundCount)});
  std::string_view piece;
  unsigned token = 0;
  for (size_t at = 0; count_ < capacity && tq::NextPiece(tq::ViewOf(ids_), at, piece); ++token) {
    SymbolInfo& row = records[static_cast<size_t>(count_)];
    if (tq::IsHeading(piece))
      std::memcpy(row.id, tq::kHeadingMarker, sizeof(tq::kHeadingMarker));
    else if (const SymbolInfo* record = index.Find(tq::Trimmed(piece)))
      std::memcpy(&row, record, sizeof(SymbolInfo));
    else
      continue;
    rowTokens_[count_++] = token;
  }
  // A record that belongs to no token (the service answered with another id) gets no row: an empty
  // row would be a symbol that the user never asked for.
  rowTokens_.SetSize(count_);
  records_ = records.release();
}
