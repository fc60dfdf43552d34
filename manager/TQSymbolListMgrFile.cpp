// The list file.
#include "accounts/TradingFile.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "symbollist/ListFile.h"

int CTQSymbolListMgr::LoadSymbolList() noexcept {
  return state_->userLists.Load();
}

int CTQSymbolListMgr::SaveSymbolList() noexcept {
  return state_->userLists.Save();
}

int CTQSymbolListMgr::BackupSymbolList() noexcept {
  return state_->userLists.Backup();
}

int CTQSymbolListMgr::RestorSymbolList() noexcept {
  return state_->userLists.Restore();
}

CString CTQSymbolListMgr::GetBackSymbolListPath() noexcept {
  return state_->userLists.Directory() + tq::kBackupFileName;
}

int CTQSymbolListMgr::CreateEmptySymbolListFile() noexcept {
  return state_->userLists.SaveEmpty();
}

int CTQSymbolListMgr::DoSaveSymbolList(const CString& path) noexcept {
  return state_->userLists.SaveTo(path);
}

int CTQSymbolListMgr::DoLoadSymbolList(const CString& path) noexcept {
  return state_->userLists.LoadFrom(path);
}

int CTQSymbolListMgr::UpdateTQSymbolList() noexcept {
  state_->userLists.LoadWithSystemLists();
  state_->accountLists.AddAllHoldings();
  return 1;
}

void CTQSymbolListMgr::ReLoadList(const CString& dataDirectory) noexcept {
  state_->userLists.SetDirectory(dataDirectory);
  state_->accountLists.SetPath(state_->userLists.PathOf(tq::kTradingFileName));
  state_->userLists.LoadWithSystemLists();
}
