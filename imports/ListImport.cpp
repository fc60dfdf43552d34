#include "imports/ListImport.h"

#include <algorithm>
#include <vector>

#include "imports/ImportFile.h"
#include "platform/FileAccess.h"
#include "platform/Log.h"
#include "platform/Notify.h"
#include "platform/diagnostics/Operation.h"
#include "symbollist/ListName.h"

namespace tq {
namespace {

bool TakeIn(UserLists& lists, const ImportedList& from) {
  if (CSymbolList* const list = lists.Find(from.id)) {
    // One that the user has renamed is the user's own.
    if (!list->IsSameName(from.name))
      return false;
    list->Update1(from.symbols);
    return true;
  }
  const auto taken = [&lists](const CString& name) { return lists.Lists().HasName(name); };
  const CString name = FreeName(from.name, taken);
  if (taken(name))
    return false;
  lists.Put(from.id, name, from.symbols, true);
  return true;
}

// What AddSymbolList does for each list, but with one save for all: an import may have thousands,
// and each save writes all that came before. `taken` is how many were added or changed. Returns 0
// when they could not be saved.
int TakeAllIn(UserLists& lists, const std::vector<ImportedList>& imported, int& taken) {
  taken = static_cast<int>(
      std::count_if(imported.begin(), imported.end(),
                    [&lists](const ImportedList& list) { return TakeIn(lists, list); }));
  if (taken == 0)
    return 1;
  lists.EnsureDefault();
  return lists.Save();
}

// As AddSymbolList for each list. Last of all, for the terminal may work on the lists when it is
// told.
void Announce(int taken) {
  for (; taken > 0; --taken) {
    LogLine(kLogChange, "Add SymbolList");
    Notify(kNotifyUserLists, "");
  }
}

} // namespace

int ImportFile(UserLists& lists, const CString& path, int product) {
  std::vector<ImportedList> imported;
  if (path.IsEmpty())
    return NoteProblem(TQProblemNoFile, "the path is empty");
  if (!ReadImportFile(path, product, imported))
    return NoteProblem(TQProblemFileUnreadable,
                       "%s cannot be read as lists of product %d, or there is no such product",
                       path.GetString(), product);
  int taken = 0;
  TakeAllIn(lists, imported, taken);
  Announce(taken);
  return 1;
}

int ImportOnce(UserLists& lists) {
  const CString path = lists.PathOf(kImportFileName);
  const CString importedPath = lists.PathOf(kImportedFileName);
  if (path.IsEmpty() || !Files().FileExists(path))
    return 0;
  // A file that could not be renamed when it was imported: what the user did to its lists since is
  // not to be undone.
  if (IsImported(path, importedPath)) {
    Files().RenameFile(path, importedPath);
    return 0;
  }
  std::vector<ImportedList> imported;
  if (!ReadImportFile(path, kImportedProduct, imported))
    return NoteProblem(TQProblemFileUnreadable, "%s cannot be read", path.GetString());
  int taken = 0;
  // Lists that are not on the disk yet would be lost with the file.
  if (TakeAllIn(lists, imported, taken) != 0)
    SetAside(path, importedPath);
  Announce(taken);
  return 1;
}

} // namespace tq
