// What trading accounts hold: logins, changes of holdings, queries. While trading lists are not wanted
// there is no table, and nothing here does anything.
#include <utility>

#include "groups/Holdings.h"
#include "groups/TradingFile.h"
#include "groups/TradingTable.h"
#include "symbollist/LibraryString.h"
#include "symbollist/ListKind.h"
#include "symbollist/Notify.h"
#include "symbollist/TQSymbolListMgr.h"

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

} // namespace

// A start begins anew: the accounts of the one before may be another user's.
void CTQSymbolListMgr::StartTradingLists() {
  ClearTSSymbolList();
  delete tradingTable_;
  tradingTable_ =
      tradingListsWanted_ == 0 ? nullptr : new tq::TradingTable(FilePath(tq::kTradingFileName));
}

int CTQSymbolListMgr::LoadTSList() {
  if (tradingTable_ == nullptr || CheckSymbolListExist(kAllHoldings, tq::kTradingLists) != 0)
    return 0;
  return AddTSSymbolList(kAllHoldings, tq::kUserLists, tq::LibraryString(tq::kStringAllHoldings),
                         CString(), 1);
}

void CTQSymbolListMgr::UpdateTSLogin(CString tsId) {
  if (tradingTable_ == nullptr)
    return;
  if (const tq::CTS* before = tradingTable_->Find(tsId)) {
    for (const tq::CAccount& account : before->accounts)
      DeleteTSSymbolList(account.ListId());
  }
  tradingTable_->Reload(tsId);
  if (const tq::CTS* system = tradingTable_->Find(tsId)) {
    // Copies: the terminal is told of each list, and may change the table in turn.
    const std::vector<AccountList> lists(system->accounts.begin(), system->accounts.end());
    UpdateTSSymbolList(kAllHoldings, tq::kUserLists, tq::LibraryString(tq::kStringAllHoldings),
                       system->MergedHoldings(), 1);
    for (const AccountList& list : lists)
      UpdateTSSymbolList(list.id, tq::kTradingLists, list.name, list.symbols, 1);
  }
  tq::Notify(tq::kNotifySymbols, kReasonTrading);
}

void CTQSymbolListMgr::UpDataTSAccHodling(CString tsId, CString accountId, TqsAccType type) {
  if (tradingTable_ == nullptr)
    return;
  if (!tsId.IsEmpty() && !accountId.IsEmpty())
    tradingTable_->RefetchHoldings(tsId, accountId, type);
  if (const tq::CTS* system = tradingTable_->Find(tsId)) {
    const CString merged = system->MergedHoldings();
    if (const tq::CAccount* account = system->FindAccount(accountId, type)) {
      const AccountList list(*account);
      UpdateTSSymbolList(list.id, tq::kTradingLists, list.name, list.symbols, 1);
    }
    UpdateTSSymbolList(kAllHoldings, tq::kUserLists, tq::LibraryString(tq::kStringAllHoldings),
                       merged, 1);
  }
  tq::Notify(tq::kNotifySymbols, kReasonTrading);
}

int CTQSymbolListMgr::GetTSAccHodling(const CString& tsId, const CString& accountId,
                                      CString& symbols) {
  const tq::CTS* system = tradingTable_ == nullptr ? nullptr : tradingTable_->Find(tsId);
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
                                       const CString& accountId, CString& symbols) {
  if (tradingTable_ == nullptr || tsId.IsEmpty())
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

int CTQSymbolListMgr::GetTSSymbolLists(const CString& tsId, TqsAccType type, CString& symbols) {
  const tq::CTS* system =
      tradingTable_ == nullptr || tsId.IsEmpty() ? nullptr : tradingTable_->Find(tsId);
  if (system == nullptr)
    return 0;
  tq::MergedHoldings merged;
  bool any = false;
  for (const tq::CAccount& account : system->accounts) {
    if (account.info.type != type)
      continue;
    any = true;
    merged.Add(account.holdings);
  }
  if (any)
    symbols = merged.Text();
  return any;
}
