// The checks, in the order in which Check makes them.
#pragma once

#include "Market.h"
#include "Report.h"

namespace conformance {

void CheckExchanges(Report& report, Market& market);
void CheckSymbols(Report& report, const Market& market);
void CheckAttributes(Report& report, Market& market);
void CheckTradeFields(Report& report, const Market& market);
void CheckExtendedTexts(Report& report);
void CheckInfoTables(Report& report);
void CheckSearch(Report& report, const Market& market);
void CheckContracts(Report& report, const Market& market);
void CheckGroups(Report& report, const Market& market);
void CheckLogin(Report& report, const Market& market);
void CheckTradingSystems(Report& report, const Market& market);
void CheckLanguage(Report& report);
void CheckFileNames(Report& report);
void CheckLog(Report& report);
void CheckBoxes(Report& report);

// All of them; the boxes only where they are asked for. Returns the number of findings.
std::size_t Check(const Options& options);

} // namespace conformance
