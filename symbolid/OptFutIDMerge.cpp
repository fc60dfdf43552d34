// Descriptions of two legs.
#include <optional>

#include "platform/services/tqStockFields.h"
#include "symbolid/CombinationText.h"
#include "symbolid/ContractCode.h"
#include "symbolid/ContractService.h"
#include "symbolid/OptFutID.h"
#include "symbolid/UpperText.h"
#include "symboltable/SymbolTableMgr.h"
#include "symboltable/TablesWatch.h"

namespace {

bool HaveOneCommodity(const CString& id1, const CString& id2) {
  return tq::CommodityOf(tq::ViewOf(id1)) == tq::CommodityOf(tq::ViewOf(id2));
}

CString Trimmed(const CString& id) {
  CString text = id;
  text.Trim();
  return text;
}

bool IsFuturesCode(const CString& id) {
  return id.GetLength() > static_cast<int>(tq::kFutureYearPosition);
}

} // namespace

int COptFutID::MergeID(CString& text, char& side, const CString& id1, char side1,
                       const CString& id2, char side2, int check) noexcept {
  if (!HaveOneCommodity(id1, id2))
    return Report(OptFutCommoditiesDiffer);
  if (check && !ChkCommID(id1, side1, id2, side2))
    return 0;
  text = tq::DescribeCombination(tq::OptionLeg(id1, side1), tq::OptionLeg(id2, side2));
  side = side2;
  return 1;
}

int COptFutID::MergeID2(CString& text, char& side, const CString& id1, char side1,
                        const CString& id2, char side2, int check,
                        CSymbolTableMgr* tables) noexcept {
  std::optional<tq::TablesWatch> watch;
  if (tables != nullptr)
    watch.emplace(*tables);
  const CString code1 = Trimmed(id1);
  const CString code2 = Trimmed(id2);
  if (!HaveOneCommodity(code1, code2))
    return Report(OptFutCommoditiesDiffer);
  if (check && !ChkCommID(code1, side1, code2, side2))
    return 0;
  const auto namesOf = [&](const CString& code) {
    tq::LegNames names;
    const CString serviceId = watch && !watch->AreGone() ? tq::ServiceId(code) : CString();
    if (serviceId.IsEmpty() || watch->AreGone())
      return names;
    if (!tables->LookUpSymbolGetString(FieldLegExchange, serviceId, CString(), names.exchange))
      names.exchange.Empty();
    GetShortID(names.shortName, serviceId);
    return names;
  };
  text = tq::DescribeLegs(tq::OptionLeg(code1, side1), namesOf(code1), tq::OptionLeg(code2, side2),
                          namesOf(code2), check ? tq::KindWords::Written : tq::KindWords::LeftOut);
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
