// What the figures of Hostile.h are made of.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "bench/Report.h"
#include "terminal/StandIn.h"

namespace bench {

using Sizes = std::vector<std::size_t>;
// Does the work for a size and returns its seconds; `right` is set to false for a wrong answer.
using Work = std::function<double(std::size_t size, bool& right)>;

// Shows the median of three runs at each size, for each item.
void Measure(Report& report, const std::string& what, const Sizes& sizes, const Work& work);

// A market of one exchange, XX, without symbols; and one of its symbols.
standin::Market OneExchange();
standin::Instrument Stock(const std::string& code);

// Lists set and added one by one, by ids as they are and by crafted ones.
void MeasureLists(Report& report, const Sizes& sizes);
// Accounts at a login. Holdings and groups by crafted ids.
void MeasureAccounts(Report& report, const Sizes& sizes);
void MeasureHoldings(Report& report, const Sizes& sizes);
void MeasureGroupIds(Report& report, const Sizes& sizes);

} // namespace bench
