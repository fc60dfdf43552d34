// The manager's default exchanges, exchange order and buffer of all symbols.
#include <algorithm>
#include <cstring>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "exchanges/DefaultExchangeIds.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/ServiceArray.h"
#include "symboltable/ExchangeService.h"
#include "symboltable/SymbolTableMgr.h"

namespace {

// All symbols of the exchanges, in that order. `complete` is cleared when an exchange could not be
// read.
std::vector<tq::ServiceArray<SymbolInfo>> ReadSymbols(const CUIntArray& exchanges, bool& complete) {
  constexpr int kAllSections = -1;
  std::vector<tq::ServiceArray<SymbolInfo>> lists;
  lists.reserve(static_cast<size_t>(exchanges.GetSize()));
  for (const unsigned exchange : exchanges) {
    tq::ServiceArray<SymbolInfo> list;
    if (VLGetSymbolInfos2(static_cast<int>(exchange), kAllSections, list.List(), list.Count(), 0) ==
        0)
      complete = false;
    else if (!list.Records().empty())
      lists.push_back(std::move(list));
  }
  return lists;
}

} // namespace

int CTQSymbolListMgr::LoadDefaultExchange(CUIntArray& ids, int useUser,
                                          const char* /*unused*/) noexcept {
  if (useUser != 0 || DoLoadDefaultExchange(ids) == 0)
    DoLoadUserDefaultExchange(ids);
  return 1;
}

int CTQSymbolListMgr::DoLoadDefaultExchange(CUIntArray& ids) noexcept {
  return tq::ReadDefaultExchangeIds(ids) ? 1 : 0;
}

int CTQSymbolListMgr::DoLoadUserDefaultExchange(CUIntArray& ids) noexcept {
  ids.Copy(userDefaultExchanges_);
  return 1;
}

void CTQSymbolListMgr::ClearDefaultExchangeData() noexcept {
  defaultExchanges_.RemoveAll();
  defaultRecords_.RemoveAll();
  if (ExchInfo* const records = std::exchange(exchangeRecords_, nullptr))
    VLFree(records);
}

int CTQSymbolListMgr::InitDefaultExchange() noexcept {
  ClearDefaultExchangeData();
  // While the services are asked the terminal may call this again: what they say is kept apart
  // until then.
  CUIntArray exchanges;
  LoadDefaultExchange(exchanges, useUserDefExch_, "");
  tq::ServiceArray<ExchInfo> list;
  const int result = VLGetExch(list.List(), list.Count(), 1);
  defaultExchanges_.Copy(exchanges);
  const size_t count = result == 0 ? 0 : list.Records().size();
  tq::ServiceArray<ExchInfo> before; // given back last, when all is in place
  *before.List() = std::exchange(exchangeRecords_, list.Release());
  const std::span<ExchInfo> records(exchangeRecords_, count);
  defaultRecords_.SetSize(defaultExchanges_.GetSize());
  for (int i = 0; i < defaultExchanges_.GetSize(); ++i) {
    const auto found = std::find_if(records.begin(), records.end(), [&](const ExchInfo& record) {
      return record.id == static_cast<int>(defaultExchanges_[i]);
    });
    defaultRecords_[i] = found == records.end() ? nullptr : &*found;
  }
  return result != 0;
}

int CTQSymbolListMgr::GetDefaultExchange(int index) noexcept {
  return static_cast<int>(defaultExchanges_.GetAt(index));
}

int CTQSymbolListMgr::GetDefaultExchangeCount() noexcept {
  return defaultExchanges_.GetSize();
}

int CTQSymbolListMgr::IsDefaultExchange(int exchId) noexcept {
  return tq::ContainsId(defaultExchanges_, static_cast<unsigned>(exchId));
}

int CTQSymbolListMgr::IsDefaultExchangeChange() noexcept {
  CUIntArray now;
  if (!tq::ReadDefaultExchangeIds(now))
    return 0;
  return !std::equal(now.begin(), now.end(), defaultExchanges_.begin(), defaultExchanges_.end());
}

void CTQSymbolListMgr::ReLoadDefaultExch(int force) noexcept {
  if (force == 0 && IsDefaultExchangeChange() == 0) {
    if (CheckAllSymbolByExch() != 0)
      SortAllSymbolByExch();
    return;
  }
  InitDefaultExchange();
  SortAllSymbolByExch();
  if (symbolTables_ != nullptr)
    symbolTables_->InitDefaultExchList(defaultExchanges_);
}

int CTQSymbolListMgr::UpdateDefaultExch(CUIntArray& ids) noexcept {
  userDefaultExchanges_.Copy(ids);
  ReLoadDefaultExch(1);
  return 1;
}

int CTQSymbolListMgr::LoadDefExchOrder(CUIntArray& order) noexcept {
  exchangeOrder_.Copy(order);
  return !exchangeOrder_.IsEmpty();
}

void CTQSymbolListMgr::GetDefExchOrder(CUIntArray& order) noexcept {
  order.Copy(exchangeOrder_);
}

// Whatever the order, it is accepted as it is.
int CTQSymbolListMgr::CheckExchOrder(CUIntArray& /*order*/) noexcept {
  return 1;
}

void CTQSymbolListMgr::SortAllSymbolByExch() noexcept {
  CUIntArray exchanges;
  {
    const tq::ExchangeList list;
    if (list.Result() == 0)
      return;
    for (const ExchInfo& record : list.Records())
      exchanges.Add(static_cast<unsigned>(record.id));
  }
  tq::MoveDefaultsForward(exchanges, defaultExchanges_);
  bool complete = true;
  const std::vector<tq::ServiceArray<SymbolInfo>> lists = ReadSymbols(exchanges, complete);
  // A buffer that lacks an exchange is better than none, but not than the whole one of before.
  if (!complete && allSymbols_ != nullptr)
    return;
  size_t total = 0;
  for (const auto& list : lists)
    total += list.Records().size();
  ClearAllSymbols();
  if (total == 0)
    return;
  // Hundreds of bytes a symbol in one piece: where that is not to be had there is no buffer.
  allSymbols_ = new (std::nothrow) SymbolInfo[total];
  if (allSymbols_ == nullptr)
    return;
  for (const auto& list : lists) {
    const std::span<const SymbolInfo> records = list.Records();
    if (!records.empty())
      std::memcpy(allSymbols_ + allSymbolCount_, records.data(), records.size_bytes());
    allSymbolCount_ += static_cast<int>(records.size());
  }
}

void CTQSymbolListMgr::ClearAllSymbols() {
  delete[] allSymbols_;
  allSymbols_ = nullptr;
  allSymbolCount_ = 0;
}

int CTQSymbolListMgr::CheckAllSymbolByExch() noexcept {
  return allSymbols_ == nullptr || allSymbolCount_ == 0;
}

int CTQSymbolListMgr::GetAllSymbolInfos(SymbolInfo** out, int* count) noexcept {
  if (out == nullptr || count == nullptr || CheckAllSymbolByExch() != 0)
    return 0;
  auto* const copy = new (std::nothrow) SymbolInfo[static_cast<size_t>(allSymbolCount_)];
  if (copy == nullptr)
    return 0;
  *out = copy;
  std::memcpy(*out, allSymbols_, static_cast<size_t>(allSymbolCount_) * sizeof(SymbolInfo));
  *count = allSymbolCount_;
  return 1;
}

void CTQSymbolListMgr::FreeSymbolInfos(SymbolInfo* infos) noexcept {
  delete[] infos;
}
