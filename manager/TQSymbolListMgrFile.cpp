// The list file.
#include "accounts/TradingFile.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "symbollist/file/ListFile.h"

int CTQSymbolListMgr::LoadSymbolList() noexcept {
  const tq::Operation operation("LoadSymbolList");
  return state_->userLists.Load();
}

int CTQSymbolListMgr::SaveSymbolList() noexcept {
  const tq::Operation operation("SaveSymbolList");
  return state_->userLists.Save();
}

int CTQSymbolListMgr::HasUnsavedChanges() const noexcept {
  tq::CheckCall("HasUnsavedChanges");
  return state_->userLists.HasUnsavedChanges() ? 1 : 0;
}

int CTQSymbolListMgr::BackupSymbolList() noexcept {
  const tq::Operation operation("BackupSymbolList");
  return state_->userLists.Backup();
}

int CTQSymbolListMgr::RestorSymbolList() noexcept {
  const tq::Operation operation("RestorSymbolList");
  return state_->userLists.Restore();
}

CString CTQSymbolListMgr::GetBackSymbolListPath() noexcept {
  tq::CheckCall("GetBackSymbolListPath");
  return state_->userLists.Directory() + tq::kBackupFileName;
}

int CTQSymbolListMgr::CreateEmptySymbolListFile() noexcept {
  const tq::Operation operation("CreateEmptySymbolListFile");
  return state_->userLists.SaveEmpty();
}

int CTQSymbolListMgr::DoSaveSymbolList(const CString& path) noexcept {
  const tq::Operation operation("DoSaveSymbolList", "path", path);
  return state_->userLists.SaveTo(path);
}

int CTQSymbolListMgr::DoLoadSymbolList(const CString& path) noexcept {
  const tq::Operation operation("DoLoadSymbolList", "path", path);
  return state_->userLists.LoadFrom(path);
}

TQLoadState CTQSymbolListMgr::GetLoadState(TQListFile file, int& line,
                                           CString& reason) const noexcept {
  tq::CheckCall("GetLoadState");
  line = 0;
  reason.Empty();
  if (file != TQListFileWorking && file != TQListFileBackup)
    return TQLoadNever;
  const tq::LoadReport& report = state_->userLists.ReportOf(file);
  line = report.line;
  reason = report.reason;
  return report.state;
}

int CTQSymbolListMgr::RepairSymbolList(TQRepairCounts& counts) noexcept {
  const tq::Operation operation("RepairSymbolList");
  return state_->userLists.Repair(counts);
}

void CTQSymbolListMgr::SetHistory(int days) noexcept {
  tq::CheckCall("SetHistory");
  state_->userLists.SetHistory(days);
}

int CTQSymbolListMgr::GetHistory(CStringArray& days) const noexcept {
  tq::CheckCall("GetHistory");
  return state_->userLists.GetHistory(days);
}

int CTQSymbolListMgr::RestoreHistory(const CString& day) noexcept {
  const tq::Operation operation("RestoreHistory", "day", day);
  return state_->userLists.RestoreHistory(day);
}

int CTQSymbolListMgr::UpdateTQSymbolList() noexcept {
  const tq::Operation operation("UpdateTQSymbolList");
  state_->userLists.LoadWithSystemLists();
  state_->accountLists.AddAllHoldings();
  return 1;
}

void CTQSymbolListMgr::ReLoadList(const CString& dataDirectory) noexcept {
  const tq::Operation operation("ReLoadList", "dataDirectory", dataDirectory);
  state_->userLists.SetDirectory(dataDirectory);
  state_->accountLists.SetPath(state_->userLists.PathOf(tq::kTradingFileName));
  state_->userLists.LoadWithSystemLists();
}
