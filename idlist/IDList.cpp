#include "idlist/IDList.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <span>
#include <utility>

#include "idlist/IdString.h"
#include "idlist/LifeWatch.h"
#include "idlist/RecordIndex.h"
#include "idlist/StorableText.h"
#include "platform/ServiceArray.h"
#include "platform/Text.h"

namespace {

// At least one element: a non-null array marks a list as resolved even when it has no rows.
std::unique_ptr<SymbolInfo[]> NewRecords(int count) {
  return std::make_unique<SymbolInfo[]>(static_cast<size_t>(std::max(count, 1)));
}

bool NamesASymbol(const SymbolInfo& record) {
  const std::string_view id = tq::IdOf(record);
  return tq::IsOneToken(id) && tq::IsStorable({id.data(), static_cast<int>(id.size())});
}

} // namespace

CIDList::CIDList() noexcept : watch_(nullptr), count_(0), modified_(0) {}

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
  records_ = NewRecords(count_);
  std::memcpy(records_.get(), other.records_.get(),
              static_cast<size_t>(count_) * sizeof(SymbolInfo));
}

CIDList::~CIDList() {
  tq::LifeWatch::Cut(watch_);
}

int CIDList::GetCount() {
  return ResolveIfDue() == Rows::There ? count_ : 0;
}

bool CIDList::GetAt(int index, SymbolInfo* out) {
  if (ResolveIfDue() != Rows::There || out == nullptr || index < 0 || index >= count_)
    return false;
  std::memcpy(out, &RowAt(index), sizeof(SymbolInfo));
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
  records_ = NewRecords(given);
  std::vector<std::string_view> ids;
  ids.reserve(static_cast<size_t>(given));
  for (int i = 0; i < given; ++i) {
    if (!NamesASymbol(records[i]))
      continue;
    std::memcpy(&RowAt(count_), &records[i], sizeof(SymbolInfo));
    ids.push_back(tq::IdOf(RowAt(count_++)));
  }
  StoreEntries(ids);
  tq::SplitIdString(ids_, tokens_);
  for (int row = 0; row < count_; ++row)
    rowTokens_.Add(static_cast<unsigned>(row));
  // Last, since the terminal may delete the list during the call.
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

// Stores the string; true when it changed.
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
  records_.reset();
  count_ = 0;
  rowTokens_.RemoveAll();
}

// A list whose last look-up failed asks again; one without ids has nothing to ask for.
CIDList::Rows CIDList::ResolveIfDue() {
  if (records_ == nullptr && (modified_ != 0 || !ids_.IsEmpty()))
    return Resolve();
  return State();
}

// Fills the rows from the string. When the service fails there are none, and the next access asks
// again.
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

// False when the list is gone: the terminal may delete it during any call of the service, including
// the release of its answer.
bool CIDList::Ask(int headings, const CString& lookup) {
  const CString asked = ids_;
  const tq::LifeWatch watch(watch_);
  {
    tq::ServiceArray<SymbolInfo> answer("VLGetSymbolInfos");
    const bool answered = VLGetSymbolInfos(lookup, answer.List(), answer.Count()) != 0;
    const std::span<const SymbolInfo> found =
        answered ? answer.Records() : std::span<const SymbolInfo>();
    // If the terminal changed the list during the call, this answer is to an outdated question.
    if (!watch.IsGone() && answered && ids_ == asked)
      TakeRows(found.data(), static_cast<int>(found.size()), headings);
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
  // A record that matches no token gets no row: the user never asked for that symbol.
  rowTokens_.SetSize(count_);
  records_ = std::move(records);
}
