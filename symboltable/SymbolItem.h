// One symbol of one exchange's table: its id, its name, its static attributes, and its links in the
// table's chain.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "platform/Text.h"
#include "platform/framework/CString.h"
#include "symbolid/SymbolKey.h"
#include "symboltable/ItemTexts.h"

class CStaticKey;
class CSymbolItem;

namespace tq {

// What field 1 returns: "2330.TW", or "2330".
enum class IdPart { Full, Symbol };

// What an item is constructed with, besides the service's key object.
struct ItemIdentity {
  const CString& id;       // full id in upper case
  std::uint32_t keyLength; // how many of its bytes are the key in the table
  std::uint32_t number;    // the table's number for the item
  int exchId;              // used when the service gives no exchange number
};

} // namespace tq

class CSymbolItem final {
public:
  // Copies the attributes from `key`, which has been set up.
  CSymbolItem(const CStaticKey& key, const tq::ItemIdentity& identity, tq::ItemTextReader& reader);
  // Makes an item of a table from one that is in no table; `number` is the table's number for it.
  CSymbolItem(CSymbolItem&& read, std::uint32_t number);
  virtual ~CSymbolItem();
  CSymbolItem(const CSymbolItem&) = delete;
  CSymbolItem& operator=(const CSymbolItem&) = delete;

  // The key under which the table holds it: the start of the id. Never changes.
  std::string_view Key() const { return {id_.GetString(), keyLength_}; }
  const CString& Id() const { return id_; } // in full
  const CString& Name() const { return name_; }
  std::uint32_t Number() const { return number_; }
  int ExchId() const { return exchId_; }

  // Replaces the attributes by those of `read`, an item in no table that was read for the same
  // symbol. The id and the links stay.
  void TakeAttributes(CSymbolItem&& read);

  // The attribute `field` (a Field code of tqStock) as a number; non-zero when the item or the
  // service has it. Otherwise `value` is -1, or 1 for field 186. A number out of the range of int
  // becomes the nearest int.
  int GetNumber(int field, int& value) const;
  // The same as text; `part` matters for field 1 only. A text that the item holds is a success even
  // when the service left it empty. 0 for a field that is unknown or that the service fails to
  // give; `value` is then empty, or "--" for fields 170, 171 and 179.
  int GetText(int field, CString& value, tq::IdPart part = tq::IdPart::Full) const;

  // The chain. Its owner keeps head and tail up to date.
  CSymbolItem* Next() const { return next_; }
  CSymbolItem* Previous() const { return previous_; }
  // Appends `item` to this one, the last of its chain.
  void Append(CSymbolItem* item);
  // Unlinks `item`, a later item of the chain that this one heads.
  void RemoveFromChain(CSymbolItem* item);
  // Unlinks this one, the first of its chain; returns the new first, or null.
  CSymbolItem* LeaveAsHead();

  // Items with the same key, in chain order; only the first answers look-ups.
  // Appends `item` to the items with this one's key, of which this one is the first.
  void AppendSame(CSymbolItem* item);
  // Unlinks this one, the first; returns the new first, or null.
  CSymbolItem* LeaveSame();

private:
  static constexpr int kAbsent = -1; // the value of a missing number

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
  CSymbolItem* lastSame_ = nullptr; // set in the first item of a key when there are several
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
  std::uint8_t present_ = 0; // bits: which numbers the service gave; see the body
  char mark_ = ' ';          // FieldMark
};
