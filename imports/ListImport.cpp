// Lists of other products, and the texts that switch on a broker's edition.
#include <algorithm>

#include "imports/ImportFile.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/FileAccess.h"
#include "platform/Log.h"
#include "platform/Notify.h"
#include "symbollist/ListName.h"
#include "symbollist/OwnedLists.h"

namespace {

// As AddSymbolList for each list. Last of all, for the terminal may work on the lists when it is
// told.
void Announce(int taken) {
  for (; taken > 0; --taken) {
    tq::LogLine(tq::kLogChange, "Add SymbolList");
    tq::Notify(tq::kNotifyUserLists, "");
  }
}

} // namespace

int CTQSymbolListMgr::DoLoadOtherProductList(CString& path, int product) noexcept {
  std::vector<tq::ImportedList> lists;
  if (path.IsEmpty() || !tq::ReadImportFile(path, product, lists))
    return 0;
  int taken = 0;
  ImportLists(lists, taken);
  Announce(taken);
  return 1;
}

int CTQSymbolListMgr::LoadOtherProductList() noexcept {
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
  taken = static_cast<int>(
      std::count_if(lists.begin(), lists.end(),
                    [this](const tq::ImportedList& list) { return ImportList(list); }));
  if (taken == 0)
    return 1;
  if (defaultIndex_ == -1)
    defaultIndex_ = 0;
  return SaveSymbolList();
}

bool CTQSymbolListMgr::ImportList(const tq::ImportedList& from) {
  if (CSymbolList* const list = lists_->Find(from.id)) {
    // One that the user has renamed is the user's own.
    if (!list->IsSameName(from.name))
      return false;
    list->Update1(from.symbols);
    return true;
  }
  const auto taken = [this](const CString& name) { return lists_->HasName(name); };
  const CString name = tq::FreeName(from.name, taken);
  if (taken(name))
    return false;
  PutNewList(from.id, name, from.symbols, 1);
  return true;
}

void CTQSymbolListMgr::AddExtraTQInfo(const CString& info) noexcept {
  if (!info.IsEmpty() && std::find(extraInfo_.begin(), extraInfo_.end(), info) == extraInfo_.end())
    extraInfo_.push_back(info);
}

void CTQSymbolListMgr::RemoveExtraTQInfo(const CString& info) noexcept {
  const auto found = std::find(extraInfo_.begin(), extraInfo_.end(), info);
  if (found != extraInfo_.end())
    extraInfo_.erase(found);
}
