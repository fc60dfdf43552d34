#include "symboltable/SymbolTable.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

#include "platform/ServiceArray.h"
#include "platform/services/tqStock.h"
#include "symbolid/UpperId.h"

CSymbolTable::CSymbolTable(const CString& exchName, int exchId)
    : exchName_(exchName), exchId_(exchId), chains_(tq::kBucketCount) {}

CSymbolTable::~CSymbolTable() {
  Clear();
}

void CSymbolTable::Clear() {
  for (Chain& chain : chains_) {
    for (CSymbolItem* item = chain.head; item != nullptr;) {
      CSymbolItem* const next = item->Next();
      item->~CSymbolItem();
      item = next;
    }
    chain = {};
  }
  loaded_ = false;
  Reserve(0);
}

// Empties index and arena and reserves room for `count` symbols.
void CSymbolTable::Reserve(std::size_t count) {
  index_.Reset(count);
  arena_.Reset(count);
}

// Reads the full id, in upper case; 0 when there is none. This exchange's suffix is appended when
// the service leaves it out.
int CSymbolTable::ReadId(const CStaticKey& key, CString& id) const {
  if (!key.GetID(id, 1) || id.IsEmpty())
    return 0;
  if (tq::ViewOf(id).find('.') == std::string_view::npos) {
    id += '.';
    id += exchName_;
  }
  tq::MakeUpper(id);
  return 1;
}

void CSymbolTable::Insert(const CStaticKey& key, tq::ItemTextReader& reader) {
  CString id;
  if (ReadId(key, id))
    Insert(key, id, reader);
}

// All attributes are read before the table is touched: while the service is asked for one, the
// terminal may empty, load or change the table.
void CSymbolTable::Insert(const CStaticKey& attributes, const CString& id,
                          tq::ItemTextReader& reader) {
  CSymbolItem read = Read(attributes, id, exchId_, reader);
  const std::uint32_t number = arena_.Allocate();
  Append(new (arena_.CellAt(number)) CSymbolItem(std::move(read), number));
}

CSymbolItem CSymbolTable::Read(const CStaticKey& attributes, const CString& id, int exchId,
                               tq::ItemTextReader& reader) const {
  constexpr std::uint32_t noNumber = 0;
  const auto keyLength = static_cast<std::uint32_t>(KeyOf(tq::ViewOf(id)).size());
  return CSymbolItem(attributes, {id, keyLength, noNumber, exchId}, reader);
}

// What the index holds of an item.
tq::KeyIndex::Entry CSymbolTable::EntryOf(const CSymbolItem& item) {
  tq::KeyIndex::Entry entry{item.Number(), 0, item.Id()};
  item.GetNumber(FieldTradeLot, entry.value);
  return entry;
}

void CSymbolTable::Append(CSymbolItem* item) {
  Chain& chain = ChainOf(item->Key());
  if (chain.head == nullptr)
    chain.head = item;
  else
    chain.tail->Append(item);
  chain.tail = item;
  const tq::SymbolKey key = tq::MakeKey(item->Key());
  if (CSymbolItem* const first = FindItem(key))
    first->AppendSame(item);
  else
    index_.Add(key, EntryOf(*item),
               [this](std::uint32_t number) { return tq::MakeKey(arena_.At(number)->Key()).hash; });
}

void CSymbolTable::Destroy(CSymbolItem* item) {
  const std::uint32_t number = item->Number();
  item->~CSymbolItem();
  arena_.Free(number);
}

void CSymbolTable::Unchain(CSymbolItem* item) {
  Chain& chain = ChainOf(item->Key());
  CSymbolItem* const previous = item->Previous();
  if (item == chain.head)
    chain.head = item->LeaveAsHead();
  else
    chain.head->RemoveFromChain(item);
  if (item == chain.tail)
    chain.tail = previous;
}

// The chain is chosen by the id as written; only within it is letter case ignored. So "aapl" finds
// nothing where chains go by the sum of the characters, but "1234a" finds "1234A" where they go by
// the number. Do not choose the chain by the upper-cased id: removals would then remove symbols
// that they have always left.
void CSymbolTable::Remove(std::string_view id) {
  const std::string_view asked = KeyOf(id);
  CString copy = tq::ToCString(asked);
  tq::UpperBuffer buffer;
  // Stored keys are in upper case, so this is the only one that can match.
  const tq::UpperId upper = tq::UpperCased(copy, buffer);
  const tq::SymbolKey key = tq::MakeKey(upper.text, upper.head);
  if (&ChainOf(asked) != &ChainOf(key.text))
    return;
  const Position found = Find(key);
  if (found == kNoSymbol)
    return;
  CSymbolItem* const item = arena_.At(index_.At(found).node);
  if (CSymbolItem* const next = item->LeaveSame())
    index_.At(found) = EntryOf(*next);
  else
    index_.Remove(found);
  Unchain(item);
  Destroy(item);
}

const CSymbolItem* CSymbolTable::FindName(const CString& name) const {
  for (const Chain& chain : chains_)
    for (const CSymbolItem* item = chain.head; item != nullptr; item = item->Next())
      if (item->Name() == name)
        return item;
  return nullptr;
}

std::size_t CSymbolTable::Footprint() const {
  return arena_.Footprint() + index_.Footprint() + chains_.capacity() * sizeof(Chain);
}

// Reading symbols from the service: the terminal may call the table meanwhile.

int CSymbolTable::Load() {
  constexpr int allSections = -1;
  Clear();
  tq::ServiceArray<BaseAttr> symbols("VLGetBaseAttrs2");
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
  tq::ServiceArray<BaseAttr> added("VLGetBaseAttrs");
  if (!VLGetBaseAttrs(symbols, added.List(), added.Count(), 1))
    return 0;
  InsertAll(added.Records());
  return 1;
}

int CSymbolTable::Update(const CString& symbols) {
  tq::ServiceArray<BaseAttr> updated("VLGetBaseAttrs");
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
