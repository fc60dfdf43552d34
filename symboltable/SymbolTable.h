// The symbols of one exchange.
//
// They are kept in 780 chains, whose order is visible to callers: look-ups by name go chain by
// chain, and of symbols with the same key the first in the chain answers. Since a single chain may
// hold a sixth of an exchange, a hash index maps each key to that first symbol. Invariant: every
// answer is the one that walking the chain would give. User-interface thread only.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/framework/CString.h"
#include "symbolid/SymbolKey.h"
#include "symboltable/ItemArena.h"
#include "symboltable/KeyIndex.h"
#include "symboltable/SymbolItem.h"

struct BaseAttr;

class CSymbolTable {
public:
  // `exchName`, as the service writes it, is the text after the last "." of the exchange's full
  // ids.
  CSymbolTable(const CString& exchName, int exchId);
  virtual ~CSymbolTable();
  CSymbolTable(const CSymbolTable&) = delete;
  CSymbolTable& operator=(const CSymbolTable&) = delete;

  const CString& ExchName() const { return exchName_; }
  int ExchId() const { return exchId_; }
  bool IsAuthorized() const { return authorized_; }
  void SetAuthorized(bool authorized) { authorized_ = authorized; }

  // Replaces the symbols by all that the service has for the exchange. On failure 0, and the table
  // is empty. An exchange without symbols is no failure.
  int Load();
  // Deletes all symbols.
  void Clear();
  // Whether the table is complete, so that a symbol it lacks is not on the exchange: the latest
  // load succeeded and brought symbols, and some are left. Adding symbols to an empty table does
  // not make it complete.
  bool IsWhole() const { return loaded_ && !index_.IsEmpty(); }

  // Adds the service's records of the symbols (codes joined by ","), even of symbols that the table
  // holds already. 0 when the service fails.
  int Add(const CString& symbols);
  // Updates the attributes of the symbols from the service. Symbols that the table lacks are
  // skipped.
  int Update(const CString& symbols);
  // Removes the first symbol with this id, if there is one. The comparison ignores letter case, the
  // choice of the chain does not: see the implementation.
  void Remove(std::string_view id);

  // Appends one symbol to its chain. Does nothing when `key` has no id.
  void Insert(const CStaticKey& key, tq::ItemTextReader& reader);

  // The key of an id in this table.
  std::string_view KeyOf(std::string_view id) const { return tq::KeyOf(id, tq::ViewOf(exchName_)); }
  // The position of the first symbol with this key, or kNoSymbol; valid until a symbol is added or
  // removed. Letter case counts: ids are stored in upper case.
  using Position = tq::KeyIndex::Slot;
  static constexpr Position kNoSymbol = tq::KeyIndex::kNoSlot;
  Position Find(const tq::SymbolKey& key) const {
    return index_.Find(key,
                       [&](std::uint32_t number) { return arena_.At(number)->Key() == key.text; });
  }
  // The same for a key that is not longer than its code.
  Position FindCode(tq::PackedText code) const { return index_.FindCode(code, tq::HashOf(code)); }
  // The symbol at a position. Its full id, and its trade lot (or -1), without touching the item.
  const CSymbolItem* At(Position at) const { return arena_.At(index_.At(at).node); }
  const CString& IdAt(Position at) const { return index_.At(at).text; }
  int TradeLotAt(Position at) const { return index_.At(at).value; }
  // Prefetches what Find reads first, for callers that search several tables.
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
    const Position found = Find(key);
    return found == kNoSymbol ? nullptr : arena_.At(index_.At(found).node);
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
  bool loaded_ = false; // the latest load succeeded and brought symbols
  std::vector<Chain> chains_;
  tq::ItemArena arena_;
  tq::KeyIndex index_;
};
