// Every operation that a terminal can call on a live manager, as a table: the re-entrancy matrix
// calls each from within each, the fuzzer makes up sequences of them. Free of GoogleTest, since the
// fuzzer is.
#pragma once

#include <string>
#include <vector>

#include "manager/TQSymbolListMgr.h"

namespace operations {

// What the operations are called with, each taking what it needs. The ones of the start mean what
// Populate (Subject.h) puts there.
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
  bool nulls = false; // every pointer that may be null is

  const char* Text(const CString& chosen) const { return nulls ? nullptr : chosen.GetString(); }
  // The records with the bytes that `recordCount` asks for.
  std::string Records() const;
};

struct Operation {
  // As tests/exports/tqSymbol.linux.txt has it, without the class.
  const char* signature;
  void (*run)(CTQSymbolListMgr& manager, const Arguments& arguments);
};

using Table = std::vector<Operation>;

// Of CTQSymbolListMgr: what is exported, what is inline, and the dialogs, which the modal handler
// has to answer (see EndDialogs in Subject.h).
Table ListOperations();
Table QueryOperations();
Table ExchangeOperations();
Table GroupOperations();
Table CloudOperations();
Table TradingOperations();
Table DialogOperations();
// All of those.
const Table& ManagerOperations();
// Of the CSymbolTableMgr that the manager has, none when it has none; and of a list of the
// manager's and its copies.
Table SymbolTableOperations();
Table OneListOperations();
// All there are.
const Table& All();

// Whether it only asks, by its name.
bool IsQuestion(const Operation& operation);
// The name of one for a test: letters and digits, another one for each overload.
std::string NameOf(const Table& table, std::size_t index);

} // namespace operations
