// What the user holds, as lists of kind 6: one for each account, one for each trading system, and
// one of all holdings. The table of trading systems behind them is written to a file.
//
// Operations are those of CTQSymbolListMgr; manager/TQSymbolListMgr.h says for each what it takes
// and returns. While account lists are not wanted they do nothing. The services, and TQSCall, may
// let the terminal call any of them from within another one.
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "accounts/TradingTable.h"
#include "symbollist/OwnedLists.h"

namespace tq {

class AccountLists {
public:
  // The lists of a kind against which a new list's id and name are checked; empty ones for a kind
  // that has none.
  using ListsOfKind = std::function<const OwnedLists&(int kind)>;

  explicit AccountLists(ListsOfKind listsOfKind) : listsOfKind_(std::move(listsOfKind)) {}

  const OwnedLists& Lists() const { return lists_; }

  // As a start tells, at once.
  void Want(bool wanted) { wanted_ = wanted; }
  // A start's file of the table. Table and lists outlive a start: they change only with logins and
  // holdings, and the terminal may start again without logging in again.
  void Start(const CString& path);
  // The file of the next change; nothing before the first start that wanted account lists.
  void SetPath(const CString& path);

  // --- Logins and holdings -----------------------------------------------------------------------

  int AddAllHoldings();
  void UpdateLogin(const CString& tsId);
  void UpdateHoldings(const CString& tsId, const CString& accountId, TqsAccType type);
  int HoldingsOf(const CString& tsId, const CString& accountId, CString& symbols) const;
  int HoldingsOf(const CString& tsId, TqsAccType type, const CString& accountId,
                 CString& symbols) const;
  int HoldingsOf(const CString& tsId, TqsAccType type, CString& symbols) const;

  // --- Lists -------------------------------------------------------------------------------------

  int Add(const CString& id, int kind, const CString& name, const CString& symbols,
          bool allowEmpty);
  int Update(const CString& id, int kind, const CString& name, const CString& symbols,
             bool allowEmpty);
  int Delete(const CString& id);
  void Clear();
  void BuildOfSystems();

private:
  // The table; null while account lists are not wanted. What is there then is kept as it is for the
  // start that wants them again.
  TradingTable* Table() { return wanted_ && table_ ? &*table_ : nullptr; }
  const TradingTable* Table() const { return wanted_ && table_ ? &*table_ : nullptr; }
  const CTS* FindSystem(const CString& tsId) const;
  void DeleteListsOf(const CString& tsId);
  void UpdateAllHoldings(const CString& tsId);
  void UpdateListsOf(const CString& tsId);

  ListsOfKind listsOfKind_;
  OwnedLists lists_;
  std::optional<TradingTable> table_; // none until a start first wanted account lists
  bool wanted_ = false;
};

} // namespace tq
