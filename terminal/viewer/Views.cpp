#include "terminal/viewer/Views.h"

#include "terminal/StandIn.h"
#include "terminal/desk/DeskDialog.h"
#include "terminal/user/DialogControls.h"

using standin::Modifier;
using standin::User;
using namespace standin::controls;

namespace viewer {
namespace {

constexpr int kUserLists = 1;
constexpr int kCloudLists = 8;

// Two lists with headings.
constexpr int kSystemList = 0;
constexpr int kListWithHeadings = 7;

CSymbolList& ListAt(CTQSymbolListMgr& manager, int row, int kind) {
  TQSymbolListInfo info;
  CSymbolList* list = nullptr;
  manager.GetTQSymbolListInfo(row, &info, kind);
  manager.GetSymbolList(CString(info.ID), &list, kind);
  return *list;
}

void AddCloudLists(CTQSymbolListMgr& manager) {
  const CString name = ListAt(manager, kListWithHeadings, kUserLists).GetName();
  manager.AddCloudSymbolList("", name, "2330.TW,2454.TW,2303.TW,3711.TW,2881.TW,2882.TW", 0);
  manager.AddCloudSymbolList("", "ETF", "0050.TW,0056.TW,006208.TW,00878.TW,00919.TW", 0);
  manager.AddCloudSymbolList("", "USA", "AAPL.NASD,MSFT.NASD,NVDA.NASD,BRK.B.NYSE", 0);
}

int OpenIndicators(InfoType type) {
  CString name;
  CString code;
  CString market;
  if (type == InfoCommodities)
    return CTQSymbolListMgr::DoSearchCommIndi(nullptr, "", name, code, "", "", type);
  return type == InfoEconomicIndicators
             ? CTQSymbolListMgr::DoSearchFinIndi(nullptr, "", name, code)
             : CTQSymbolListMgr::DoSearchOptionIndi(nullptr, "", name, code, market);
}

int OpenLists(CTQSymbolListMgr& manager) {
  return CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr);
}

int OpenCloudLists(CTQSymbolListMgr& manager) {
  AddCloudLists(manager);
  return manager.DoCloudSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr);
}

int OpenSelection(CTQSymbolListMgr& manager) {
  int kind = kUserLists;
  CString text = ListAt(manager, kListWithHeadings, kUserLists).GetID();
  return CTQSymbolListMgr::DoSelectUI(&manager, manager.GetSymbolTableMgr(), nullptr, &kind, text,
                                      0, false);
}

int OpenSymbol(CTQSymbolListMgr& manager) {
  return CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr,
                                            "2881.TW");
}

int OpenSymbols(CTQSymbolListMgr& manager) {
  return CTQSymbolListMgr::DoSymbolAddUI(&manager, manager.GetSymbolTableMgr(), nullptr,
                                         "2330.TW,2454.TW,3711.TW", "");
}

int OpenSearch(CTQSymbolListMgr& manager) {
  return CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, "28", nullptr,
                                      0, nullptr);
}

void SelectThree(User& user, int id, int first) {
  user.ClickRow(id, first);
  user.ClickRow(id, first + 1, Modifier::Control);
  user.ClickRow(id, first + 3, Modifier::Control);
}

void SelectList(User& user) {
  user.Select(kLists, kListWithHeadings);
  user.LeaveUp();
}

void SelectFirst(User& user) {
  user.Select(kLists, 0);
  user.LeaveUp();
}

// The first market's semiconductors.
void BrowseGroup(User& user) {
  constexpr int kFirstMarket = 1;
  constexpr int kSemiconductors = 11;
  SelectThree(user, kRows, 3);
  user.Select(kMarket, kFirstMarket);
  user.Select(kGroup, kSemiconductors);
  SelectThree(user, kResults, 0);
  user.LeaveUp();
}

void Search(User& user) {
  user.Fill(kCode, "00");
  user.Click(kFind);
  SelectThree(user, kResults, 1);
  user.LeaveUp();
}

void AddSymbol(User& user) {
  user.Click(kAddSymbol);
  user.LeaveUp();
}

// A message box says that the name is taken.
void NameAsAnother(User& user) {
  user.Fill(kName, "ETF");
  user.Click(kDone);
  user.LeaveUp();
}

// A symbol under a heading of the first list, to be added to another one.
void AddFromPage(User& user) {
  constexpr int kSymbol = 5;
  user.Select(desk::DeskDialog::kList, kSystemList);
  user.ClickRow(desk::DeskDialog::kPage, kSymbol);
  user.Click(desk::DeskDialog::kAddOne);
  user.LeaveUp();
}

void MakeList(User& user) {
  user.Click(kNewList);
  user.LeaveUp();
}

void EditList(User& user) {
  user.DoubleClick(kLists, kSystemList);
  user.LeaveUp();
}

void SeeResults(User& user) {
  user.WaitFor([&user] { return !user.SelectedRows(kFound).empty(); });
  user.LeaveUp();
}

void StayUp(User& user) {
  user.LeaveUp();
}

std::function<int(CTQSymbolListMgr&)> Indicators(InfoType type) {
  return [type](CTQSymbolListMgr&) { return OpenIndicators(type); };
}

} // namespace

const std::vector<View>& Views() {
  static const std::vector<View> views = {
      {"terminal", desk::RunDesk, {AddFromPage, AddSymbol}},
      {"lists", OpenLists, {SelectList}},
      {"contents", OpenLists, {EditList, BrowseGroup}},
      {"cloud-lists", OpenCloudLists, {SelectFirst}},
      {"cloud-contents", OpenCloudLists, {EditList, Search}},
      {"selection", OpenSelection, {StayUp}},
      {"symbol", OpenSymbol, {AddSymbol}},
      {"symbols", OpenSymbols, {SelectList}},
      {"search", OpenSearch, {SeeResults}},
      {"name-taken", OpenCloudLists, {MakeList, NameAsAnother}},
      {"economic", Indicators(InfoEconomicIndicators), {StayUp}},
      {"commodities", Indicators(InfoCommodities), {StayUp}},
      {"futures", Indicators(InfoInternationalFutures), {StayUp}},
  };
  return views;
}

} // namespace viewer
