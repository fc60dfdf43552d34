#include "symboltable/SymbolLookUp.h"

namespace tq {
namespace {

const CSymbolItem* FindOn(const TableSlots& slots, std::string_view id, std::string_view exchName) {
  constexpr int noId = -1;
  const int slot = slots.Find(exchName, noId);
  return slot == TableSlots::None ? nullptr : slots.At(slot)->FindId(id);
}

// A default exchange names the table, and the name finds it: with two tables of one name it is the
// lower slot's that answers, whichever of them holds the symbol.
const CSymbolItem* FindOnDefaults(const TableSlots& slots, const UpperText& id, BareSymbol rule) {
  const SymbolKey whole = MakeKey(id.text, id.head);
  const CSymbolTable* holder = nullptr;
  const CSymbolItem* item = nullptr;
  for (const CSymbolTable* table : slots.Defaults()) {
    // Mostly the whole id is the key on each of them, and is hashed once.
    const std::string_view key = table->KeyOf(id.text);
    const CSymbolItem* const found =
        table->Find(key.size() == id.text.size() ? whole : MakeKey(key));
    if (found == nullptr)
      continue;
    if (holder != nullptr)
      return nullptr;
    holder = table;
    item = found;
    if (rule == BareSymbol::FirstDefault)
      break;
  }
  if (holder == nullptr || slots.IsFirstOfName(*holder))
    return item;
  return FindOn(slots, id.text, ViewOf(holder->ExchName()));
}

} // namespace

std::string_view ExchangeIn(const TableSlots& slots, const UpperText& id) {
  const std::string_view suffix = SplitId(id.text, id.head).suffix;
  return !suffix.empty() && slots.HasUpperName(suffix) ? suffix : std::string_view();
}

const CSymbolItem* FindSymbol(const TableSlots& slots, const UpperText& id,
                              std::string_view exchName, BareSymbol rule) {
  if (!exchName.empty())
    return FindOn(slots, id.text, exchName);
  const auto [symbol, suffix] = SplitId(id.text, id.head);
  if (!suffix.empty()) {
    if (const int slot = slots.FindName(suffix); slot != TableSlots::None)
      return slots.At(slot)->Find(MakeKey(symbol, CutHead(id.head, symbol.size())));
    // An exchange that the service writes in lower case is known by its suffix, but the upper-cased
    // suffix is not its name: such a symbol is found through the default exchanges alone, bare.
    if (slots.HasUpperName(suffix))
      return nullptr;
  }
  return FindOnDefaults(slots, id, rule);
}

} // namespace tq
