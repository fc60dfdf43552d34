// Checks of the library's other XML files: TSList.xml (docs/trading-list-file.md) and the file of
// an older product (docs/import-file.md).
#pragma once

#include <cstddef>
#include <string_view>

#include "tools/tqlists/formats/Notes.h"

namespace tqlists {

// How many lists the library would import; a note for each node that gives none, and for another
// root. Of a well-formed document.
std::size_t CheckImport(std::string_view document, Notes& notes);

// How many trading systems there are; a note for what the library does not write.
std::size_t CheckTrading(std::string_view document, Notes& notes);

} // namespace tqlists
