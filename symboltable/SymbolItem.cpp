#include "symboltable/SymbolItem.h"

#include <algorithm>

#include "platform/services/tqStock.h"

namespace {

constexpr int NumberFields[tq::HeldNumberCount] = {FieldKind,       FieldBoard,    FieldLegExchange,
                                                   FieldExpiryDate, FieldTradeLot, FieldPriceScale};
// Bits of present_; those below stand for the held numbers.
constexpr unsigned DecimalsBit = 1u << tq::HeldNumberCount;
constexpr unsigned CodeIsSymbolBit = DecimalsBit << 1; // FieldExchangeCode is the id's symbol
static_assert(CodeIsSymbolBit <= 0x80);
constexpr int Absent = -1;
constexpr char NoMark = ' ';

int NumberIndex(int field) {
  const int* const end = NumberFields + tq::HeldNumberCount;
  const int* const at = std::find(NumberFields, end, field);
  return at == end ? -1 : static_cast<int>(at - NumberFields);
}

} // namespace

CSymbolItem::CSymbolItem(const CStaticKey& key, const tq::ItemPlace& place,
                         tq::ItemTextReader& reader)
    : keyLength_(place.keyLength), exchId_(place.exchId), id_(place.id), number_(place.number) {
  head_ = tq::PackHead(Key());
  UpdateFrom(key, reader);
}

CSymbolItem::~CSymbolItem() = default;

void CSymbolItem::UpdateFrom(const CStaticKey& key, tq::ItemTextReader& reader) {
  ReadNumbers(key);
  key.GetFieldString(FieldSymbolName, name_);
  CString mark;
  mark_ = key.GetFieldString(FieldMark, mark) && !mark.IsEmpty() ? mark.GetAt(0) : NoMark;
  bool codeIsSymbol = false;
  texts_ = reader.Read(key, Symbol(), codeIsSymbol);
  if (codeIsSymbol)
    present_ |= static_cast<std::uint8_t>(CodeIsSymbolBit);
}

void CSymbolItem::ReadNumbers(const CStaticKey& key) {
  unsigned present = 0;
  for (int i = 0; i < tq::HeldNumberCount; ++i) {
    int number = Absent;
    if (key.GetFieldInt(NumberFields[i], number))
      present |= 1u << i;
    numbers_[i] = number;
  }
  int decimals = 0;
  if (key.GetFieldInt(FieldDecimals, decimals))
    present |= DecimalsBit;
  // No price has more than a handful of them.
  decimals_ = static_cast<std::int16_t>(std::clamp(decimals, -0x7fff, 0x7fff));
  present_ = static_cast<std::uint8_t>(present);
  int exchange = exchId_;
  if (key.GetFieldInt(FieldExchangeName, exchange))
    exchId_ = exchange;
}

int CSymbolItem::GetNumber(int field, int& value) const {
  if (field == FieldExchangeName) {
    value = exchId_;
    return 1;
  }
  const int index = NumberIndex(field);
  if (index < 0 && field != FieldDecimals)
    return AskNumber(field, value);
  const unsigned bit = index < 0 ? DecimalsBit : 1u << index;
  const bool present = (present_ & bit) != 0;
  if (index < 0)
    value = present ? decimals_ : Absent;
  else
    value = numbers_[index];
  return present;
}

int CSymbolItem::GetText(int field, CString& value, tq::IdPart part) const {
  if (field == FieldSymbolId && part == tq::IdPart::Full)
    value = id_;
  else if (field == FieldSymbolId)
    value.SetString(id_.GetString(), static_cast<int>(Symbol().size()));
  else if (field == FieldSymbolName)
    value = name_;
  else if (field == FieldMark)
    value.SetString(&mark_, mark_ == NoMark ? 0 : 1);
  else if (const int held = tq::ItemTextIndex(field); held >= 0)
    GetHeldText(held, value);
  else
    return AskText(field, value);
  return 1;
}

void CSymbolItem::GetHeldText(int index, CString& value) const {
  if (index == tq::ExchangeCodeText && (present_ & CodeIsSymbolBit) != 0)
    value.SetString(id_.GetString(), static_cast<int>(Symbol().size()));
  else if (texts_)
    value = texts_->texts[index];
  else
    value.Empty();
}

void CSymbolItem::Append(CSymbolItem* item) {
  next_ = item;
  item->previous_ = this;
}

void CSymbolItem::RemoveFromChain(CSymbolItem* item) {
  item->previous_->next_ = item->next_;
  if (item->next_ != nullptr)
    item->next_->previous_ = item->previous_;
}

CSymbolItem* CSymbolItem::LeaveAsHead() {
  if (next_ != nullptr)
    next_->previous_ = nullptr;
  return next_;
}

void CSymbolItem::AppendSame(CSymbolItem* item) {
  CSymbolItem* const last = lastSame_ != nullptr ? lastSame_ : this;
  last->nextSame_ = item;
  lastSame_ = item;
}

CSymbolItem* CSymbolItem::LeaveSame() {
  if (nextSame_ != nullptr && lastSame_ != nextSame_)
    nextSame_->lastSame_ = lastSame_;
  return nextSame_;
}
