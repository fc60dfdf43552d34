// The queries: every symbol of a market once, in the same random order for library and peers.
#pragma once

#include <string>
#include <vector>

#include "platform/framework/CString.h"
#include "terminal/StandIn.h"

namespace bench {

// The same texts for the library and a peer.
struct Query {
  std::vector<CString> ids;
  std::vector<std::string> texts;
};

struct Queries {
  Query full;                        // full ids of all symbols
  Query bare;                        // bare codes of the symbols of the default exchanges
  Query missing;                     // full ids that no exchange lists
  std::vector<int> defaults;         // the default exchanges' ids
  std::vector<std::string> suffixes; // "." and the name of each of them
};

Queries MakeQueries(const standin::Market& market);

} // namespace bench
