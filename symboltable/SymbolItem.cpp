#include "symboltable/SymbolItem.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include "platform/services/tqStock.h"

namespace {

constexpr char kNoMark = ' ';

// Bits of present_: the numbers that the service gave, and a text that is not stored because it
// equals a part of the id.
enum : unsigned {
  KindBit = 1,
  BoardBit = 2,
  LegExchangeBit = 4,
  ExpiryDateBit = 8,
  TradeLotBit = 16,
  PriceScaleBit = 32,
  DecimalsBit = 64,
  CodeIsSymbolBit = 128, // FieldExchangeCode is the symbol
};

// The bit of a number field; 0 for fields that an item does not hold as a number.
unsigned BitOf(int field) {
  switch (field) {
  case FieldTradeLot:
    return TradeLotBit;
  case FieldKind:
    return KindBit;
  case FieldBoard:
    return BoardBit;
  case FieldLegExchange:
    return LegExchangeBit;
  case FieldExpiryDate:
    return ExpiryDateBit;
  case FieldPriceScale:
    return PriceScaleBit;
  case FieldDecimals:
    return DecimalsBit;
  default:
    return 0;
  }
}

} // namespace

CSymbolItem::CSymbolItem(const CStaticKey& key, const tq::ItemIdentity& identity,
                         tq::ItemTextReader& reader)
    : id_(identity.id), number_(identity.number), keyLength_(identity.keyLength),
      exchId_(identity.exchId) {
  ReadNumbers(key);
  key.GetFieldString(FieldSymbolName, name_);
  mark_ = reader.ReadLetter(key, FieldMark);
  bool codeIsSymbol = false;
  texts_ = reader.Read(key, Symbol(), codeIsSymbol);
  if (codeIsSymbol)
    present_ |= static_cast<std::uint8_t>(CodeIsSymbolBit);
}

CSymbolItem::CSymbolItem(CSymbolItem&& read, std::uint32_t number) : CSymbolItem(std::move(read)) {
  number_ = number;
}

CSymbolItem::~CSymbolItem() = default;

void CSymbolItem::TakeAttributes(CSymbolItem&& read) {
  name_ = std::move(read.name_);
  texts_ = std::move(read.texts_);
  exchId_ = read.exchId_;
  kind_ = read.kind_;
  board_ = read.board_;
  legExchange_ = read.legExchange_;
  expiryDate_ = read.expiryDate_;
  tradeLot_ = read.tradeLot_;
  priceScale_ = read.priceScale_;
  decimals_ = read.decimals_;
  present_ = read.present_;
  mark_ = read.mark_;
}

void CSymbolItem::ReadNumbers(const CStaticKey& key) {
  unsigned present = 0;
  const auto read = [&](int field) {
    int number = kAbsent;
    if (key.GetFieldInt(field, number))
      present |= BitOf(field);
    return number;
  };
  kind_ = read(FieldKind);
  board_ = read(FieldBoard);
  legExchange_ = read(FieldLegExchange);
  expiryDate_ = read(FieldExpiryDate);
  tradeLot_ = read(FieldTradeLot);
  priceScale_ = read(FieldPriceScale);
  int decimals = 0;
  if (key.GetFieldInt(FieldDecimals, decimals))
    present |= DecimalsBit;
  // Prices have a handful of decimals; the clamp is for a faulty record.
  decimals_ = static_cast<std::int16_t>(std::clamp(decimals, -0x7fff, 0x7fff));
  int exchange = exchId_;
  if (key.GetFieldInt(FieldExchangeName, exchange))
    exchId_ = exchange;
  present_ = static_cast<std::uint8_t>(present);
}

int CSymbolItem::HeldNumber(int field) const {
  switch (field) {
  case FieldTradeLot:
    return tradeLot_;
  case FieldKind:
    return kind_;
  case FieldBoard:
    return board_;
  case FieldLegExchange:
    return legExchange_;
  case FieldExpiryDate:
    return expiryDate_;
  case FieldPriceScale:
    return priceScale_;
  default:
    return decimals_;
  }
}

int CSymbolItem::GetNumber(int field, int& value) const {
  if (field == FieldExchangeName) {
    value = exchId_;
    return 1;
  }
  const unsigned bit = BitOf(field);
  if (bit == 0)
    return AskNumber(field, value);
  const bool present = (present_ & bit) != 0;
  value = present ? HeldNumber(field) : kAbsent;
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
    value.SetString(&mark_, mark_ == kNoMark ? 0 : 1);
  else if (const int held = tq::ItemTextIndex(field); held >= 0)
    GetHeldText(held, value);
  else
    return AskText(field, value);
  return 1;
}

void CSymbolItem::GetHeldText(int index, CString& value) const {
  if (index == tq::kExchangeCodeText && (present_ & CodeIsSymbolBit) != 0)
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
  CSymbolItem* const next = nextSame_;
  if (next != nullptr && lastSame_ != next)
    next->lastSame_ = lastSame_;
  return next;
}
