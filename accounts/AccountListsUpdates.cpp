// What trading accounts hold: logins, changes of holdings, queries.
#include "accounts/AccountLists.h"
#include "accounts/Holdings.h"
#include "accounts/TradingService.h"
#include "idlist/ListKind.h"
#include "platform/LibraryString.h"
#include "platform/Notify.h"

namespace tq {
namespace {

struct AccountList {
  explicit AccountList(const CAccount& account)
      : id(account.ListId()), name(account.DisplayId()), symbols(account.holdings) {}
  CString id;
  CString name;
  CString symbols;
};

std::vector<AccountList> ListsOfAccounts(const CTS* system) {
  if (system == nullptr)
    return {};
  return std::vector<AccountList>(system->accounts.begin(), system->accounts.end());
}

} // namespace

const CTS* AccountLists::FindSystem(const CString& tsId) const {
  const TradingTable* const table = Table();
  return table == nullptr ? nullptr : table->Find(tsId);
}

int AccountLists::AddAllHoldings() {
  if (Table() == nullptr || lists_.Find(TQListIdAllHoldings) != nullptr)
    return 0;
  return Add(TQListIdAllHoldings, kUserLists, LibraryString(kStringAllHoldings), CString(), true);
}

// Whenever the service is asked or the terminal is told, the terminal may log in, change holdings
// or start anew: what is needed is looked up again behind each of these calls.
void AccountLists::UpdateLogin(const CString& tsId) {
  if (Table() == nullptr)
    return;
  DeleteListsOf(tsId);
  CTS fresh;
  const bool available = FetchTradingSystem(tsId, fresh);
  if (Table() == nullptr)
    return;
  DeleteListsOf(tsId); // of a login that the terminal made meanwhile
  table_->Put(tsId, available, std::move(fresh));
  UpdateAllHoldings(tsId);
  UpdateListsOf(tsId);
  Notify(kNotifySymbols, TQReasonTradingLists);
}

void AccountLists::UpdateAllHoldings(const CString& tsId) {
  if (const CTS* const system = FindSystem(tsId))
    Update(TQListIdAllHoldings, kUserLists, LibraryString(kStringAllHoldings),
           system->MergedHoldings(), true);
}

void AccountLists::UpdateListsOf(const CString& tsId) {
  std::vector<AccountList> lists;
  std::optional<unsigned> tableSeen;
  for (size_t i = 0; Table() != nullptr; ++i) {
    if (tableSeen != table_->Changes()) {
      lists = ListsOfAccounts(table_->Find(tsId));
      tableSeen = table_->Changes();
    }
    if (i >= lists.size())
      return;
    const AccountList& list = lists[i];
    Update(list.id, kTradingLists, list.name, list.symbols, true);
  }
}

void AccountLists::UpdateHoldings(const CString& tsId, const CString& accountId, TqsAccType type) {
  if (Table() == nullptr)
    return;
  if (!tsId.IsEmpty() && !accountId.IsEmpty())
    table_->RefetchHoldings(tsId, accountId, type);
  const CTS* const system = FindSystem(tsId);
  if (const CAccount* const account =
          system == nullptr ? nullptr : system->FindAccount(accountId, type)) {
    const AccountList list(*account);
    Update(list.id, kTradingLists, list.name, list.symbols, true);
  }
  UpdateAllHoldings(tsId);
  Notify(kNotifySymbols, TQReasonTradingLists);
}

int AccountLists::HoldingsOf(const CString& tsId, const CString& accountId,
                             CString& symbols) const {
  const CTS* const system = FindSystem(tsId);
  if (system == nullptr)
    return 0;
  for (const CAccount& account : system->accounts) {
    if (account.HasId(accountId)) {
      symbols = account.holdings;
      return 1;
    }
  }
  return 0;
}

int AccountLists::HoldingsOf(const CString& tsId, TqsAccType type, const CString& accountId,
                             CString& symbols) const {
  const CTS* const system = tsId.IsEmpty() ? nullptr : FindSystem(tsId);
  const CAccount* const account =
      system == nullptr ? nullptr : system->FindAccount(accountId, type);
  if (account == nullptr)
    return 0;
  MergedHoldings merged;
  merged.Add(account->holdings);
  symbols = merged.Text();
  return 1;
}

int AccountLists::HoldingsOf(const CString& tsId, TqsAccType type, CString& symbols) const {
  const CTS* const system = tsId.IsEmpty() ? nullptr : FindSystem(tsId);
  if (system == nullptr)
    return 0;
  MergedHoldings merged;
  for (const CAccount& account : system->accounts) {
    if (account.info.type == type)
      merged.Add(account.holdings);
  }
  symbols = merged.Text();
  return 1;
}

} // namespace tq
