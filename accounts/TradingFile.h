// The text of the trading-system file. docs/trading-list-file.md describes it byte for byte.
#pragma once

#include <string>
#include <vector>

#include "accounts/TradingRecords.h"

namespace tq {

// The file's name, appended to the data directory.
inline constexpr char kTradingFileName[] = "\\TSList.xml";

// The whole document, in the process's ANSI code page. Nothing is escaped, since readers of this
// file expect the broker's texts unchanged. Bytes that would make the file unreadable (halves of
// double-byte characters, control bytes) are left out here; the table keeps them, since ids are the
// service's keys.
std::string TradingFileText(const std::vector<CTS>& systems);

// Whether a file of these bytes is one of TradingFileText, or holds nothing: then it may be written
// over, since the services give everything in it again.
bool IsOwnTradingFile(const std::string& bytes);

} // namespace tq
