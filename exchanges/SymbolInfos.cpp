#include "exchanges/SymbolInfos.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/FieldText.h"
#include "platform/SymbolSearch.h"
#include "platform/Text.h"
#include "platform/services/tqStock.h"
#include "symboltable/ExchangeService.h"

namespace tq {
namespace {

constexpr int kDefaultLot = 1000;

// The record of an exchange, or null.
const ExchInfo* FindRecord(const ExchInfo* exchanges, int count, int exchId) {
  const ExchInfo* const end = exchanges + count;
  const ExchInfo* const found =
      std::find_if(exchanges, end, [=](const ExchInfo& each) { return each.id == exchId; });
  return found == end ? nullptr : found;
}

bool ReadLot(CSymbolTableMgr& tables, const CString& id, const char* exchange, int& lot) {
  long value = 0;
  if (tables.LookUpSymbolGetValue(FieldTradeLot, id, exchange, value) == 0 || value <= 0)
    return false;
  lot = static_cast<int>(value);
  return true;
}

// Symbol and exchange of an id; without tables there is no exchange.
std::pair<CString, CString> SplitId(const std::unique_ptr<CSymbolTableMgr>& tables,
                                    const CString& id) {
  if (tables == nullptr)
    return {id, CString()};
  return tables->GetSymbolAndExchID(id);
}

} // namespace

int ReadSymbolInfo(const CString& id, ExchInfo* exchanges, int exchangeCount,
                   const DefaultExchanges& defaults, const std::unique_ptr<CSymbolTableMgr>& tables,
                   SymbolInfo* out) {
  if (id.IsEmpty() || out == nullptr)
    return 0;
  if (!SplitId(tables, id).second.IsEmpty())
    return VLGetSymbolInfo(id, out) != 0;
  const bool given = exchanges != nullptr && exchangeCount > 0;
  for (int i = 0; i < defaults.Ids().GetSize(); ++i) {
    const ExchInfo* const record =
        given ? FindRecord(exchanges, exchangeCount, static_cast<int>(defaults.Ids()[i]))
              : defaults.RecordAt(i);
    if (record == nullptr)
      continue;
    const std::string_view name = NameOf(*record);
    CString fullId;
    fullId.Format("%s.%.*s", id.GetString(), static_cast<int>(name.size()), name.data());
    if (VLGetSymbolInfo(fullId, out) != 0)
      return 1;
  }
  return 0;
}

int FindValidSymbol(const CString& text, int bCN, const std::unique_ptr<CSymbolTableMgr>& tables,
                    SymbolInfo* info) {
  if (info == nullptr)
    return 0;
  const auto found = FindOnAllExchanges(text, bCN);
  const bool only = found.Records().size() == 1;
  for (const SymbolInfo& record : found.Records()) {
    const CString id = ToCString(FieldText(record.id));
    if (only || EqualsNoCase(ViewOf(text), FieldText(record.code)) || id.CompareNoCase(text) == 0 ||
        SplitId(tables, id).first.CompareNoCase(text) == 0) {
      *info = record;
      return 1;
    }
  }
  return 0;
}

int TradeLotSize(const CString& id, CSymbolTableMgr* tables, int kind) {
  int lot = kDefaultLot;
  if (tables == nullptr)
    return lot;
  switch (kind) {
  case 0: // stock: listed, else over the counter
    if (!ReadLot(*tables, id, "tw", lot))
      ReadLot(*tables, id, "te", lot);
    break;
  case 1: // futures and options
  case 2:
  case 3:
  case 6:
    ReadLot(*tables, id, "tf", lot);
    break;
  default:
    ReadLot(*tables, id, "", lot);
    break;
  }
  return lot;
}

} // namespace tq
