// The symbol tables: one per exchange, filled from the terminal's symbol-data service. They answer
// whether a symbol exists, on which exchange, what its name and attributes are, which symbol has a
// name, and whether the user is entitled to an exchange.
//
// Conventions that hold for the whole class
//  1. All calls come from the terminal's user-interface thread. There is no locking and no thread.
//  2. Text is in the process's ANSI code page. A "full id" is code, ".", exchange name ("2330.TW");
//     a "bare" symbol is the code alone.
//  3. Results are int: non-zero for success or "yes", 0 for failure or "no", unless a count is
//     said. Nothing throws. A failing operation leaves the tables as they were, except that a table
//     whose loading fails is left empty; output arguments of a failing look-up are described there.
//     An output may be the object that an input is.
//  4. Exchange ids are the service's numbers. Entitlements exist for 1 to 127 only.
//  5. There are 128 slots for tables. A table is found by its exchange's name or id, not by its
//     slot; the lowest matching slot wins.
//  6. A symbol is held as often as the service listed it; the first of equal ones answers.
#pragma once

#include <memory>
#include <utility>

#include "platform/framework/CString.h"
#include "tqSymbolApi.h"

class CSymbolTable;
class CUIntArray;

namespace tq {
class SymbolMover;
class ExchangeTables;
class TablesWatch;
} // namespace tq

class TQSYMBOL_API CSymbolTableMgr {
public:
  // No tables, no default exchanges. Does not call the service.
  CSymbolTableMgr() noexcept;
  // CleanALL.
  virtual ~CSymbolTableMgr();
  CSymbolTableMgr(const CSymbolTableMgr&) = delete;
  CSymbolTableMgr& operator=(const CSymbolTableMgr&) = delete;

  // ---- Life cycle ----

  // Empties all slots and the default list; always 1. Tables that are present are forgotten, not
  // deleted, and lost for good: call CleanALL first when there are any.
  int Init() noexcept;

  // Builds and loads one table for each exchange of the service, the i-th in slot i, none of them
  // entitled. A table that such a slot held is deleted. Exchanges beyond the 128th get no table;
  // that alone is no failure. Returns the service's result, or 0 when any table failed to load
  // (that one is there, empty).
  int InitAllSymbolTable() noexcept;

  // Marks every table as entitled or not. Returns 0, with the marks as they were, when the user's
  // entitlements cannot be read. A table whose exchange id is outside 1..127 is marked not
  // entitled.
  int InitAuthorizedExch() noexcept;

  // Takes a copy of `ids`, exchange ids in order of preference, best first, as the default
  // exchanges. Always 1. Ids without a table are kept, and ignored until there is one.
  int InitDefaultExchList(CUIntArray& ids) noexcept;

  // Deletes all tables. The default list stays.
  void CleanALL() noexcept;

  // Brings the set of tables in line with the service's exchange list: tables of exchanges that are
  // gone are deleted, kept tables are not reloaded, tables of new exchanges are loaded. Returns 1
  // when the end of the service's list was reached, 0 when the list cannot be read or the free
  // slots ran out first. One call may leave a new exchange without a table: when the slot of its
  // number in the list is taken, the next free slot is used, and the exchanges whose numbers lie in
  // between are skipped until the next call.
  int RebuildSymbolTable() noexcept;

  // With `exchId` -1 the same as RebuildSymbolTable(). Otherwise reloads one table, found by
  // `exchName` (letter case counts) or, when that is empty, by `exchId`; when there is none, makes
  // and loads it in the first free slot, under `exchName` or, when that is empty, under the
  // service's name for `exchId`. 0 when loading fails, no slot is free, or the service has no name
  // for `exchId`.
  int RebuildSymbolTable(const CString& exchName, int exchId) noexcept;

  // ---- Incremental updates ----
  // `symbols` is a packed array of `count` records of 19 bytes, each a symbol code, NUL-terminated
  // unless it fills the record, blanks on either side ignored. It stays the caller's.

  // Adds the service's records of these symbols to the exchange's table. A symbol that is there
  // already is added again, and the first one goes on answering. An exchange without a table gets
  // one and is loaded whole instead.
  //
  // The tables follow the service only through these operations: a symbol that it lists anew is
  // unknown to every look-up until AddSymbols. CTQSymbolListMgr::UpdateExchSymbolChange does not do
  // it; that tells lists alone. A terminal that hears of new symbols calls both.
  //
  // When the loading of a new table fails (result 0), the table is there, empty, and further calls
  // add the symbols that they name to it, and no more. RebuildSymbolTable(exchName, exchId) fills
  // it with the whole exchange; RebuildSymbolTable() does not, since it keeps the tables that there
  // are.
  int AddSymbols(int exchId, const char* symbols, int count) noexcept;

  // Updates the attributes of these symbols from the service. Symbols that are not in the table are
  // skipped. An exchange without a table gets one and is loaded whole instead.
  int UpdateSymbols(int exchId, const char* symbols, int count) noexcept;

  // Removes each of these symbols once from the exchange's table. Letter case is ignored where it
  // does not change the chain: on exchange 1, and behind the twelfth byte elsewhere. Symbols that
  // are not there are skipped; 0 only when the exchange has no table.
  int RemoveSymbols(int exchId, const char* symbols, int count) noexcept;

  // ---- Exchanges ----

  // The name of the exchange with that id, asked of the service (not of the tables). 0, with `name`
  // as it was, when the service fails or lists no such exchange.
  int FindExchID(int exchId, CString& name) noexcept;

  // Whether the first table of that name (letter case counts) was marked entitled by
  // InitAuthorizedExch or when it was made. 0 for an empty name or no such table.
  int IsAuthorizedExch(const CString& exchName) noexcept;

  // 1 when the user is entitled to all of exchanges 10, 11 and 12, which are one family. The user's
  // entitlements are read afresh.
  int IsSupportUJKExch() noexcept;

  // Turns comma-separated exchange ids into comma-separated exchange names. Ids without a table are
  // left out, and so are 10, 11 and 12 unless the user has a "FullMenuKey" value. An id that stands
  // first and is left out leaves its comma behind: "10,3" gives ",TW". Callers rely on that.
  CString MapExchIDsToExchName(const CString& exchIds) noexcept;

  // Splits a full id into (symbol, exchange name), the name as it is written in `id`. When what
  // stands behind the last "." is not the name of a table (letter case ignored), the whole id is
  // the symbol: (id, "").
  std::pair<CString, CString> GetSymbolAndExchID(const CString& id) noexcept;

  // The bare symbol when the id's suffix is the name (letter case counts) of a default exchange
  // that has a table; else `id` unchanged.
  CString HandleDefaultExchangeSymbol(const CString& id) noexcept;

  // How many default exchanges hold `symbol` (letter case counts). `exchName` receives the name of
  // the last of them in order of preference, the least preferred one, and is left alone when there
  // is none.
  int GetDefaultExchange(const CString& symbol, CString& exchName) noexcept;

  // ---- Symbols ----

  // The full id of the first symbol, over all tables, whose name is `name` (letter case counts). 0,
  // with `id` as it was, when there is none or `name` is empty. Looks at every symbol: for rare
  // use.
  int LookUpNameGetSymbolID(const CString& name, CString& id) noexcept;

  // One attribute of a symbol. `field` is a Field code of tqStock (1 the full id, 2 the name, 112
  // the exchange's name). `id` and `exchName` may be in any letter case.
  //
  // Without `exchName` the exchange is taken from the id's suffix; failing that, from the default
  // exchanges: the first that holds the symbol, except that LookUpSymbolGetString with field 1
  // refuses a symbol that more than one of them holds, and with field 112 never looks there.
  // LookUpSymbolGetString with field 112 answers the given or derived exchange name, in upper case,
  // without asking whether the symbol exists.
  //
  // Returns 0 when `id` is empty, no exchange can be found, the symbol is not in the exchange's
  // table, or the symbol has no such field. `value` is left alone when the symbol was not found.
  // When the symbol lacks the field, text is empty ("--" for fields 170, 171 and 179) and numbers
  // are -1 (1 for field 186). Prices as numbers are counted in their smallest step ("100.5" with
  // two decimals is 10050). look-ups.md has a table of what each field is as text and as number.
  int LookUpSymbolGetString(int field, CString id, CString exchName, CString& value) noexcept;
  int LookUpSymbolGetInt(int field, CString id, CString exchName, int& value) noexcept;
  int LookUpSymbolGetValue(int field, CString id, CString exchName, long& value) noexcept;
  int LookUpSymbolGetExAttr(int field, CString id, CString exchName, long& value) noexcept;

protected:
  // The exchange part of GetSymbolAndExchID; non-zero when there is one, else `exchName` is
  // emptied.
  int GetExch(const CString& id, CString& exchName) noexcept;

  // The name of the first default exchange whose table holds `symbol`; non-zero when there is one,
  // else `exchName` is left alone.
  int IsGetDefaultExchange(const CString& symbol, CString& exchName) noexcept;

  // The slot of the first table of that name (letter case counts) or, when `exchName` is empty, of
  // that exchange id; -1 when there is none.
  int FindSymbolTableIndex(const CString& exchName, int exchId) noexcept;

  // The slot of the first table of that exchange id; -1 when there is none.
  int MapToSymbolTableIndex(int exchId) noexcept;

  // Sets mask[n] to 1 for every exchange n of 1..127 that the user is entitled to, and leaves the
  // others alone. The user's entitlements are read on every call. 0, with `mask` untouched, when
  // they cannot be.
  int GetAuthMask(int mask[128]) noexcept;

  // Non-zero when GetAuthMask would set mask[exchId]. 0 for ids outside 1..127.
  int IsAuthExch(int exchId) noexcept;

  // The table in a slot of 0..127, or null. It stays the manager's.
  CSymbolTable* TableAt(int slot) const noexcept;

private:
  friend class tq::TablesWatch;
  // It has to know a table that says nothing from one that lacks a symbol.
  friend class tq::SymbolMover;

  std::unique_ptr<tq::ExchangeTables> slots_; // the tables and the default exchanges
};
