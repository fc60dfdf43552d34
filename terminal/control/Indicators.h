// The info tables behind CStockKey::GetInfoArray.
#pragma once

#include <string>
#include <vector>

#include "terminal/StandInApi.h"

namespace standin {

using InfoRows = std::vector<std::vector<std::string>>;

// The rows of one table in the language of the moment, bytes: what SetIndicators says, else the
// market.
TQSTANDIN_API InfoRows InfoRowsOf(int type);

} // namespace standin
