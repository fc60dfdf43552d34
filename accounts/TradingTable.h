// The user's trading systems with their accounts and holdings: a copy of the trading-system proxy's
// data as of the last login or change of holdings that the terminal announced.
#pragma once

#include <vector>

#include "accounts/TradingFile.h"
#include "accounts/TradingRecords.h"
#include "symbollist/file/KeptFiles.h"

namespace tq {

// Ids of systems and accounts are the service's keys and compared byte by byte. Pointers into the
// table are valid until it changes, which it may during any call of the service or of the terminal:
// the terminal may log in from there.
class TradingTable {
public:
  // `path` is the file that is rewritten with each change; empty for none. What stands there and is
  // not such a file is copied aside first.
  explicit TradingTable(const CString& path) : path_(path) {}

  // Changes the file, from the next update on.
  void SetPath(const CString& path) { path_ = path; }

  const std::vector<CTS>& Systems() const { return systems_; }
  const CTS* Find(const CString& tsId) const;

  // Reads a trading system from the service and puts it in.
  void Reload(const CString& tsId);
  // Stores the service's answer: `fresh` replaces the entry with that id, or is added. When it was
  // not `available`, an existing entry keeps only its id. Rewrites the file.
  void Put(const CString& tsId, bool available, CTS fresh);
  // Asks for the holdings of one account of the table. When the service fails, or the account is
  // not in the table, nothing changes; else the file is rewritten.
  void RefetchHoldings(const CString& tsId, const CString& accountId, TqsAccType type);

  // A version number: a caller that has called the service compares it to see whether what it
  // copied is out of date.
  unsigned Changes() const { return changes_; }

private:
  int IndexOf(const CString& tsId) const;
  CAccount* FindAccount(const CString& tsId, const CString& accountId, TqsAccType type);
  void Changed();

  std::vector<CTS> systems_; // in the order of their first logins
  CString path_;
  KeptFiles keptFiles_{&IsOwnTradingFile};
  unsigned changes_ = 0;
};

} // namespace tq
