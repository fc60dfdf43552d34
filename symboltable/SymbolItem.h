// One symbol of one exchange's table: its id, name and static attributes, and its place in the
// chain.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "platform/Text.h"
#include "platform/framework/CString.h"
#include "symboltable/ItemTexts.h"
#include "symboltable/SymbolKey.h"

class CStaticKey;
class CSymbolItem;

namespace tq {

// What field 1 answers: "2330.TW", or "2330".
enum class IdPart { Full, Symbol };

// What an item is made with, beside the service's key object.
struct ItemPlace {
  const CString& id;       // full id in upper case
  std::uint32_t keyLength; // bytes of it that are the key in the item's table
  std::uint32_t number;    // the table's number for the item
  int exchId;              // stands in for an exchange number that the service does not give
};

} // namespace tq

class CSymbolItem final {
public:
  // Copies the attributes out of `key`, which was set up.
  CSymbolItem(const CStaticKey& key, const tq::ItemPlace& place, tq::ItemTextReader& reader);
  // An item of a table, out of one that is in none, with the table's number for it.
  CSymbolItem(CSymbolItem&& read, std::uint32_t number);
  virtual ~CSymbolItem();
  CSymbolItem(const CSymbolItem&) = delete;
  CSymbolItem& operator=(const CSymbolItem&) = delete;

  // The key under which the table holds it: the start of the id, and never changed.
  std::string_view Key() const { return {id_.GetString(), keyLength_}; }
  const CString& Id() const { return id_; } // in full
  const CString& Name() const { return name_; }
  std::uint32_t Number() const { return number_; }
  int ExchId() const { return exchId_; }

  // Takes over the attributes of an item in no table, which was read for the same symbol. Id and
  // place stay.
  void TakeAttributes(CSymbolItem&& read);

  // The attribute with a field code of tqStock as a number; non-zero when the item or the service
  // has it. Otherwise `value` is -1, for field 186 1. A number that an int cannot hold is the
  // nearest one.
  int GetNumber(int field, int& value) const;
  // The same as text; `part` matters for field 1 alone. A held text that the service did not give
  // is empty, which is an answer. A field that is unknown, or that the service fails to give, is 0
  // with `value` empty, "--" for fields 170, 171 and 179.
  int GetText(int field, CString& value, tq::IdPart part = tq::IdPart::Full) const;

  // The chain. The owner keeps its head and tail in step.
  CSymbolItem* Next() const { return next_; }
  CSymbolItem* Previous() const { return previous_; }
  // Puts `item` behind this one, which is the last of its chain.
  void Append(CSymbolItem* item);
  // Takes `item`, a later one of the chain that this one heads, out of it.
  void RemoveFromChain(CSymbolItem* item);
  // Takes this one, the first of its chain, out of it; returns the new first.
  CSymbolItem* LeaveAsHead();

  // Items with the same key, in chain order. Only the first of them is ever asked.
  // Puts `item` behind all items with this one's key, which is the first of them.
  void AppendSame(CSymbolItem* item);
  // Takes this one, the first, out; returns the new first or null.
  CSymbolItem* LeaveSame();

private:
  static constexpr int kAbsent = -1; // a number that nobody gave

  std::string_view Symbol() const { return tq::SplitId(tq::ViewOf(id_)).symbol; }
  CSymbolItem(CSymbolItem&& read) = default;
  void ReadNumbers(const CStaticKey& key);
  int HeldNumber(int field) const;
  void GetHeldText(int index, CString& value) const;
  int AskNumber(int field, int& value) const;
  int AskText(int field, CString& value) const;
  int AskService(int field, CString& value) const;
  int AskTradeCode(CString& value) const;

  CString id_;
  CString name_;
  std::shared_ptr<const tq::ItemTexts> texts_;
  CSymbolItem* next_ = nullptr;
  CSymbolItem* previous_ = nullptr;
  CSymbolItem* nextSame_ = nullptr;
  CSymbolItem* lastSame_ = nullptr; // kept in the first item of a key, when there are more
  std::uint32_t number_;            // the table's number for the item
  std::uint32_t keyLength_;
  std::int32_t exchId_;
  std::int32_t kind_ = 0;
  std::int32_t board_ = 0;
  std::int32_t legExchange_ = 0;
  std::int32_t expiryDate_ = 0;
  std::int32_t tradeLot_ = 0;
  std::int32_t priceScale_ = 0;
  std::int16_t decimals_ = 0;
  std::uint8_t present_ = 0; // what the service gave, see the body
  char mark_ = ' ';          // FieldMark
};
