#include "Checks.h"

#include <exception>

namespace conformance {
namespace {

// One that throws is a finding about its latest call, and the next one follows.
template <class Part> void Run(Report& report, Part part) {
  try {
    part();
  } catch (const std::exception& thrown) {
    report.Found(Rule::NoException, thrown.what());
  } catch (...) {
    report.Found(Rule::NoException, "an exception");
  }
}

} // namespace

std::size_t Check(const Options& options) {
  Report report(options);
  Market market;
  Run(report, [&] { CheckLanguage(report); });
  Run(report, [&] { CheckExchanges(report, market); });
  Run(report, [&] { CheckSymbols(report, market); });
  Run(report, [&] { CheckAttributes(report, market); });
  Run(report, [&] { CheckTradeFields(report, market); });
  Run(report, [&] { CheckExtendedTexts(report); });
  Run(report, [&] { CheckInfoTables(report); });
  Run(report, [&] { CheckSearch(report, market); });
  Run(report, [&] { CheckContracts(report, market); });
  Run(report, [&] { CheckGroups(report, market); });
  Run(report, [&] { CheckLogin(report, market); });
  Run(report, [&] { CheckTradingSystems(report, market); });
  Run(report, [&] { CheckFileNames(report); });
  Run(report, [&] { CheckLog(report); });
  if (options.ui)
    Run(report, [&] { CheckBoxes(report); });
  Run(report, [&] { CheckLanguage(report); });
  return report.Count();
}

} // namespace conformance
