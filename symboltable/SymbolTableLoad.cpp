// How a table reads symbols from the service.
#include <algorithm>
#include <array>
#include <utility>

#include "platform/ServiceArray.h"
#include "platform/services/tqStock.h"
#include "symboltable/SymbolTable.h"

int CSymbolTable::Load() {
  constexpr int allSections = -1;
  Clear();
  tq::ServiceArray<BaseAttr> symbols;
  if (!VLGetBaseAttrs2(exchId_, allSections, symbols.List(), symbols.Count(), 0, 1))
    return 0;
  // A separate table is filled: while attributes are read, the terminal may load, change or empty
  // this one. Of several loads the one that ends last counts.
  CSymbolTable fresh(exchName_, exchId_);
  fresh.Reserve(symbols.Records().size());
  fresh.InsertAll(symbols.Records());
  std::swap(chains_, fresh.chains_);
  std::swap(arena_, fresh.arena_);
  std::swap(index_, fresh.index_);
  loaded_ = !index_.IsEmpty();
  return 1;
}

// The ids of a batch are read before the other attributes, so that they are adjacent in memory:
// look-ups, which return them, then find twice as many of them in the processor's caches.
void CSymbolTable::InsertAll(std::span<const BaseAttr> records) {
  constexpr std::size_t batchSize = 128;
  std::array<CStaticKey, batchSize> keys;
  std::array<CString, batchSize> ids;
  tq::ItemTextReader reader;
  while (!records.empty()) {
    const std::span<const BaseAttr> batch = records.first(std::min(batchSize, records.size()));
    records = records.subspan(batch.size());
    std::size_t count = 0;
    for (const BaseAttr& record : batch)
      if (keys[count].Setup(&record) && ReadId(keys[count], ids[count]))
        ++count;
    for (std::size_t i = 0; i < count; ++i) {
      Insert(keys[i], ids[i], reader);
      ids[i].Empty();
    }
  }
}

int CSymbolTable::Add(const CString& symbols) {
  tq::ServiceArray<BaseAttr> added;
  if (!VLGetBaseAttrs(symbols, added.List(), added.Count(), 1))
    return 0;
  InsertAll(added.Records());
  return 1;
}

int CSymbolTable::Update(const CString& symbols) {
  tq::ServiceArray<BaseAttr> updated;
  if (!VLGetBaseAttrs(symbols, updated.List(), updated.Count(), 1))
    return 0;
  tq::ItemTextReader reader;
  for (const BaseAttr& record : updated.Records()) {
    CStaticKey key;
    CString id;
    if (record.code[0] != '\0' && record.usable != 0 && key.Setup(&record) && ReadId(key, id))
      UpdateOne(key, id, reader);
  }
  return 1;
}

void CSymbolTable::UpdateOne(const CStaticKey& attributes, const CString& id,
                             tq::ItemTextReader& reader) {
  const tq::SymbolKey key = tq::MakeKey(KeyOf(tq::ViewOf(id)));
  const Position before = Find(key);
  if (before == kNoSymbol)
    return;
  CSymbolItem read = Read(attributes, id, At(before)->ExchId(), reader);
  // Looked up again: the terminal may have removed the symbol while its attributes were read.
  const Position found = Find(key);
  if (found == kNoSymbol)
    return;
  CSymbolItem* const item = arena_.At(index_.At(found).node);
  item->TakeAttributes(std::move(read));
  index_.At(found) = EntryOf(*item);
}
