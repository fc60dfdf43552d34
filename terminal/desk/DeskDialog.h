// The terminal's window: a quote page, what is shown on it, a button for each dialog of the
// library, and a log of what the library tells.
//
// Lists that changed are shown when the terminal is told of it, and at no other time: what a dialog
// changes is seen because the library tells. What the editors of one list store without a word is
// followed by News::ListsChanged.
#pragma once

#include "platform/framework/window/CDialog.h"
#include "terminal/desk/Choice.h"
#include "terminal/desk/News.h"
#include "terminal/desk/QuotePage.h"

namespace desk {

class DeskDialog : public CDialog {
public:
  // Both outlive it.
  DeskDialog(CTQSymbolListMgr& manager, News& news);
  ~DeskDialog() override;

  enum Control : int {
    kSource = 761,
    kList = 762,
    kSelect = 801,
    kPage = 791,
    kLog = 792,
    kEditLists = 802,
    kEditCloudLists = 803,
    kEditShown = 804,
    kNewList = 805,
    kNewCloudList = 806,
    kInput = 741,
    kFind = 807,
    kAddOne = 808,
    kAddSelected = 809,
    kEconomic = 810,
    kCommodities = 811,
    kFutures = 812,
  };

protected:
  bool OnInitDialog() override;
  void OnOK() override {} // Enter in the page is not an order to leave
  bool OnKey(int id, WindowKey key, WindowHeldKeys held) override;
  void OnCommand(int id, WindowEvent event) override;
  void OnNotify(int id, const WindowListNotice& notice) override;
  intptr_t OnMessage(unsigned code, intptr_t first, intptr_t second) override;
  CString OnCellText(int id, int row, int column) override;

private:
  // --- The window (DeskDialog.cpp)
  void PreparePage();
  void PrepareLog();
  void PrepareSearch();
  void ShowChoice();
  void ShowPage(const std::vector<CString>& selected = {});
  void ShowLog();
  void ReadListsAnew(News::Change change);
  void UpdateButtons();
  CString SelectedSymbol() const; // the only one, or none
  std::vector<CString> SelectedSymbols() const;
  bool HasSelectedSymbols() const;
  void SelectSymbols(const std::vector<CString>& symbols); // and no others

  // --- What the buttons open (DeskButtons.cpp)
  void OnClicked(int id);
  void EditLists();
  void EditCloudLists();
  void EditShownList();
  void MakeList();
  void MakeCloudList();
  void SelectPlace();
  void FindSymbol();
  void ShowFound(const CString& symbol);
  void AddOneSymbol();
  void AddSelectedSymbols();
  void FindEconomicIndicator();
  void FindCommodity();
  void FindFuture();
  void NoteChosen(int code, const CString& text);
  void NoteOpened(int code);
  CSymbolTableMgr* Tables() const { return manager_.GetSymbolTableMgr(); }

  CTQSymbolListMgr& manager_;
  News& news_;
  Choice choice_;
  QuotePage page_;
};

// Opens the window on a manager that has been started, and returns its end code, -1 when it could
// not be opened. Logs in, pushes the cloud lists in, and listens until it closes.
int RunDesk(CTQSymbolListMgr& manager);

} // namespace desk
