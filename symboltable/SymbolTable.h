// The symbols of one exchange.
//
// They stand in 780 chains, whose order is what callers see: look-ups by name go chain by chain,
// and of symbols with one key the first of the chain answers. Beside the chains an index leads from
// a key to that first symbol, since one chain may be a sixth of an exchange; every answer is the
// one that walking the chain would give. All calls come from the terminal's user-interface thread.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/framework/CString.h"
#include "symboltable/ItemArena.h"
#include "symboltable/KeyIndex.h"
#include "symboltable/SymbolItem.h"
#include "symboltable/SymbolKey.h"

struct BaseAttr;

class CSymbolTable {
public:
  // `exchName` is the text after the last "." of this exchange's full ids, as the service writes
  // it.
  CSymbolTable(const CString& exchName, int exchId);
  virtual ~CSymbolTable();
  CSymbolTable(const CSymbolTable&) = delete;
  CSymbolTable& operator=(const CSymbolTable&) = delete;

  const CString& ExchName() const { return exchName_; }
  int ExchId() const { return exchId_; }
  bool IsAuthorized() const { return authorized_; }
  void SetAuthorized(bool authorized) { authorized_ = authorized; }

  // Replaces the symbols by all that the service has of the exchange. 0, and an empty table, when
  // it fails; an exchange without symbols is no failure.
  int Load();
  // Deletes all symbols.
  void Clear();
  // Whether what the table lacks is not on the exchange: the latest loading succeeded and brought
  // symbols, and some are left. Symbols that were added alone to an empty table do not make it
  // whole.
  bool IsWhole() const { return loaded_ && !index_.IsEmpty(); }

  // Adds the service's records of the symbols (codes joined by ","), also of those that are there
  // already. 0 when the service fails.
  int Add(const CString& symbols);
  // Takes over the service's attributes of the symbols. Those that the table lacks are passed over.
  int Update(const CString& symbols);
  // Takes the first symbol with this id out, if there is one. Letter case does not matter to the
  // comparison, but to the choice of the chain: see the implementation.
  void Remove(std::string_view id);

  // Adds one symbol behind the others of its chain; nothing when `key` has no id.
  void Insert(const CStaticKey& key, tq::ItemTextReader& reader);

  // The key of an id in this table.
  std::string_view KeyOf(std::string_view id) const { return tq::KeyOf(id, tq::ViewOf(exchName_)); }
  // Where the symbol with this key stands, or kNoSymbol; good until a symbol is added or removed.
  // Letter case matters: ids are held in upper case.
  using Place = tq::KeyIndex::Slot;
  static constexpr Place kNoSymbol = tq::KeyIndex::kNoSlot;
  Place Find(const tq::SymbolKey& key) const {
    return index_.Find(key,
                       [&](std::uint32_t number) { return arena_.At(number)->Key() == key.text; });
  }
  // The same for a key that is not longer than its code.
  Place FindCode(tq::PackedText code) const { return index_.FindCode(code, tq::HashOf(code)); }
  // What Find found, and its full id and its trade lot (or -1), for which the item is not touched.
  const CSymbolItem* At(Place place) const { return arena_.At(index_.At(place).node); }
  const CString& IdAt(Place place) const { return index_.At(place).text; }
  int TradeLotAt(Place place) const { return index_.At(place).value; }
  // Fetches what Find looks at first, for callers who ask several tables.
  void Prefetch(const tq::SymbolKey& key) const { index_.Prefetch(key.hash); }
  // The symbol of an id, or null.
  const CSymbolItem* FindId(std::string_view id) const { return FindItem(tq::MakeKey(KeyOf(id))); }
  // The first symbol of that name, chain by chain, or null.
  const CSymbolItem* FindName(const CString& name) const;

  // The first symbol of a chain, or null. `bucket` is 0 to 779.
  const CSymbolItem* Head(int bucket) const {
    return chains_[static_cast<std::size_t>(bucket)].head;
  }
  tq::KeyHashMode HashMode() const { return tq::HashModeOf(exchId_); }
  // Heap bytes held beside the items' texts.
  std::size_t Footprint() const;

private:
  struct Chain {
    CSymbolItem* head = nullptr;
    CSymbolItem* tail = nullptr;
  };

  CSymbolItem* FindItem(const tq::SymbolKey& key) const {
    const Place place = Find(key);
    return place == kNoSymbol ? nullptr : arena_.At(index_.At(place).node);
  }
  Chain& ChainOf(std::string_view key) {
    return chains_[static_cast<std::size_t>(tq::BucketOf(key, HashMode()))];
  }
  void Reserve(std::size_t count);
  void InsertAll(std::span<const BaseAttr> records);
  void Insert(const CStaticKey& key, const CString& id, tq::ItemTextReader& reader);
  int ReadId(const CStaticKey& key, CString& id) const;
  CSymbolItem Read(const CStaticKey& key, const CString& id, int exchId,
                   tq::ItemTextReader& reader) const;
  void UpdateOne(const CStaticKey& key, const CString& id, tq::ItemTextReader& reader);
  static tq::KeyIndex::Entry EntryOf(const CSymbolItem& item);
  void Append(CSymbolItem* item);
  void Unchain(CSymbolItem* item);
  void Destroy(CSymbolItem* item);

  CString exchName_;
  int exchId_;
  bool authorized_ = false;
  bool loaded_ = false; // with symbols
  std::vector<Chain> chains_;
  tq::ItemArena arena_;
  tq::KeyIndex index_;
};
