// Lists of other products, and the texts that switch on a broker's edition.
#include <algorithm>

#include "groups/ImportFile.h"
#include "platform/FileAccess.h"
#include "symbollist/ListArray.h"
#include "symbollist/ListIndex.h"
#include "symbollist/ListName.h"
#include "symbollist/Log.h"
#include "symbollist/Notify.h"
#include "symbollist/TQSymbolListMgr.h"

namespace {

// As AddSymbolList for each list. Last of all, for the terminal may work on the lists when it is
// told.
void Announce(int taken) {
  for (; taken > 0; --taken) {
    tq::LogLine(tq::kLogChange, "Add SymbolList");
    tq::Notify(tq::kNotifyUserLists, "");
  }
}

// Whether the lists of before are the first ones still. While symbols are resolved the terminal may
// add, delete and replace lists.
bool StartsWith(const CPtrArray& lists, const CPtrArray& before) {
  return lists.GetSize() >= before.GetSize() &&
         std::equal(before.begin(), before.end(), lists.begin());
}

} // namespace

int CTQSymbolListMgr::DoLoadOtherProductList(CString& path, int product) {
  std::vector<tq::ImportedList> lists;
  if (path.IsEmpty() || !tq::ReadImportFile(path, product, lists))
    return 0;
  int taken = 0;
  ImportLists(lists, taken);
  Announce(taken);
  return 1;
}

int CTQSymbolListMgr::LoadOtherProductList() {
  const CString path = FilePath(tq::kImportFileName);
  const CString imported = FilePath(tq::kImportedFileName);
  if (path.IsEmpty() || !tq::Files().FileExists(path))
    return 0;
  // A file that could not be renamed when it was imported: what the user did to its lists since is
  // not to be undone.
  if (tq::IsImported(path, imported)) {
    tq::Files().RenameFile(path, imported);
    return 0;
  }
  std::vector<tq::ImportedList> lists;
  if (!tq::ReadImportFile(path, tq::kImportedProduct, lists))
    return 0;
  int taken = 0;
  // Lists that are not on the disk yet would be lost with the file.
  if (ImportLists(lists, taken) != 0)
    tq::SetAside(path, imported);
  Announce(taken);
  return 1;
}

// What AddSymbolList does for each list, but with one save for all: an import may have thousands,
// and each save writes all that came before. `taken` is how many were added or changed. Returns 0
// when they could not be saved.
int CTQSymbolListMgr::ImportLists(const std::vector<tq::ImportedList>& lists, int& taken) {
  tq::ListIndex index(lists_);
  taken =
      static_cast<int>(std::count_if(lists.begin(), lists.end(), [&](const tq::ImportedList& list) {
        return ImportList(list, index);
      }));
  if (taken == 0)
    return 1;
  if (defaultIndex_ == -1)
    defaultIndex_ = 0;
  return SaveSymbolList();
}

bool CTQSymbolListMgr::ImportList(const tq::ImportedList& from, tq::ListIndex& index) {
  CPtrArray before;
  before.Copy(lists_);
  const int found = index.FindById(from.id);
  if (found >= 0) {
    // One that the user has renamed is the user's own; so are lists that the terminal moved or
    // removed while the symbols of another were resolved.
    CSymbolList* const list = found < lists_.GetSize() ? tq::ListAt(lists_, found) : nullptr;
    if (list == nullptr || !list->IsSameID(from.id) || !list->IsSameName(from.name))
      return false;
    list->Update1(from.symbols);
    if (!StartsWith(lists_, before) || lists_.GetSize() != before.GetSize())
      index = tq::ListIndex(lists_);
    return true;
  }
  const auto taken = [&](const CString& name) { return index.HasName(name); };
  const CString name = tq::FreeName(from.name, taken);
  if (taken(name))
    return false;
  PutNewList(from.id, name, from.symbols, 1);
  const int last = lists_.GetUpperBound();
  if (last == before.GetSize() && StartsWith(lists_, before) &&
      tq::ListAt(lists_, last)->IsSameID(from.id))
    index.Add(*tq::ListAt(lists_, last), last);
  else
    index = tq::ListIndex(lists_);
  return true;
}

void CTQSymbolListMgr::AddExtraTQInfo(const CString& info) {
  if (!info.IsEmpty() && std::find(extraInfo_.begin(), extraInfo_.end(), info) == extraInfo_.end())
    extraInfo_.push_back(info);
}

void CTQSymbolListMgr::RemoveExtraTQInfo(const CString& info) {
  const auto found = std::find(extraInfo_.begin(), extraInfo_.end(), info);
  if (found != extraInfo_.end())
    extraInfo_.erase(found);
}
