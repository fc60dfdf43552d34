// Descriptions of two legs with the names that the symbol tables have for them.
#include <optional>

#include "platform/Text.h"
#include "platform/services/tqStockFields.h"
#include "symbolid/CombinationText.h"
#include "symbolid/ContractCode.h"
#include "symbolid/ContractService.h"
#include "symbolid/OptFutID.h"
#include "symboltable/ExchangeTables.h"
#include "symboltable/SymbolTableMgr.h"

namespace tq {

// Tells whether tables that a caller handed in still live: the terminal may delete them while a
// service is asked.
class TablesWatch {
public:
  explicit TablesWatch(CSymbolTableMgr& tables) : tables_(*tables.slots_) {}

  bool AreGone() const { return tables_->IsOwnerless(); }

private:
  ExchangeTables::Use tables_;
};

} // namespace tq

namespace {

CString Trimmed(const CString& id) {
  CString text = id;
  text.Trim();
  return text;
}

} // namespace

int COptFutID::MergeID2(CString& text, char& side, const CString& id1, char side1,
                        const CString& id2, char side2, int check,
                        CSymbolTableMgr* tables) noexcept {
  std::optional<tq::TablesWatch> watch;
  if (tables != nullptr)
    watch.emplace(*tables);
  const CString code1 = Trimmed(id1);
  const CString code2 = Trimmed(id2);
  if (!tq::HaveOneCommodity(tq::ViewOf(code1), tq::ViewOf(code2)))
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
