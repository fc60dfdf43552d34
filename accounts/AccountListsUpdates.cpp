// What trading accounts hold: logins, changes of holdings, queries. While trading lists are not
// wanted nothing here does anything.
#include <optional>
#include <utility>

#include "accounts/Holdings.h"
#include "accounts/TradingFile.h"
#include "accounts/TradingService.h"
#include "accounts/TradingTable.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/LibraryString.h"
#include "platform/Notify.h"
#include "symbollist/ListKind.h"

namespace {

// An id and a reason that the terminal knows: do not change.
constexpr char kAllHoldings[] = "ALLMYSTOCKLISTS";
constexpr char kReasonTrading[] = "TSSymbolList";

struct AccountList {
  explicit AccountList(const tq::CAccount& account)
      : id(account.ListId()), name(account.DisplayId()), symbols(account.holdings) {}
  CString id;
  CString name;
  CString symbols;
};

std::vector<AccountList> ListsOfAccounts(const tq::CTS* system) {
  if (system == nullptr)
    return {};
  return std::vector<AccountList>(system->accounts.begin(), system->accounts.end());
}

} // namespace

// Table and lists outlive a start: they change only with logins and holdings, and the terminal may
// start again without logging in again.
void CTQSymbolListMgr::StartTradingLists() {
  if (tradingTable_ != nullptr)
    tradingTable_->SetPath(FilePath(tq::kTradingFileName));
  else if (tradingListsWanted_ != 0)
    tradingTable_ = new tq::TradingTable(FilePath(tq::kTradingFileName));
}

// Null while trading lists are not wanted. What is there then is kept as it is for the start that
// wants them again.
tq::TradingTable* CTQSymbolListMgr::TradingTable() const {
  return tradingListsWanted_ != 0 ? tradingTable_ : nullptr;
}

int CTQSymbolListMgr::LoadTSList() noexcept {
  if (TradingTable() == nullptr || CheckSymbolListExist(kAllHoldings, tq::kTradingLists) != 0)
    return 0;
  return AddTSSymbolList(kAllHoldings, tq::kUserLists, tq::LibraryString(tq::kStringAllHoldings),
                         CString(), 1);
}

// Whenever the service is asked or the terminal is told, the terminal may log in, change holdings
// or start anew: what is needed is looked up again behind each of these calls.
void CTQSymbolListMgr::UpdateTSLogin(CString tsId) noexcept {
  if (TradingTable() == nullptr)
    return;
  DeleteAccountLists(tsId);
  tq::CTS fresh;
  const bool available = tq::FetchTradingSystem(tsId, fresh);
  if (TradingTable() == nullptr)
    return;
  DeleteAccountLists(tsId); // of a login that the terminal made meanwhile
  tradingTable_->Put(tsId, available, std::move(fresh));
  UpdateAllHoldings(tsId);
  UpdateAccountLists(tsId);
  tq::Notify(tq::kNotifySymbols, kReasonTrading);
}

void CTQSymbolListMgr::UpdateAllHoldings(const CString& tsId) {
  const tq::TradingTable* const table = TradingTable();
  if (const tq::CTS* system = table == nullptr ? nullptr : table->Find(tsId))
    UpdateTSSymbolList(kAllHoldings, tq::kUserLists, tq::LibraryString(tq::kStringAllHoldings),
                       system->MergedHoldings(), 1);
}

void CTQSymbolListMgr::UpdateAccountLists(const CString& tsId) {
  std::vector<AccountList> lists;
  std::optional<unsigned> tableSeen;
  for (size_t i = 0; TradingTable() != nullptr; ++i) {
    if (tableSeen != tradingTable_->Changes()) {
      lists = ListsOfAccounts(tradingTable_->Find(tsId));
      tableSeen = tradingTable_->Changes();
    }
    if (i >= lists.size())
      return;
    const AccountList& list = lists[i];
    UpdateTSSymbolList(list.id, tq::kTradingLists, list.name, list.symbols, 1);
  }
}

void CTQSymbolListMgr::UpDataTSAccHodling(CString tsId, CString accountId,
                                          TqsAccType type) noexcept {
  if (TradingTable() == nullptr)
    return;
  if (!tsId.IsEmpty() && !accountId.IsEmpty())
    tradingTable_->RefetchHoldings(tsId, accountId, type);
  const tq::CTS* const system = TradingTable() == nullptr ? nullptr : tradingTable_->Find(tsId);
  if (const tq::CAccount* account =
          system == nullptr ? nullptr : system->FindAccount(accountId, type)) {
    const AccountList list(*account);
    UpdateTSSymbolList(list.id, tq::kTradingLists, list.name, list.symbols, 1);
  }
  UpdateAllHoldings(tsId);
  tq::Notify(tq::kNotifySymbols, kReasonTrading);
}

int CTQSymbolListMgr::GetTSAccHodling(const CString& tsId, const CString& accountId,
                                      CString& symbols) noexcept {
  const tq::CTS* system = TradingTable() == nullptr ? nullptr : tradingTable_->Find(tsId);
  if (system == nullptr)
    return 0;
  for (const tq::CAccount& account : system->accounts) {
    if (account.HasId(accountId)) {
      symbols = account.holdings;
      return 1;
    }
  }
  return 0;
}

int CTQSymbolListMgr::GetTSSymbolLists(const CString& tsId, TqsAccType type,
                                       const CString& accountId, CString& symbols) noexcept {
  if (TradingTable() == nullptr || tsId.IsEmpty())
    return 0;
  const tq::CTS* system = tradingTable_->Find(tsId);
  const tq::CAccount* account = system == nullptr ? nullptr : system->FindAccount(accountId, type);
  if (account == nullptr)
    return 0;
  tq::MergedHoldings merged;
  merged.Add(account->holdings);
  symbols = merged.Text();
  return 1;
}

int CTQSymbolListMgr::GetTSSymbolLists(const CString& tsId, TqsAccType type,
                                       CString& symbols) noexcept {
  const tq::CTS* system =
      TradingTable() == nullptr || tsId.IsEmpty() ? nullptr : tradingTable_->Find(tsId);
  if (system == nullptr)
    return 0;
  tq::MergedHoldings merged;
  for (const tq::CAccount& account : system->accounts) {
    if (account.info.type == type)
      merged.Add(account.holdings);
  }
  symbols = merged.Text();
  return 1;
}
