#include "dialogs/search/TypedSymbol.h"

#include <algorithm>

#include "platform/FieldText.h"
#include "platform/SymbolSearch.h"
#include "platform/Text.h"
#include "symboltable/SymbolTableMgr.h"

namespace tq {
namespace {

constexpr int kIdField = 1;

// The tables answer with the first symbol of that name. The service tells whether there are more.
bool SeveralHaveName(const DialogSources& sources, const CString& name) {
  const auto found = FindOnAllExchanges(name, sources.Manager().GetbCN());
  const auto records = found.Records();
  return std::count_if(records.begin(), records.end(), [&name](const SymbolInfo& record) {
           return FieldText(record.name) == ViewOf(name);
         }) > 1;
}

TypedMatch FindByName(const DialogSources& sources, CSymbolTableMgr& tables, const CString& name,
                      CString& id) {
  CString found;
  if (tables.LookUpNameGetSymbolID(name, found) == 0)
    return TypedMatch::None;
  if (SeveralHaveName(sources, name))
    return TypedMatch::Several;
  id = found;
  return TypedMatch::One;
}

} // namespace

TypedMatch FindTypedSymbol(const DialogSources& sources, const CString& text, CString& id) {
  CSymbolTableMgr* const tables = sources.Tables();
  if (tables == nullptr || text.IsEmpty())
    return TypedMatch::None;
  CString code = text;
  code.MakeUpper(); // the tables' codes are
  CString found;
  if (tables->LookUpSymbolGetString(kIdField, code, "", found) != 0) {
    id = found;
    return TypedMatch::One;
  }
  CString exchange;
  if (tables->GetDefaultExchange(code, exchange) > 1)
    return TypedMatch::Several;
  return FindByName(sources, *tables, text, id);
}

} // namespace tq
