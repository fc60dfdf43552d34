// Descriptions of two legs.
#include "platform/Text.h"
#include "symbolid/CombinationText.h"
#include "symbolid/ContractCode.h"
#include "symbolid/ContractService.h"
#include "symbolid/OptFutID.h"

namespace {

bool IsFuturesCode(const CString& id) {
  return id.GetLength() > static_cast<int>(tq::kFutureYearPosition);
}

} // namespace

int COptFutID::MergeID(CString& text, char& side, const CString& id1, char side1,
                       const CString& id2, char side2, int check) noexcept {
  if (!tq::HaveOneCommodity(tq::ViewOf(id1), tq::ViewOf(id2)))
    return Report(OptFutCommoditiesDiffer);
  if (check && !ChkCommID(id1, side1, id2, side2))
    return 0;
  text = tq::DescribeCombination(tq::OptionLeg(id1, side1), tq::OptionLeg(id2, side2));
  side = side2;
  return 1;
}

int COptFutID::MergeFuturID(CString& text, char& side, const CString& id1, char side1,
                            const CString& id2, char side2) noexcept {
  if (!IsFuturesCode(id1) || !IsFuturesCode(id2))
    return Report(OptFutNotACombination);
  const tq::FutureLeg one(id1, side1, tq::WeekOfCode(id1).text);
  const tq::FutureLeg two(id2, side2, tq::WeekOfCode(id2).text);
  const bool inOrder = one.YearMonth() <= two.YearMonth();
  const tq::FutureLeg& nearer = inOrder ? one : two;
  const tq::FutureLeg& later = inOrder ? two : one;
  text = tq::DescribeCalendarSpread(id1.Left(tq::kCommodityLength), nearer, later);
  side = later.side;
  return 1;
}
