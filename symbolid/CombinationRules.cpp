#include "symbolid/CombinationRules.h"

#include <algorithm>

#include "platform/CodePage.h"
#include "symbolid/ContractCode.h"

namespace tq {
namespace {

bool IsCommodityLetter(char letter) {
  return (letter >= 'A' && letter <= 'Z') || IsDecimalDigit(letter);
}

// Positions in a code are bytes, so a double-byte character would shift the parts behind it.
bool IsUnreadable(char byte) {
  return byte == '\0' || IsLeadByte(byte);
}

} // namespace

char CombinationLeg::CallPut() const {
  return CallPutOf(ByteAt(month, 0));
}

OptFutError CheckOptionCode(std::string_view code) {
  const std::string_view commodity = CommodityOf(code);
  const std::string_view strike = StrikeOf(code);
  if (!std::all_of(commodity.begin(), commodity.end(), IsCommodityLetter))
    return OptFutBadCommodity;
  if (std::any_of(strike.begin(), strike.end(), IsUnreadable))
    return OptFutUnreadableCode;
  if (CallPutOf(ByteAt(code, kOptionMonthPosition)) == ' ')
    return OptFutBadMonth;
  return IsDecimalDigit(ByteAt(code, kOptionYearPosition)) ? OptFutNoError : OptFutBadYear;
}

OptFutError CheckPriceSpread(char callPut, std::string_view strike, std::string_view other) {
  const PriceOrder order = ComparePrices(strike, other);
  if (callPut == 'C')
    return order == PriceOrder::Higher ? OptFutNoError : OptFutCallStrikeNotHigher;
  return order == PriceOrder::Lower ? OptFutNoError : OptFutPutStrikeNotLower;
}

OptFutError CheckTimeSpread(std::string_view month, std::string_view other) {
  switch (CompareMonths(month, other)) {
  case MonthOrder::TooFarApart:
    return OptFutTooFarApart;
  case MonthOrder::Later:
    return OptFutFirstMonthLater;
  case MonthOrder::Same:
  case MonthOrder::Earlier:
    break;
  }
  return OptFutNoError;
}

OptFutError CheckCallAndPut(const CombinationLeg& leg, const CombinationLeg& other, bool sameSide) {
  if (!IsSameMonth(leg.month, other.month))
    return OptFutMonthsDiffer;
  const PriceOrder order = ComparePrices(leg.strike, other.strike);
  if (order == PriceOrder::Equal)
    return leg.CallPut() == 'C' ? OptFutNoError : OptFutFirstNotCall;
  if (!sameSide)
    return OptFutStrikesDiffer;
  return order == PriceOrder::Higher ? OptFutNoError : OptFutPutStrikeNotLower;
}

OptFutError CheckOneKind(const CombinationLeg& leg, const CombinationLeg& other) {
  const bool sameStrike = ComparePrices(leg.strike, other.strike) == PriceOrder::Equal;
  if (leg.month != other.month)
    return sameStrike ? CheckTimeSpread(leg.month, other.month) : OptFutStrikesDiffer;
  // Buying and selling the same contract breaks no rule; the exchange decides whether it makes
  // sense.
  return sameStrike ? OptFutNoError : CheckPriceSpread(leg.CallPut(), leg.strike, other.strike);
}

} // namespace tq
