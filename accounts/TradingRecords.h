// Trading systems and accounts, as the trading-system proxy describes them, with their holdings.
#pragma once

#include <vector>

#include "platform/FieldText.h"
#include "platform/framework/CString.h"
#include "platform/services/TQSProxy.h"

namespace tq {

// One account. Holdings are kept joined, as lists, queries and the file need them.
struct CAccount {
  CString holdings; // ids joined by ",", in the service's order
  TQS_ACCOUNTINFO info = {};

  CString Id() const;
  CString DisplayId() const;
  // The id of the account's list: the type's number and the account id, "19801234567".
  CString ListId() const;
  bool Is(const CString& id, TqsAccType type) const { return info.type == type && HasId(id); }
  bool HasId(const CString& id) const;
};

// One trading system.
struct CTS {
  TQS_TSINFO info = {};
  std::vector<CAccount> accounts; // in the service's order

  CString Id() const;
  CString Name() const;
  // Position of the first account with that id and type, or -1; and the account itself, or null.
  int IndexOf(const CString& id, TqsAccType type) const;
  const CAccount* FindAccount(const CString& id, TqsAccType type) const;
  // What all accounts hold.
  CString MergedHoldings() const;
};

} // namespace tq
