// Lists of other products, and the texts that switch on a broker's edition.
#include <algorithm>

#include "imports/ListImport.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"

int CTQSymbolListMgr::DoLoadOtherProductList(CString& path, int product) noexcept {
  const tq::Operation operation("DoLoadOtherProductList");
  return tq::ImportFile(state_->userLists, path, product);
}

int CTQSymbolListMgr::LoadOtherProductList() noexcept {
  const tq::Operation operation("LoadOtherProductList");
  return tq::ImportOnce(state_->userLists);
}

void CTQSymbolListMgr::AddExtraTQInfo(const CString& info) noexcept {
  tq::CheckCall("AddExtraTQInfo", "info", info);
  std::vector<CString>& infos = state_->extraInfo;
  if (!info.IsEmpty() && std::find(infos.begin(), infos.end(), info) == infos.end())
    infos.push_back(info);
}

void CTQSymbolListMgr::RemoveExtraTQInfo(const CString& info) noexcept {
  tq::CheckCall("RemoveExtraTQInfo", "info", info);
  std::vector<CString>& infos = state_->extraInfo;
  const auto found = std::find(infos.begin(), infos.end(), info);
  if (found != infos.end())
    infos.erase(found);
}

const std::vector<CString>& CTQSymbolListMgr::GetExtraTQInfo() const noexcept {
  tq::CheckCall("GetExtraTQInfo");
  return state_->extraInfo;
}
