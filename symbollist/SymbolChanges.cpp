#include "symbollist/SymbolChanges.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/Log.h"
#include "platform/Text.h"
#include "symbolid/SymbolRecords.h"

namespace tq {
namespace {

// Whether a token of a list is one of the symbols, with or without its exchange.
bool IsOneOf(const CStringArray& symbols, const CString& token) {
  const std::string_view id = ViewOf(token);
  for (const CString& held : symbols) {
    const std::string_view symbol = ViewOf(held);
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

} // namespace

bool RenameMovedIn(CSymbolList& list, const RenameMoved& rename) {
  CString ids = list.GetIDs();
  return rename(ids) && list.Update1(ids) != 0;
}

std::unique_ptr<CSymbolList> CopyMoved(CSymbolList& source, const RenameMoved& rename) {
  auto copy = std::make_unique<CSymbolList>(source);
  CString ids = source.GetIDs();
  if (rename(ids))
    source.UpdateWithCopy(ids, *copy);
  return copy;
}

ListVector CopyAllMoved(const CPtrArray& sources, const RenameMoved& rename) {
  ListVector copies;
  // By position: the terminal may change its array while the service is asked.
  for (int i = 0; i < sources.GetSize(); ++i) {
    if (auto* const source = static_cast<CSymbolList*>(sources.GetAt(i)))
      copies.push_back(CopyMoved(*source, rename));
  }
  return copies;
}

void ReadChangedSymbols(const char* records, int count, CStringArray& symbols) {
  if (count > kMaxSymbolChangeItems)
    LogLine(kLogGeneral,
            "CTQSymbolListMgr::UpdateExchSymbolChange Count = %d, MaxSymbolChangeItems = %d", count,
            kMaxSymbolChangeItems);
  const SymbolRecords announced(records, std::min(count, kMaxSymbolChangeItems));
  for (int i = 0; i < announced.Count(); ++i)
    symbols.Add(ToCString(announced.At(i)).MakeUpper());
}

void ResolveHolders(const OwnedLists& lists, const CStringArray& symbols) {
  // The lists as they are now: the terminal may change them while one asks the service.
  std::vector<CSymbolList*> now;
  for (const auto& list : lists.All())
    now.push_back(list.get());
  for (size_t i = 0; i < now.size(); ++i) {
    if (lists.Has(now[i], static_cast<int>(i)) && HoldsOneOf(*now[i], symbols))
      now[i]->Update3();
  }
}

} // namespace tq
