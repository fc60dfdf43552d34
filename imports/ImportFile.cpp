#include "imports/ImportFile.h"

#include <string>

#include "idlist/IdString.h"
#include "idlist/StorableText.h"
#include "platform/FileAccess.h"
#include "platform/LibraryString.h"
#include "platform/Text.h"
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlText.h"

namespace tq {
namespace {

// By product. Names come from the string table, ids never change with the language.
constexpr const char* kIdPatterns[] = {"PellarPlus %d", "eOrvel %d", "eTamsin %d"};
constexpr int kProducts = 3;

bool ReadFile(const char* path, std::string& bytes) {
  return Files().ReadWholeFile(path, kXmlSizeLimit, bytes) == ReadResult::Ok;
}

// What stands behind the copy of a file that could not be renamed: a comment, so that it is a
// document still. A file that was renamed ends without it, and a user may put that one in place
// again.
std::string MarkOf(const char* path) {
  FileStamp stamp;
  Files().StateOf(path, stamp);
  return "\n<!-- imported in its place, written at " + std::to_string(stamp.modified) + " -->\n";
}

// ASCII text in the encoding of a document: a file in UTF-16, which a byte-order mark tells, must
// stay one that can be read.
std::string AsIn(const std::string& document, const std::string& ascii) {
  const bool littleEndian = document.starts_with("\xFF\xFE");
  if (!littleEndian && !document.starts_with("\xFE\xFF"))
    return ascii;
  std::string wide;
  for (const char byte : ascii)
    wide += littleEndian ? std::string{byte, '\0'} : std::string{'\0', byte};
  return wide;
}

// One such id would keep all of the user's lists from loading.
CString WithoutBadIds(const CString& symbols) {
  if (!HoldsUnloadable(ViewOf(symbols)))
    return symbols;
  CString kept;
  std::string_view piece;
  for (size_t at = 0; NextPiece(ViewOf(symbols), at, piece);) {
    if (HoldsUnloadable(piece))
      continue;
    if (!kept.IsEmpty())
      kept += ',';
    kept.Append(piece.data(), static_cast<int>(piece.size()));
  }
  return kept;
}

CString SymbolsOf(const XmlElement& list) {
  const std::vector<XmlElement> ids = list.Children("IDs");
  CString symbols;
  if (!ids.empty())
    ids.front().Text(symbols);
  return WithoutBadIds(symbols.Trim());
}

} // namespace

bool ReadImportFile(const char* path, int product, std::vector<ImportedList>& lists) {
  lists.clear();
  std::string bytes;
  XmlDocument document;
  if (product < 0 || product >= kProducts || !ReadFile(path, bytes) ||
      !document.Load(bytes.data(), bytes.size()))
    return false;
  const CString namePattern = LibraryString(kStringFirstProduct + static_cast<unsigned>(product));
  int number = 0;
  for (const XmlElement& node : document.SelectSingle("/HaldeUserList").ChildNodes()) {
    // Every node counts, so that a list keeps its number whichever of the others has symbols.
    ++number;
    ImportedList list;
    list.symbols = SymbolsOf(node);
    if (list.symbols.IsEmpty())
      continue;
    list.id.Format(kIdPatterns[product], number);
    list.name.Format(namePattern, number);
    lists.push_back(std::move(list));
  }
  return true;
}

bool IsImported(const char* path, const char* importedPath) {
  std::string bytes;
  std::string imported;
  return ReadFile(importedPath, imported) && ReadFile(path, bytes) &&
         bytes + AsIn(bytes, MarkOf(path)) == imported;
}

void SetAside(const char* path, const char* importedPath) {
  std::string copy;
  if (Files().RenameFile(path, importedPath) || !ReadFile(path, copy))
    return;
  copy += AsIn(copy, MarkOf(path));
  Files().SaveWholeFile(importedPath, copy.data(), copy.size());
}

} // namespace tq
