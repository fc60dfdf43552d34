// What the terminal asks about single symbols: the record of an id, the symbol that a typed text
// means, the units in a board lot. manager/TQSymbolListMgr.h says for each what it takes and
// returns (GetSymbolInfo, IsValidSymbol, GetTradeLotSize).
//
// `tables` is their owner's pointer, which may be null: the terminal may build the tables anew
// while the service is asked.
#pragma once

#include <memory>

#include "exchanges/DefaultExchanges.h"
#include "platform/framework/CString.h"
#include "platform/services/VLProxy.h"
#include "symboltable/SymbolTableMgr.h"

namespace tq {

int ReadSymbolInfo(const CString& id, ExchInfo* exchanges, int exchangeCount,
                   const DefaultExchanges& defaults, const std::unique_ptr<CSymbolTableMgr>& tables,
                   SymbolInfo* out);

// `bCN` goes to the service's search as it is.
int FindValidSymbol(const CString& text, int bCN, const std::unique_ptr<CSymbolTableMgr>& tables,
                    SymbolInfo* info);

// `kind` is a JT_DEAL, or any other number.
int TradeLotSize(const CString& id, CSymbolTableMgr* tables, int kind);

} // namespace tq
