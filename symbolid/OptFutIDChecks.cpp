// Checks of two legs, given as a typed combination or as two full codes.
#include "platform/Text.h"
#include "symbolid/CombinationRules.h"
#include "symbolid/ContractCode.h"
#include "symbolid/ContractService.h"
#include "symbolid/OptFutID.h"

namespace {

// A leg that shares `shared` characters with the first and goes on with the typed text. Bytes and
// not characters are counted: what is no plain code is found out by its format.
CString CompleteLeg(std::string_view first, std::size_t shared, std::string_view typed) {
  CString leg = tq::ToCString(first.substr(0, shared));
  leg.Append(typed.data(), static_cast<int>(typed.size()));
  return leg;
}

char MonthLetterOf(const CString& code) {
  return tq::ByteAt(tq::ViewOf(code), tq::kOptionMonthPosition);
}

CString MonthOf(const CString& code) {
  return tq::ToCString(tq::MonthCodeOf(tq::ViewOf(code)));
}

tq::CombinationLeg LegOf(const CString& code) {
  return {tq::MonthCodeOf(tq::ViewOf(code)), tq::StrikeOf(tq::ViewOf(code))};
}

bool IsCall(const CString& code) {
  return tq::CallPutOf(MonthLetterOf(code)) == 'C';
}

} // namespace

int COptFutID::ChkTwoFormats(const CString& id1, const CString& id2) {
  return ChkCommIDFormat(id1) && ChkCommIDFormat(id2);
}

int COptFutID::ChkSpread(const CString& first, const CString& second, CString& id1,
                         CString& id2) noexcept {
  const std::string_view head = tq::ViewOf(first);
  const std::string_view tail = tq::ViewOf(second);
  const bool price =
      head.size() == tq::kCommodityStrikeLength && tail.size() == tq::kStrikeMonthLength;
  if (!price && (head.size() != tq::kOptionCodeLength || tail.size() != tq::kMonthCodeLength))
    return Report(OptFutSpreadLength);
  const CString leg1 =
      price ? CompleteLeg(head, head.size(), tail.substr(tq::kStrikeLength)) : first;
  const std::size_t shared = price ? tq::kCommodityLength : tq::kCommodityStrikeLength;
  const CString leg2 = CompleteLeg(head, shared, tail);
  if (!ChkTwoFormats(leg1, leg2))
    return 0;
  if (!ChkTheSameCP(MonthLetterOf(leg1), MonthLetterOf(leg2)))
    return Report(OptFutSpreadKindsDiffer);
  const tq::CombinationLeg one = LegOf(leg1);
  const tq::CombinationLeg two = LegOf(leg2);
  if (!Report(price ? tq::CheckPriceSpread(one.CallPut(), one.strike, two.strike)
                    : tq::CheckTimeSpread(one.month, two.month)))
    return 0;
  id1 = leg1;
  id2 = leg2;
  return 1;
}

int COptFutID::ChkStraddle_Strangle(const CString& first, const CString& second, CString& id1,
                                    CString& id2) noexcept {
  const std::string_view head = tq::ViewOf(first);
  const std::string_view tail = tq::ViewOf(second);
  const bool straddle = tail.size() == tq::kMonthCodeLength;
  if (head.size() != tq::kOptionCodeLength || (!straddle && tail.size() != tq::kStrikeMonthLength))
    return Report(OptFutStraddleLength);
  const CString& leg1 = first;
  const std::size_t shared = straddle ? tq::kCommodityStrikeLength : tq::kCommodityLength;
  const CString leg2 = CompleteLeg(head, shared, tail);
  if (!ChkTwoFormats(leg1, leg2))
    return 0;
  if (ChkTheSameCP(MonthLetterOf(leg1), MonthLetterOf(leg2)))
    return Report(OptFutKindsEqual);
  if (!ChkTheSameMonth(MonthOf(leg1), MonthOf(leg2)))
    return 0;
  if (IsCall(leg1) != straddle)
    return Report(straddle ? OptFutFirstNotCall : OptFutFirstNotPut);
  id1 = leg1;
  id2 = leg2;
  return 1;
}

int COptFutID::ChkReversals_Conversion(const CString& first, const CString& second, CString& id1,
                                       CString& id2) noexcept {
  const std::string_view head = tq::ViewOf(first);
  const std::string_view tail = tq::ViewOf(second);
  if (head.size() != tq::kOptionCodeLength || tail.size() != tq::kMonthCodeLength)
    return Report(OptFutReversalLength);
  const CString& leg1 = first;
  const CString leg2 = CompleteLeg(head, tq::kCommodityStrikeLength, tail);
  if (!ChkTwoFormats(leg1, leg2))
    return 0;
  if (ChkTheSameCP(MonthLetterOf(leg1), MonthLetterOf(leg2)))
    return Report(OptFutKindsEqual);
  // Months are not compared, on purpose: whether a pair of two months is traded, the exchange says.
  if (!IsCall(leg1))
    return Report(OptFutFirstNotCall);
  id1 = leg1;
  id2 = leg2;
  return 1;
}

int COptFutID::ChkCommID(const CString& id1, char side1, const CString& id2, char side2) noexcept {
  return ChkTwoFormats(id1, id2) && ChkBS(side1, side2) && ChkTwoCommID(id1, side1, id2, side2);
}

int COptFutID::ChkTwoCommID(const CString& id1, char side1, const CString& id2,
                            char side2) noexcept {
  tq::CombinationLeg one = LegOf(id1);
  tq::CombinationLeg two = LegOf(id2);
  const CString listed1 = tq::WeekOfCode(id1).strike;
  const CString listed2 = tq::WeekOfCode(id2).strike;
  // Both or none: a listed strike and five digits may be in different units. What is no price
  // cannot be compared, the digits can.
  if (tq::IsPrice(tq::ViewOf(listed1)) && tq::IsPrice(tq::ViewOf(listed2))) {
    one.strike = tq::ViewOf(listed1);
    two.strike = tq::ViewOf(listed2);
  }
  const bool sameSide = side1 == side2;
  if (one.CallPut() != two.CallPut())
    return Report(tq::CheckCallAndPut(one, two, sameSide));
  return Report(sameSide ? OptFutSameKindSameSide : tq::CheckOneKind(one, two));
}
