// Lists of an older product, for a user who moves to this terminal.
#pragma once

#include <string>

#include "manager/TQSymbolListMgr.h"

namespace demo {

// Writes the older product's file into the directory, where the next start finds it. False when
// that fails.
bool WriteImportFile(const std::string& directory);

// Shows the result of the import; `listsBefore` is the number of user lists without it. False, with
// `error` in one line, when the import failed.
bool ShowImport(CTQSymbolListMgr& manager, const std::string& directory, int listsBefore,
                std::string& error);

} // namespace demo
