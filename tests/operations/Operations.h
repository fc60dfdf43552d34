// A table of all operations that a terminal can call on a live manager. The re-entrancy matrix
// calls each from within each other one, the fuzzer generates sequences of them. Without
// GoogleTest, since the fuzzer has none.
#pragma once

#include <string>
#include <vector>

#include "manager/TQSymbolListMgr.h"

namespace operations {

// The arguments of all operations, each of which uses some. The defaults name what Populate
// (Subject.h) creates.
struct Arguments {
  CString directory = "memory";
  CString id = "a";                                      // of a list
  CString name = "Named";                                // of a list or a group
  CString symbols = "2330.TW,gone.TW,6488.TW,Head:,-.."; // of a list
  CString text = "2317.TW"; // one entry, something typed, a part of ids
  CString exchange = "TW";
  CString group = "CHIP";
  CString system = "T1";
  CString account = "9801";
  std::string records = "2330"; // changed symbols: `recordCount` of 19 bytes each
  int recordCount = 1;
  int kind = 1; // of lists
  int type = 1; // of groups, accounts, exchanges
  int number = 0;
  int other = 1;
  int flag = 1;
  bool nulls = false; // pass null for every pointer that may be null

  const char* Text(const CString& chosen) const { return nulls ? nullptr : chosen.GetString(); }
  // The records, padded to the length that `recordCount` requires.
  std::string Records() const;
};

struct Operation {
  // As in tests/exports/tqSymbol.linux.txt, without the class.
  const char* signature;
  void (*run)(CTQSymbolListMgr& manager, const Arguments& arguments);
};

using Table = std::vector<Operation>;

// Those of CTQSymbolListMgr: exported ones, inline ones, and the dialogs, which the modal handler
// must end (see PrepareServices in Subject.h).
Table ListOperations();
Table DiagnosisOperations();
Table QueryOperations();
Table ExchangeOperations();
Table GroupOperations();
Table CloudOperations();
Table TradingOperations();
Table DialogOperations();
// All of these.
const Table& ManagerOperations();
// Those of the manager's CSymbolTableMgr, which do nothing without one; and those of a list of the
// manager's and its copies.
Table SymbolTableOperations();
Table OneListOperations();
// Those of no class.
Table TextOperations();
// All operations.
const Table& All();

// Whether it is a query, judging by its name.
bool IsQuestion(const Operation& operation);
// Its name for a test: letters and digits, different for each overload.
std::string NameOf(const Table& table, std::size_t index);

} // namespace operations
