// Takes lists of older products over into the user's lists. docs/import-file.md describes their
// file.
#pragma once

#include "platform/framework/CString.h"
#include "symbollist/UserLists.h"

namespace tq {

// CTQSymbolListMgr::DoLoadOtherProductList: adds the lists of a file behind the user's, and saves
// once for all. 0 when the file could not be read.
int ImportFile(UserLists& lists, const CString& path, int product);

// CTQSymbolListMgr::LoadOtherProductList: imports the file of the data directory, once. 1 when it
// was imported.
int ImportOnce(UserLists& lists);

} // namespace tq
