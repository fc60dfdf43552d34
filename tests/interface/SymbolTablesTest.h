// Symbol tables on the stand-in's small market, including the operations for derived classes.
#pragma once

#include <cstring>
#include <initializer_list>
#include <string>

#include "platform/framework/CUIntArray.h"
#include "platform/services/tqStock.h"
#include "symboltable/SymbolTableMgr.h"
#include "tests/support/StandInTest.h"

struct OpenTables : CSymbolTableMgr {
  using CSymbolTableMgr::FindSymbolTableIndex;
  using CSymbolTableMgr::GetAuthMask;
  using CSymbolTableMgr::GetExch;
  using CSymbolTableMgr::IsAuthExch;
  using CSymbolTableMgr::IsGetDefaultExchange;
  using CSymbolTableMgr::MapToSymbolTableIndex;
  using CSymbolTableMgr::TableAt;

  int SlotOf(const char* exchName) { return FindSymbolTableIndex(exchName, -1); }
  // The full id of a symbol on that exchange, empty when it is not there.
  std::string Id(const char* symbol, const char* exchName) {
    CString id;
    return LookUpSymbolGetString(FieldSymbolId, symbol, exchName, id) ? id.GetString() : "";
  }
  int Lot(const char* symbol, const char* exchName) {
    int lot = 0;
    return LookUpSymbolGetInt(FieldTradeLot, symbol, exchName, lot) ? lot : -1;
  }
  int SetDefaults(std::initializer_list<unsigned> exchIds) {
    CUIntArray ids;
    for (const unsigned exchId : exchIds)
      ids.Add(exchId);
    return InitDefaultExchList(ids);
  }
};

class SymbolTablesTest : public StandInTest {
protected:
  static constexpr int kRecordSize = 19;

  // All tables of the market, with exchanges 1 and 2 as defaults.
  void Start() {
    tables.CleanALL(); // Init would leak the tables of an earlier start
    ASSERT_EQ(tables.Init(), 1);
    ASSERT_EQ(tables.InitAllSymbolTable(), 1);
    ASSERT_EQ(tables.SetDefaults({1, 2}), 1);
    standin::ClearCalls();
  }
  void Serve() { standin::SetMarket(market); }

  static std::string Packed(std::initializer_list<std::string> symbols) {
    std::string bytes;
    for (std::string symbol : symbols) {
      symbol.resize(kRecordSize, '\0');
      bytes += symbol;
    }
    return bytes;
  }
  int Add(int exchId, std::initializer_list<std::string> symbols) {
    return tables.AddSymbols(exchId, Packed(symbols).data(), static_cast<int>(symbols.size()));
  }
  int Update(int exchId, std::initializer_list<std::string> symbols) {
    return tables.UpdateSymbols(exchId, Packed(symbols).data(), static_cast<int>(symbols.size()));
  }
  int Remove(int exchId, std::initializer_list<std::string> symbols) {
    return tables.RemoveSymbols(exchId, Packed(symbols).data(), static_cast<int>(symbols.size()));
  }
  void List(int exchId, const char* code, int lot = 1000) {
    standin::Instrument instrument;
    instrument.exchId = exchId;
    instrument.code = code;
    instrument.lot = lot;
    market.instruments.push_back(instrument);
  }
  void ListExchange(int id, const char* name) {
    market.exchanges.push_back({id, name, name, name});
  }
  standin::Instrument& Listed(const char* code, int exchId) {
    for (standin::Instrument& instrument : market.instruments)
      if (instrument.code == code && instrument.exchId == exchId)
        return instrument;
    ADD_FAILURE() << code;
    return market.instruments[0];
  }

  standin::Market market = SmallMarket();
  OpenTables tables;
};
