#include "accounts/TradingTable.h"

#include <utility>

#include "accounts/TradingService.h"
#include "platform/Text.h"

namespace tq {

const CTS* TradingTable::Find(const CString& tsId) const {
  const int index = IndexOf(tsId);
  return index < 0 ? nullptr : &systems_[static_cast<size_t>(index)];
}

int TradingTable::IndexOf(const CString& tsId) const {
  for (size_t i = 0; i < systems_.size(); ++i) {
    if (FieldText(systems_[i].info.id) == ViewOf(tsId))
      return static_cast<int>(i);
  }
  return -1;
}

void TradingTable::Reload(const CString& tsId) {
  CTS fresh;
  const bool available = FetchTradingSystem(tsId, fresh);
  Put(tsId, available, std::move(fresh));
}

void TradingTable::Put(const CString& tsId, bool available, CTS fresh) {
  const int index = IndexOf(tsId);
  if (index >= 0) {
    CTS& entry = systems_[static_cast<size_t>(index)];
    // An emptied entry keeps its id, so that the next login finds it again.
    if (!available)
      std::memcpy(fresh.info.id, entry.info.id, sizeof(fresh.info.id));
    entry = std::move(fresh);
  } else if (available) {
    systems_.push_back(std::move(fresh));
  }
  Changed();
}

CAccount* TradingTable::FindAccount(const CString& tsId, const CString& accountId,
                                    TqsAccType type) {
  const int system = IndexOf(tsId);
  if (system < 0)
    return nullptr;
  CTS& entry = systems_[static_cast<size_t>(system)];
  const int account = entry.IndexOf(accountId, type);
  return account < 0 ? nullptr : &entry.accounts[static_cast<size_t>(account)];
}

void TradingTable::RefetchHoldings(const CString& tsId, const CString& accountId, TqsAccType type) {
  CString holdings;
  if (FindAccount(tsId, accountId, type) == nullptr ||
      !FetchHoldings(tsId, accountId, type, holdings))
    return;
  CAccount* const account = FindAccount(tsId, accountId, type); // a login may have replaced it
  if (account == nullptr)
    return;
  account->holdings = holdings;
  Changed();
}

// The library never reads this file, so a failed write is ignored; the next change tries again.
void TradingTable::Changed() {
  ++changes_;
  if (path_.IsEmpty())
    return;
  keptFiles_.Save(path_, TradingFileText(systems_));
}

} // namespace tq
