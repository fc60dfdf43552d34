// The parts of Hostile.h.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "bench/Report.h"
#include "terminal/StandIn.h"

namespace bench {

using Sizes = std::vector<std::size_t>;
// Does the work for a size and returns its seconds; clears `right` on a wrong answer.
using Work = std::function<double(std::size_t size, bool& right)>;

// Shows the median of three runs at each size, per item.
void Measure(Report& report, const std::string& what, const Sizes& sizes, const Work& work);

// A market of one exchange, XX, without symbols; and a symbol for it.
standin::Market OneExchange();
standin::Instrument Stock(const std::string& code);

// Lists that are set and added one by one, with plain and with crafted ids.
void MeasureLists(Report& report, const Sizes& sizes);
// Accounts at a login; holdings and groups with crafted ids.
void MeasureAccounts(Report& report, const Sizes& sizes);
void MeasureHoldings(Report& report, const Sizes& sizes);
void MeasureGroupIds(Report& report, const Sizes& sizes);

} // namespace bench
