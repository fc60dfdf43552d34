// The text of the file that shows the trading systems. docs/trading-list-file.md describes it byte
// for byte.
#pragma once

#include <string>
#include <vector>

#include "accounts/TradingTable.h"

namespace tq {

// The file's name, put behind the data directory as it stands.
inline constexpr char kTradingFileName[] = "\\TSList.xml";

// The whole document, in the process's ANSI code page. Nothing is escaped: the file is the broker's
// own texts, and whoever reads it expects them as they are. Bytes that no reader could take (halves
// of double-byte characters, control bytes) are left out; the table keeps them, for ids are the
// service's keys.
std::string TradingFileText(const std::vector<CTS>& systems);

} // namespace tq
