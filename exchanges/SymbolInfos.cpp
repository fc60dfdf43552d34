// The manager's answers about single symbols, and what it does when symbols change.
#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

#include "manager/TQSymbolListMgr.h"
#include "platform/CodePage.h"
#include "platform/Log.h"
#include "platform/ServiceArray.h"
#include "platform/services/tqStock.h"
#include "symbollist/OwnedLists.h"
#include "symboltable/ExchangeService.h"
#include "symboltable/MovedSymbols.h"
#include "symboltable/SymbolRecords.h"
#include "symboltable/SymbolTableMgr.h"

namespace {

constexpr int kDefaultLot = 1000;

bool IsText(const CString& text, const char* field, size_t size) {
  return tq::EqualNoCase(text, static_cast<size_t>(text.GetLength()), field, strnlen(field, size));
}

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

// Whether a token of a list is one of the symbols, with or without its exchange.
bool IsOneOf(const CStringArray& symbols, const CString& token) {
  const std::string_view id(token.GetString(), static_cast<size_t>(token.GetLength()));
  for (const CString& held : symbols) {
    const std::string_view symbol(held.GetString(), static_cast<size_t>(held.GetLength()));
    if (!symbol.empty() && id.starts_with(symbol) &&
        (id.size() == symbol.size() || id[symbol.size()] == '.'))
      return true;
  }
  return false;
}

bool HoldsOneOf(const CSymbolList& list, const CStringArray& symbols) {
  const CStringArray& tokens = list.GetTokens();
  return std::any_of(tokens.begin(), tokens.end(),
                     [&](const CString& token) { return IsOneOf(symbols, token); });
}

// The lists as they are now: the terminal may change them while one asks the service.
void ResolveLists(const CPtrArray& lists, const CStringArray& symbols) {
  CPtrArray now;
  now.Copy(lists);
  for (int i = 0; i < now.GetSize(); ++i) {
    CSymbolList* list = tq::ListAt(now, i);
    if (tq::IsAmong(lists, list, i) && HoldsOneOf(*list, symbols))
      list->Update3();
  }
}

} // namespace

std::pair<CString, CString> CTQSymbolListMgr::SplitId(const CString& id) const {
  if (symbolTables_ == nullptr)
    return {id, CString()};
  return symbolTables_->GetSymbolAndExchID(id);
}

int CTQSymbolListMgr::GetSymbolInfo(const char* symbol, ExchInfo* exchanges, int exchangeCount,
                                    SymbolInfo* out) noexcept {
  const CString id(symbol);
  if (id.IsEmpty() || out == nullptr)
    return 0;
  if (!SplitId(id).second.IsEmpty())
    return VLGetSymbolInfo(id, out) != 0;
  const bool given = exchanges != nullptr && exchangeCount > 0;
  for (int i = 0; i < defaultExchanges_.GetSize(); ++i) {
    const ExchInfo* const record =
        given ? FindRecord(exchanges, exchangeCount, static_cast<int>(defaultExchanges_[i]))
              : static_cast<const ExchInfo*>(defaultRecords_[i]);
    if (record == nullptr)
      continue;
    const std::string_view name = tq::NameOf(*record);
    CString fullId;
    fullId.Format("%s.%.*s", id.GetString(), static_cast<int>(name.size()), name.data());
    if (VLGetSymbolInfo(fullId, out) != 0)
      return 1;
  }
  return 0;
}

int CTQSymbolListMgr::IsValidSymbol(const CString& text, SymbolInfo* info) noexcept {
  constexpr int kAllExchanges = -1;
  tq::ServiceArray<SymbolInfo> found;
  if (info == nullptr ||
      VLFindSymbol(text, found.List(), found.Count(), 0, bCN_, kAllExchanges) == 0)
    return 0;
  const bool only = found.Records().size() == 1;
  for (const SymbolInfo& record : found.Records()) {
    const CString id(record.id, static_cast<int>(strnlen(record.id, sizeof(record.id))));
    if (only || IsText(text, record.code, sizeof(record.code)) || id.CompareNoCase(text) == 0 ||
        SplitId(id).first.CompareNoCase(text) == 0) {
      *info = record;
      return 1;
    }
  }
  return 0;
}

int CTQSymbolListMgr::GetTradeLotSize(const CString& id, CSymbolTableMgr* tables,
                                      JT_DEAL kind) noexcept {
  int lot = kDefaultLot;
  if (tables == nullptr)
    return lot;
  switch (static_cast<int>(kind)) {
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

int CTQSymbolListMgr::UpdateExchSymbolChange(int count, const char* symbols, short /*exch*/,
                                             ExchSymbolUpdateType type) noexcept {
  if (count > tq::kMaxSymbolChangeItems)
    tq::LogLine(tq::kLogGeneral,
                "CTQSymbolListMgr::UpdateExchSymbolChange Count = %d, MaxSymbolChangeItems = %d",
                count, tq::kMaxSymbolChangeItems);
  const tq::SymbolRecords records(symbols, std::min(count, tq::kMaxSymbolChangeItems));
  CStringArray changed;
  for (int i = 0; i < records.Count(); ++i) {
    const std::string_view symbol = records.At(i);
    changed.Add(CString(symbol.data(), static_cast<int>(symbol.size())).MakeUpper());
  }
  ResolveLists(*lists_, changed);
  ResolveLists(*tradingLists_, changed);
  if (type == ExchSymbolsAdded)
    ResolveLists(*cloudLists_, changed);
  return 1;
}

int CTQSymbolListMgr::ReplaceSymbolListExchID(CString& ids, const CString& oldExchange,
                                              const CString& newExchange) noexcept {
  return symbolTables_ != nullptr &&
         tq::MoveSymbols(*symbolTables_, ids, oldExchange, newExchange) != 0;
}

int CTQSymbolListMgr::ReplaceSymbolListExchID(CSymbolList* list, const CString& oldExchange,
                                              const CString& newExchange) noexcept {
  if (list == nullptr)
    return 0;
  CString ids = list->GetIDs();
  return ReplaceSymbolListExchID(ids, oldExchange, newExchange) != 0 && list->Update1(ids) != 0;
}
