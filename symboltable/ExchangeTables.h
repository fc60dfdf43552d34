// The 128 slots that own the tables, and how a table is found among them. A slot's number says
// nothing: of several tables that would do, the one in the lowest slot answers.
//
// The services that an operation asks may call the library again before they answer, and take away
// the very table that is to get the answer. So an operation that asks holds a ExchangeTables::Use:
// until the last one ends, tables that are taken out live on, and so do the slots themselves.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "symboltable/SymbolTable.h"

namespace tq {

class ExchangeTables {
public:
  static constexpr int kCount = 128;
  static constexpr int kNone = -1;

  // Keeps the slots and what was in them while an operation asks the services.
  class Use {
  public:
    explicit Use(ExchangeTables& slots) : slots_(slots) { ++slots.uses_; }
    ~Use() { slots_.EndUse(); }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

    ExchangeTables* operator->() const { return &slots_; }
    ExchangeTables& operator*() const { return slots_; }

  private:
    ExchangeTables& slots_;
  };

  ExchangeTables();
  ~ExchangeTables();
  // Deletes the slots with all tables, as soon as no operation uses them.
  static void Delete(std::unique_ptr<ExchangeTables> slots);
  // Whether Delete was called, and an operation uses them still.
  bool IsOwnerless() const { return ownerless_; }
  ExchangeTables(const ExchangeTables&) = delete;
  ExchangeTables& operator=(const ExchangeTables&) = delete;

  CSymbolTable* At(int slot) const { return tables_[static_cast<std::size_t>(slot)].get(); }
  // The first slot at or after `from` that holds nothing; None when there is none.
  int FirstFree(int from = 0) const;

  // Puts a table in. The one that was there is deleted as soon as no operation uses the slots.
  void Put(int slot, std::unique_ptr<CSymbolTable> table);
  // Deletes a table, or all of them, in the same way.
  void Remove(int slot);
  void Clear();
  // Empties all slots without deleting the tables, which then belong to nobody.
  void Forget();

  // The slot of a table with exactly that name, or with that exchange id; None.
  int FindName(std::string_view exchName) const;
  // The same for the name at the end of a text with that tail, of one to eight bytes.
  int FindNameInTail(std::uint64_t tail, std::size_t size) const {
    const PackedText head = {tail >> 8 * (sizeof tail - size), 0};
    std::size_t at = NameHash(head);
    while (byName_[at] != 0 && !IsShortNameAt(byName_[at] - 1, head.low, size))
      at = (at + 1) % kNameIndexSize;
    return byName_[at] - 1;
  }
  int FindId(int exchId) const;
  // By name or, when that is empty, by id.
  int Find(std::string_view exchName, int exchId) const {
    return exchName.empty() ? FindId(exchId) : FindName(exchName);
  }
  // Whether a look-up of the table's name finds this very table.
  bool IsFirstOfName(const CSymbolTable& table) const {
    const int slot = Find(ViewOf(table.ExchName()), kNone);
    return slot != kNone && At(slot) == &table;
  }
  // Whether some table has that name but for letter case; `upperName` is in upper case.
  bool HasUpperName(std::string_view upperName) const;

  // The default exchanges, best first; kept when the tables change.
  void SetDefaults(std::vector<int> exchIds);
  // The tables of the default exchanges, in the same order, without those that have none.
  const std::vector<CSymbolTable*>& Defaults() const { return defaults_; }

private:
  // Slots plus 1 by the hash of a name, 0 for no entry: at most half of it is taken.
  static constexpr std::size_t kNameIndexSize = 256;
  using NameIndex = std::array<std::uint8_t, kNameIndexSize>;
  static std::size_t NameHash(PackedText head) {
    return HashOf(head) >> 24; // below kNameIndexSize
  }

  struct NameHead {
    PackedText start; // of a table's name
    std::size_t size;
  };

  void TakeOut(std::size_t slot);
  void EndUse();
  void Reindex();
  template <typename IsName>
  static void Enter(NameIndex& index, std::string_view name, int slot, IsName isName);
  void FindDefaults();
  std::string_view NameAt(int slot) const { return ViewOf(At(slot)->ExchName()); }
  bool IsNameAt(int slot, std::string_view name, PackedText start) const {
    const NameHead& head = nameHeads_[static_cast<std::size_t>(slot)];
    return head.start == start && head.size == name.size() &&
           (head.size <= sizeof start || NameAt(slot) == name);
  }
  bool IsShortNameAt(int slot, std::uint64_t name, std::size_t size) const {
    const NameHead& head = nameHeads_[static_cast<std::size_t>(slot)];
    return head.start.low == name && head.size == size;
  }
  std::string_view UpperNameAt(int slot) const {
    return upperNames_[static_cast<std::size_t>(slot)];
  }

  std::array<std::unique_ptr<CSymbolTable>, kCount> tables_;
  std::vector<std::unique_ptr<CSymbolTable>> takenOut_; // while they may be in use
  int uses_ = 0;
  bool ownerless_ = false; // to be deleted with the last use
  std::array<NameHead, kCount> nameHeads_;
  std::array<std::string, kCount> upperNames_;
  NameIndex byName_ = {};
  NameIndex byUpperName_ = {};
  std::vector<int> defaultIds_;
  std::vector<CSymbolTable*> defaults_;
};

} // namespace tq
