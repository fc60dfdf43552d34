// The tables of the exchanges, in 128 slots, and how a table is found among them: the lowest
// matching slot wins.
//
// A service that an operation asks may call the library again before it answers, and that call may
// delete the very table that waits for the answer. So an operation that asks services holds an
// ExchangeTables::Use: until the last one ends, removed tables live on, and so does this object.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "symboltable/SymbolTable.h"

namespace tq {

class ExchangeTables {
public:
  static constexpr int kCount = 128;
  static constexpr int kNone = -1;

  // Keeps this object and its tables alive while an operation asks services.
  class Use {
  public:
    explicit Use(ExchangeTables& tables) : tables_(tables) { ++tables.uses_; }
    ~Use() { tables_.EndUse(); }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

    ExchangeTables* operator->() const { return &tables_; }
    ExchangeTables& operator*() const { return tables_; }

  private:
    ExchangeTables& tables_;
  };

  ExchangeTables();
  ~ExchangeTables();
  // Deletes the tables and this object as soon as no operation uses it.
  static void Delete(std::unique_ptr<ExchangeTables> tables);
  // Whether Delete was called while an operation uses this object.
  bool IsOwnerless() const { return ownerless_; }
  ExchangeTables(const ExchangeTables&) = delete;
  ExchangeTables& operator=(const ExchangeTables&) = delete;

  CSymbolTable* At(int slot) const { return tables_[static_cast<std::size_t>(slot)].get(); }
  // The first free slot from `from` on; kNone when there is none.
  int FirstFree(int from = 0) const;

  // Puts a table into a slot. The table that was there is deleted as soon as no operation uses it.
  void Put(int slot, std::unique_ptr<CSymbolTable> table);
  // Deletes one table, or all, in the same way.
  void Remove(int slot);
  void Clear();
  // Empties all slots without deleting the tables, which then have no owner.
  void Forget();

  // The lowest slot with exactly that name, or with that exchange id; kNone when there is none.
  int FindName(std::string_view exchName) const;
  // FindName for the last `size` bytes, 1 to kShortName, of an id with that tail (UpperId).
  int FindNameInTail(std::uint64_t tail, std::size_t size) const {
    return FindShort(tail >> 8 * (sizeof tail - size), size);
  }
  int FindId(int exchId) const;
  // By name or, when that is empty, by id.
  int Find(std::string_view exchName, int exchId) const {
    return exchName.empty() ? FindId(exchId) : FindName(exchName);
  }
  // Whether FindName of the table's name returns the slot of this very table.
  bool IsFirstOfName(const CSymbolTable& table) const {
    const int slot = Find(ViewOf(table.ExchName()), kNone);
    return slot != kNone && At(slot) == &table;
  }
  // Whether a table has that name, letter case ignored. `upperName` is in upper case.
  bool HasUpperName(std::string_view upperName) const { return upperNames_.contains(upperName); }

  // Sets the default exchanges, best first. They stay when the tables change.
  void SetDefaults(std::vector<int> exchIds);
  // Their tables, in the same order; exchanges without a table are left out.
  const std::vector<CSymbolTable*>& Defaults() const { return defaults_; }

private:
  // Each look-up finds its exchange by the id's suffix. So names of up to kShortName bytes, as all
  // are, have an open-addressing hash table: a std::unordered_map takes 7 ns more, of the 35 that a
  // look-up takes in a market of 10,000 symbols.
  static constexpr std::size_t kShortName = sizeof(std::uint64_t);
  struct ShortName {
    std::uint64_t name = 0; // PackWord of it
    std::uint8_t size = 0;
    std::int16_t slot = kNone; // kNone: the entry is free
  };
  // At most half of them are taken.
  static constexpr std::size_t kShortNames = std::size_t{2} * kCount;
  static std::size_t HashOfName(std::uint64_t name) {
    constexpr std::uint64_t multiplier = 0x9e3779b97f4a7c15u;
    constexpr int shift = std::countl_zero(std::uint64_t{kShortNames - 1});
    return name * multiplier >> shift;
  }

  // The index of the entry of a short name, or of the free one where it would be.
  std::size_t EntryOf(std::uint64_t name, std::size_t size) const {
    std::size_t at = HashOfName(name);
    while (shortNames_[at].slot != kNone &&
           (shortNames_[at].name != name || shortNames_[at].size != size))
      at = (at + 1) % kShortNames;
    return at;
  }
  int FindShort(std::uint64_t name, std::size_t size) const {
    return shortNames_[EntryOf(name, size)].slot;
  }

  void TakeOut(std::size_t slot);
  void EndUse();
  void Reindex();
  void AddName(std::string_view name, int slot);
  void FindDefaults();

  std::array<std::unique_ptr<CSymbolTable>, kCount> tables_;
  std::vector<std::unique_ptr<CSymbolTable>> removed_; // deleted when the last use ends
  int uses_ = 0;
  bool ownerless_ = false; // to be deleted when the last use ends
  std::array<ShortName, kShortNames> shortNames_;
  std::map<std::string, int, std::less<>> longNames_; // the slots of the other names
  std::set<std::string, std::less<>> upperNames_;     // of all tables
  std::vector<int> defaultIds_;
  std::vector<CSymbolTable*> defaults_;
};

} // namespace tq
