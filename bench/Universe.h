// The markets that are measured.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "terminal/StandIn.h"

namespace bench {

// The kind of list that is measured, as the manager numbers it.
inline constexpr int kUserLists = 1;

struct Universe {
  std::string title;
  standin::Market market;
};

// A listing file: UTF-8, tab-separated, with a line of column names and then a line for each
// listing with exchange, code, name, type and industry. False with a reason when it cannot be read.
bool ReadListings(const std::string& path, Universe& universe, std::string& error);

// `count` symbols, spread evenly over 20 exchanges, three of which are default exchanges. By the
// shape of their codes they are shares, warrants and options; each code is unique in the market.
Universe GenerateUniverse(std::size_t count);

// Full ids ("2330.TW") in the service's order.
std::vector<std::string> FullIds(const standin::Market& market);

} // namespace bench
