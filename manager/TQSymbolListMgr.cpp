// The manager's life: construction, Init, destruction and the switches.
#include "manager/TQSymbolListMgr.h"

#include "accounts/TradingTable.h"
#include "cloud/CloudMap.h"
#include "cloud/CloudeListUtil.h"
#include "groups/GroupStore.h"
#include "platform/FileAccess.h"
#include "platform/Log.h"
#include "symbollist/KeptFiles.h"
#include "symbollist/ListFile.h"
#include "symbollist/OwnedLists.h"
#include "symboltable/SymbolTableMgr.h"

CTQSymbolListMgr::CTQSymbolListMgr() noexcept
    : symbolTables_(nullptr), lists_(new tq::OwnedLists), tradingLists_(new tq::OwnedLists),
      cloudLists_(new tq::OwnedLists), defaultIndex_(0), allSymbols_(nullptr), allSymbolCount_(0),
      systemListsWanted_(0), tradingListsWanted_(0), useUserDefExch_(0), bCN_(0),
      exchangeRecords_(nullptr), groups_(nullptr), cloudMap_(new tq::CloudMap),
      keptFiles_(new tq::KeptFiles), tradingTable_(nullptr) {
  groups_ = new tq::GroupStore(
      [this](CGroupMgr& cloudGroups) { CCloudeListUtil::Refresh(cloudGroups, *cloudMap_); });
}

CTQSymbolListMgr::~CTQSymbolListMgr() {
  delete lists_;
  delete tradingLists_;
  delete cloudLists_;
  delete groups_;
  delete cloudMap_;
  ClearAllSymbols();
  delete tradingTable_;
  delete symbolTables_;
  ClearDefaultExchangeData();
  delete keptFiles_;
}

int CTQSymbolListMgr::Init(const char* dataDirectory, int bCN, int initSymbolTables,
                           int loadSystemLists, CStringArray* systemListNames, int useUserDefExch,
                           int loadTradingLists) noexcept {
  systemListsWanted_ = loadSystemLists;
  tradingListsWanted_ = loadTradingLists;
  useUserDefExch_ = useUserDefExch;
  bCN_ = bCN;
  ClearAllSymbols();
  // The tables before the directory: while they are built the terminal may save, and must find the
  // lists of before with the directory that they are from.
  const CString directory = dataDirectory;
  tq::OpenLog();
  delete symbolTables_;
  symbolTables_ = new CSymbolTableMgr;
  const bool built = initSymbolTables == 0 || BuildSymbolTables() != 0;
  dataDirectory_ = directory;

  // Here and not only when the file is loaded: a start that fails at the tables must not leave the
  // lists of the directory before, for the next save would put them into this one. Nor may that
  // save take the file for one that has been seen.
  ClearSymbolList();
  keptFiles_->ForgetAll();
  StartTradingLists();
  if (!built)
    return 0;

  const CString listFile = FilePath(tq::kListFileName);
  // Only where the system says that there is none: an error of a drive must not cost the user's
  // lists.
  tq::FileStamp stamp;
  if (tq::Files().DirectoryExists(dataDirectory_) &&
      tq::Files().StateOf(listFile, stamp) == tq::FileState::Missing)
    CreateEmptySymbolListFile();
  LoadSymbolList();
  if (loadSystemLists != 0) {
    if (systemListNames != nullptr)
      systemListNames_.Copy(*systemListNames);
    LoadSystemList(&systemListNames_);
  }
  LoadOtherProductList();
  if (tradingListsWanted_ != 0)
    LoadTSList();
  InitDefaultExchange();
  if (initSymbolTables != 0)
    symbolTables_->InitDefaultExchList(defaultExchanges_);
  SortAllSymbolByExch();
  ClearGroupList();
  return LoadGroupList() != 0 ? 1 : 0;
}

int CTQSymbolListMgr::BuildSymbolTables() {
  return symbolTables_->Init() != 0 && symbolTables_->InitAllSymbolTable() != 0 &&
         symbolTables_->InitAuthorizedExch() != 0;
}

void CTQSymbolListMgr::SetDefaultIndex(int index) noexcept {
  defaultIndex_ = index;
}

int CTQSymbolListMgr::GetDefaultListIdx(int& out) noexcept {
  out = defaultIndex_;
  // The upper bound is not tested: a default index beyond the last list is reported as it stands.
  return defaultIndex_ >= 0 && !lists_->IsEmpty();
}
