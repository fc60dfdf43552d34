#include "symboltable/SymbolLookUp.h"

namespace tq {
namespace {

const CSymbolItem* FindOn(const TableSlots& slots, std::string_view id, std::string_view exchName) {
  constexpr int noId = -1;
  const int slot = slots.Find(exchName, noId);
  return slot == TableSlots::None ? nullptr : slots.At(slot)->FindId(id);
}

// Kept out of the way of FindSymbol, which mostly does without.
//
// A default exchange names the table, and the name finds it: with two tables of one name it is the
// lower slot's that answers, whichever of them holds the symbol.
[[gnu::noinline]] const CSymbolItem* FindOnDefaults(const TableSlots& slots, const UpperText& id,
                                                    BareSymbol rule) {
  const SymbolKey whole = MakeKey(id.text, id.head);
  const bool hasSuffix = SplitId(id.text, id.head).symbol.size() != id.text.size();
  const CSymbolTable* holder = nullptr;
  const CSymbolItem* item = nullptr;
  for (const CSymbolTable* table : slots.Defaults())
    table->Prefetch(whole);
  for (const CSymbolTable* table : slots.Defaults()) {
    // Mostly the whole id is the key on each of them, and is hashed once.
    const std::string_view key = hasSuffix ? table->KeyOf(id.text) : id.text;
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

int FindSuffix(const TableSlots& slots, const UpperText& id, std::string_view suffix) {
  return suffix.size() <= sizeof id.tail ? slots.FindNameInTail(id.tail, suffix.size())
                                         : slots.FindName(suffix);
}

} // namespace

bool IsIdOf(const FoundSymbol& found, const UpperText& id) {
  // Held ids have a "." and are in upper case. So one whose key has none is that key, "." and the
  // exchange's name, and by that name it was found.
  return found.item != nullptr && found.bySuffix && HasSingleDot(id.text, id.head);
}

std::string_view ExchangeIn(const TableSlots& slots, const UpperText& id) {
  const std::string_view suffix = SplitId(id.text, id.head).suffix;
  return !suffix.empty() && slots.HasUpperName(suffix) ? suffix : std::string_view();
}

FoundSymbol FindSymbol(const TableSlots& slots, const UpperText& id, std::string_view exchName,
                       BareSymbol rule) {
  if (!exchName.empty())
    return {FindOn(slots, id.text, exchName), false};
  const auto [symbol, suffix] = SplitId(id.text, id.head);
  if (!suffix.empty()) {
    if (const int slot = FindSuffix(slots, id, suffix); slot != TableSlots::None) {
      const SymbolKey key = MakeKey(symbol, CutHead(id.head, symbol.size()));
      return {slots.At(slot)->Find(key), true};
    }
    // An exchange that the service writes in lower case is known by its suffix, but the upper-cased
    // suffix is not its name: such a symbol is found through the default exchanges alone, bare.
    if (slots.HasUpperName(suffix))
      return {nullptr, false};
  }
  return {FindOnDefaults(slots, id, rule), false};
}

} // namespace tq
