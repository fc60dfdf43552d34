// The info tables behind CStockKey::GetInfoArray.
#pragma once

#include <string>
#include <vector>

#include "terminal/StandInApi.h"

namespace standin {

using InfoRows = std::vector<std::vector<std::string>>;

// The rows of a table in the current language, as bytes: those of SetIndicators or else of the
// market.
TQSTANDIN_API InfoRows InfoRowsOf(int type);

} // namespace standin
