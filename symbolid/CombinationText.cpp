#include "symbolid/CombinationText.h"

#include "platform/Text.h"
#include "symbolid/ContractCode.h"

namespace tq {
namespace {

constexpr int kYearShift = 100; // a year and a month as one number: 202612

// "TXO 202612 S 21000 CALL - B 22000 CALL"
CString DescribeTwoStrikes(const OptionLeg& leg, const OptionLeg& other) {
  CString text;
  text.Format("%s %04d%02d %c %s %s - %c %s %s", leg.commodity.GetString(), leg.year, leg.month,
              leg.side, leg.strike.GetString(), leg.Kind(), other.side, other.strike.GetString(),
              other.Kind());
  return text;
}

// "TXO 202612 21000 B CALL - B PUT"
CString DescribeOneStrike(const OptionLeg& leg, const OptionLeg& other) {
  CString text;
  text.Format("%s %04d%02d %s %c %s - %c %s", leg.commodity.GetString(), leg.year, leg.month,
              leg.strike.GetString(), leg.side, leg.Kind(), other.side, other.Kind());
  return text;
}

// "TXO CALL S 202612 - B 202701". The strike is not forgotten: terminals have always shown a time
// spread without it, in columns that are made for this width.
CString DescribeTwoMonths(const OptionLeg& leg, const OptionLeg& other) {
  CString text;
  text.Format("%s %s %c %04d%02d - %c %04d%02d", leg.commodity.GetString(), leg.Kind(), leg.side,
              leg.year, leg.month, other.side, other.year, other.month);
  return text;
}

// "S 202612TF TX1 21000 CALL"
CString DescribeLeg(const OptionLeg& leg, const LegNames& names, KindWords words) {
  CString text;
  text.Format("%c %06d%s %s%s %s", leg.side, leg.year * kYearShift + leg.month,
              names.exchange.GetString(), names.shortName.GetString(), leg.strike.GetString(),
              words == KindWords::Written ? leg.Kind() : "");
  return text;
}

} // namespace

OptionLeg::OptionLeg(const CString& code, char sideOfLeg) : side(sideOfLeg) {
  const std::string_view text = ViewOf(code);
  const char letter = ByteAt(text, kOptionMonthPosition);
  commodity = code.Left(kCommodityLength);
  strike = ToCString(WithoutLeadingZeros(StrikeOf(text)));
  monthCode = ToCString(MonthCodeOf(text));
  year = ExpiryYear(ByteAt(text, kOptionYearPosition));
  month = OptionMonth(letter);
  callPut = CallPutOf(letter);
}

const char* OptionLeg::Kind() const {
  if (callPut == 'C')
    return "CALL";
  return callPut == 'P' ? "PUT" : "";
}

CString DescribeCombination(const OptionLeg& leg, const OptionLeg& other) {
  if (!leg.IsKindOf(other))
    return leg.side == other.side && leg.strike != other.strike ? DescribeTwoStrikes(leg, other)
                                                                : DescribeOneStrike(leg, other);
  return leg.monthCode == other.monthCode ? DescribeTwoStrikes(leg, other)
                                          : DescribeTwoMonths(leg, other);
}

CString DescribeLegs(const OptionLeg& leg, const LegNames& names, const OptionLeg& other,
                     const LegNames& otherNames, KindWords words) {
  return leg.commodity + " " + DescribeLeg(leg, names, words) + " - " +
         DescribeLeg(other, otherNames, words);
}

FutureLeg::FutureLeg(const CString& code, char sideOfLeg, const CString& weekText)
    : week(weekText), year(ExpiryYear(code.GetAt(kFutureYearPosition))),
      month(FutureMonth(code.GetAt(kFutureMonthPosition))), side(sideOfLeg) {}

int FutureLeg::YearMonth() const {
  return year * kYearShift + month;
}

CString DescribeCalendarSpread(const CString& commodity, const FutureLeg& nearer,
                               const FutureLeg& later) {
  CString text;
  text.Format("%s %c %04d%02d%s - %c %04d%02d%s", commodity.GetString(), nearer.side, nearer.year,
              nearer.month, nearer.week.GetString(), later.side, later.year, later.month,
              later.week.GetString());
  return text;
}

} // namespace tq
