// Lists of older products that the terminal's user brings along. docs/import-file.md describes
// their file.
#pragma once

#include <vector>

#include "platform/framework/CString.h"
#include "platform/interface/TQSymbolNames.h"

namespace tq {

// Names of the file, put behind the data directory as they stand: before it was imported, and
// after.
inline constexpr char kImportFileName[] = "\\OldOTVList.xml";
inline constexpr char kImportedFileName[] = "\\Added_OldOTVList.xml";

// The product whose file is imported at a start.
inline constexpr int kImportedProduct = TQImportEOrvel;

struct ImportedList {
  CString id;
  CString name;
  CString symbols; // ids joined by ",", not empty
};

// Reads the lists of an import file, named and numbered as lists of `product`, 0 to 2. A document
// of another kind has none. False, `lists` empty, for a file that is missing or not well-formed and
// for any other product.
bool ReadImportFile(const char* path, int product, std::vector<ImportedList>& lists);

// Whether this very file was imported before and could not be renamed then: SetAside left a copy of
// it, and neither its bytes nor its time have changed since.
bool IsImported(const char* path, const char* importedPath);

// Gives an imported file its other name. Where the system refuses, a copy goes there that tells so.
void SetAside(const char* path, const char* importedPath);

} // namespace tq
