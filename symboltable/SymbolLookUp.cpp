#include "symboltable/SymbolLookUp.h"

#include "platform/Compiler.h"

namespace tq {
namespace {

FoundSymbol FindIn(const CSymbolTable* table, const SymbolKey& key, bool bySuffix) {
  const CSymbolTable::Position position = table->Find(key);
  if (position == CSymbolTable::kNoSymbol)
    return {};
  return {table, position, bySuffix};
}

FoundSymbol FindOn(const ExchangeTables& slots, std::string_view id, std::string_view exchName) {
  constexpr int noId = -1;
  const int slot = slots.Find(exchName, noId);
  if (slot == ExchangeTables::kNone)
    return {};
  const CSymbolTable* const table = slots.At(slot);
  return FindIn(table, MakeKey(table->KeyOf(id)), false);
}

// Not inlined into FindSymbol, which rarely needs it.
//
// A default exchange only yields the name of a table: with two tables of one name the lower slot
// answers, whichever of them holds the symbol.
TQ_NOINLINE FoundSymbol FindOnDefaults(const ExchangeTables& slots, const UpperId& id,
                                       BareSymbol rule) {
  const SymbolKey whole = MakeKey(id.text, id.head);
  const bool hasSuffix = SplitId(id.text, id.head).symbol.size() != id.text.size();
  FoundSymbol first;
  for (const CSymbolTable* table : slots.Defaults())
    table->Prefetch(whole);
  for (const CSymbolTable* table : slots.Defaults()) {
    // Usually the whole id is the key on all of them, so it is hashed once.
    const std::string_view key = hasSuffix ? table->KeyOf(id.text) : id.text;
    const FoundSymbol found =
        FindIn(table, key.size() == id.text.size() ? whole : MakeKey(key), false);
    if (!found)
      continue;
    if (first)
      return {};
    first = found;
    if (rule == BareSymbol::FirstDefault)
      break;
  }
  if (!first || slots.IsFirstOfName(*first.table))
    return first;
  return FindOn(slots, id.text, ViewOf(first.table->ExchName()));
}

int FindSuffix(const ExchangeTables& slots, const UpperId& id, std::string_view suffix) {
  return suffix.size() <= sizeof id.tail ? slots.FindNameInTail(id.tail, suffix.size())
                                         : slots.FindName(suffix);
}

} // namespace

bool IsIdOf(const FoundSymbol& found, const UpperId& id) {
  // Stored ids are in upper case and contain a ".". With a single "." in `id`, its key contains none,
  // so the stored id is the key, "." and the name of the exchange by which the symbol was found.
  return found.bySuffix && HasSingleDot(id.text, id.head);
}

std::string_view ExchangeIn(const ExchangeTables& slots, const UpperId& id) {
  const std::string_view suffix = SplitId(id.text, id.head).suffix;
  return !suffix.empty() && slots.HasUpperName(suffix) ? suffix : std::string_view();
}

FoundSymbol FindAnySymbol(const ExchangeTables& slots, const UpperId& id, std::string_view exchName,
                          BareSymbol rule) {
  if (!exchName.empty())
    return FindOn(slots, id.text, exchName);
  const auto [symbol, suffix] = SplitId(id.text, id.head);
  if (!suffix.empty()) {
    if (const int slot = FindSuffix(slots, id, suffix); slot != ExchangeTables::kNone) {
      const SymbolKey key = MakeKey(symbol, CutHead(id.head, symbol.size()));
      return FindIn(slots.At(slot), key, true);
    }
    // An exchange whose name the service writes in lower case: the suffix names it, but no table has
    // the upper-cased name. Its symbols are found only bare, through the default exchanges.
    if (slots.HasUpperName(suffix))
      return {};
  }
  return FindOnDefaults(slots, id, rule);
}

} // namespace tq
