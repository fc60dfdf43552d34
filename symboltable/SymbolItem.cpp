#include "symboltable/SymbolItem.h"

#include <algorithm>
#include <memory>
#include <new>

#include "platform/services/tqStock.h"

namespace {

constexpr int Absent = -1;
constexpr char NoMark = ' ';

// Bits of present_: the held numbers that the service gave, and what is not held because it can be told
// from the id.
enum : unsigned {
  KindBit = 1,
  BoardBit = 2,
  LegExchangeBit = 4,
  ExpiryDateBit = 8,
  TradeLotBit = 16,
  PriceScaleBit = 32,
  DecimalsBit = 64,
  CodeIsSymbolBit = 128, // FieldExchangeCode
};

// The bit of a field as a number, 0 for those that are not held.
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

std::uint32_t DistanceTo(const tq::ItemRest* rest, const CSymbolItem* item) {
  const auto bytes =
      reinterpret_cast<const std::byte*>(rest) - reinterpret_cast<const std::byte*>(item);
  return static_cast<std::uint32_t>(static_cast<std::size_t>(bytes) / sizeof(tq::ItemRest));
}

} // namespace

CSymbolItem::CSymbolItem(const CStaticKey& key, const tq::ItemPlace& place,
                         tq::ItemTextReader& reader)
    : code_(tq::MakeKey(tq::ViewOf(place.id).substr(0, place.keyLength)).code), id_(place.id),
      restAt_(DistanceTo(place.rest, this)), exchId_(place.exchId) {
  new (place.rest) tq::ItemRest;
  Rest().number = place.number;
  UpdateFrom(key, reader);
}

CSymbolItem::~CSymbolItem() {
  std::destroy_at(&Rest());
}

void CSymbolItem::UpdateFrom(const CStaticKey& key, tq::ItemTextReader& reader) {
  ReadNumbers(key);
  key.GetFieldString(FieldSymbolName, name_);
  mark_ = reader.ReadLetter(key, FieldMark);
  bool codeIsSymbol = false;
  Rest().texts = reader.Read(key, Symbol(), codeIsSymbol);
  if (codeIsSymbol)
    present_ |= static_cast<std::uint8_t>(CodeIsSymbolBit);
}

void CSymbolItem::ReadNumbers(const CStaticKey& key) {
  unsigned present = 0;
  const auto read = [&](int field) {
    int number = Absent;
    if (key.GetFieldInt(field, number))
      present |= BitOf(field);
    return number;
  };
  kind_ = read(FieldKind);
  Rest().board = read(FieldBoard);
  Rest().legExchange = read(FieldLegExchange);
  expiryDate_ = read(FieldExpiryDate);
  tradeLot_ = read(FieldTradeLot);
  Rest().priceScale = read(FieldPriceScale);
  int decimals = 0;
  if (key.GetFieldInt(FieldDecimals, decimals))
    present |= DecimalsBit;
  // No price has more than a handful of them.
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
    return Rest().board;
  case FieldLegExchange:
    return Rest().legExchange;
  case FieldExpiryDate:
    return expiryDate_;
  case FieldPriceScale:
    return Rest().priceScale;
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
  value = present ? HeldNumber(field) : Absent;
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
  else if (Rest().texts)
    value = Rest().texts->texts[index];
  else
    value.Empty();
}

void CSymbolItem::Append(CSymbolItem* item) {
  Rest().next = item;
  item->Rest().previous = this;
}

void CSymbolItem::RemoveFromChain(CSymbolItem* item) {
  const tq::ItemRest& links = item->Rest();
  links.previous->Rest().next = links.next;
  if (links.next != nullptr)
    links.next->Rest().previous = links.previous;
}

CSymbolItem* CSymbolItem::LeaveAsHead() {
  if (Rest().next != nullptr)
    Rest().next->Rest().previous = nullptr;
  return Rest().next;
}

void CSymbolItem::AppendSame(CSymbolItem* item) {
  CSymbolItem* const last = Rest().lastSame != nullptr ? Rest().lastSame : this;
  last->Rest().nextSame = item;
  Rest().lastSame = item;
}

CSymbolItem* CSymbolItem::LeaveSame() {
  CSymbolItem* const next = Rest().nextSame;
  if (next != nullptr && Rest().lastSame != next)
    next->Rest().lastSame = Rest().lastSame;
  return next;
}
