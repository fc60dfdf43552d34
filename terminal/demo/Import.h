// Lists of an older product, brought along by a user who moves to this terminal.
#pragma once

#include <string>

#include "manager/TQSymbolListMgr.h"

namespace demo {

// Puts the older product's file into the directory, for the next start to find. False when it
// cannot be written.
bool WriteImportFile(const std::string& directory);

// Shows what the start made of it: `listsBefore` is the number of lists that the user had without
// them. False, with `error` in one line, when the import did not do what it should.
bool ShowImport(CTQSymbolListMgr& manager, const std::string& directory, int listsBefore,
                std::string& error);

} // namespace demo
