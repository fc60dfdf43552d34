// The manager's list file: loading, saving, backup.
#include <string>
#include <utility>

#include "accounts/TradingFile.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/LibraryString.h"
#include "platform/Module.h"
#include "platform/services/tqCommon.h"
#include "symbollist/KeptFiles.h"
#include "symbollist/ListFile.h"
#include "symbollist/OwnedLists.h"
#include "symbollist/XMLDOMParser.h"
#include "symboltable/MovedSymbols.h"

namespace {

constexpr unsigned kButtonOk = 0;

// What a save returns, after the message for one that failed.
int Report(tq::SaveResult result) {
  if (result == tq::SaveResult::Saved)
    return 1;
  tqShowDllMessage(tq::OwnModule(), tq::kMessageSaveFailed, kButtonOk);
  return 0;
}

} // namespace

// Joined as it stands: the directory carries no trailing backslash. Without a directory there is no
// file, for the bare name would be one in the root of the drive.
CString CTQSymbolListMgr::FilePath(const char* name) const {
  return dataDirectory_.IsEmpty() ? CString() : dataDirectory_ + name;
}

int CTQSymbolListMgr::LoadSymbolList() noexcept {
  return DoLoadSymbolList(FilePath(tq::kListFileName));
}

int CTQSymbolListMgr::SaveSymbolList() noexcept {
  return DoSaveSymbolList(FilePath(tq::kListFileName));
}

int CTQSymbolListMgr::BackupSymbolList() noexcept {
  return DoSaveSymbolList(FilePath(tq::kBackupFileName));
}

int CTQSymbolListMgr::RestorSymbolList() noexcept {
  return DoLoadSymbolList(FilePath(tq::kBackupFileName));
}

CString CTQSymbolListMgr::GetBackSymbolListPath() noexcept {
  return dataDirectory_ + tq::kBackupFileName;
}

int CTQSymbolListMgr::UpdateTQSymbolList() noexcept {
  if (LoadSymbolList() == 0)
    return 0;
  if (systemListsWanted_ != 0)
    LoadSystemList(&systemListNames_);
  if (tradingListsWanted_ != 0)
    LoadTSList();
  return 1;
}

void CTQSymbolListMgr::ReLoadList(const CString& dataDirectory) noexcept {
  dataDirectory_ = dataDirectory;
  if (tradingTable_ != nullptr)
    tradingTable_->SetPath(FilePath(tq::kTradingFileName));
  LoadSymbolList();
  if (systemListsWanted_ != 0)
    LoadSystemList(&systemListNames_);
}

void CTQSymbolListMgr::ClearSymbolList() noexcept {
  lists_->Destroy();
}

void CTQSymbolListMgr::ClearCloudSymbolList() noexcept {
  cloudLists_->Destroy();
}

int CTQSymbolListMgr::CreateEmptySymbolListFile() noexcept {
  const CString path = FilePath(tq::kListFileName);
  if (path.IsEmpty())
    return 0;
  return Report(keptFiles_->Save(path, tq::ListFileText(CPtrArray(), defaultIndex_)));
}

int CTQSymbolListMgr::DoSaveSymbolList(const CString& path) noexcept {
  if (path.IsEmpty())
    return 0;
  const int index = defaultIndex_ < 0 && !lists_->IsEmpty() ? 0 : defaultIndex_;
  std::string text;
  const tq::SaveResult result = tq::MakeListFileText(*lists_, index, text)
                                    ? keptFiles_->Save(path, std::move(text))
                                    : tq::SaveResult::NotOpened;
  // Looked at again, for a save may log, and the terminal work on the lists from there.
  if (result != tq::SaveResult::NotOpened && defaultIndex_ < 0 && !lists_->IsEmpty())
    defaultIndex_ = 0;
  return Report(result);
}

int CTQSymbolListMgr::DoLoadSymbolList(const CString& path) noexcept {
  if (path.IsEmpty()) {
    ClearSymbolList();
    keptFiles_->ForgetAll();
    return 1;
  }
  keptFiles_->BeginLoad();
  CPtrArray lists;
  int defaultIndex = defaultIndex_;
  CXMLDOMParser parser;
  const auto finish = [this](CSymbolList& list) {
    ReplaceSymbolListExchID(&list, tq::kMovedFromExchange, tq::kMovedToExchange);
  };
  parser.ReadLists(path, finish, lists, defaultIndex);
  // Only now: while the ids are resolved the service may let the terminal save, or load again, and
  // it must find the whole of the lists of before, not a part of these. A file that could not be
  // read leaves none.
  lists_->Replace(lists);
  SetDefaultIndex(defaultIndex);
  const tq::LoadOutcome outcome = parser.Outcome();
  const bool saved = keptFiles_->EndLoad(path, outcome, parser.TakeContents());
  if (outcome == tq::LoadOutcome::Empty)
    SaveSymbolList(); // anew at once, to the working file whichever file it was
  // What was saved meanwhile were the lists of before, or none at a start. A copy of it is kept.
  else if (saved && outcome == tq::LoadOutcome::Whole)
    DoSaveSymbolList(path);
  return 1;
}
