#include "dialogs/editors/SymbolAddDlg.h"

#include "dialogs/DialogMessages.h"
#include "dialogs/editors/AddedSymbols.h"
#include "idlist/ListKind.h"

using namespace tq;

CSymbolAddDlg::CSymbolAddDlg(const DialogSources& sources, const CWnd* parent,
                             const CString& symbols, const CString& listId)
    : CSingletonDlg(kEditorFamily, 1004, parent, 0), symbols_(symbols), listId_(listId),
      lists_(sources, kUserLists, true) {}

bool CSymbolAddDlg::OnInitDialog() {
  CEdit(*this, kSymbols).SetText(symbols_);
  lists_.Open(*this, StartRow());
  lists_.Lists().SetFocus();
  UpdateButtons();
  return false;
}

int CSymbolAddDlg::StartRow() const {
  const int row = listId_.IsEmpty() ? -1 : lists_.Copy().Find(listId_);
  return row >= 0 ? row : lists_.Copy().DefaultIndex();
}

void CSymbolAddDlg::OnCommand(int id, WindowEvent event) {
  if (event == WindowEvent::Clicked)
    OnClicked(id);
  else if (event == WindowEvent::SelectionChanged && id == ListsPane::kLists)
    lists_.ShowContents();
  else if (event == WindowEvent::DoubleClicked && id == ListsPane::kLists)
    AddAndEdit();
  UpdateButtons();
}

void CSymbolAddDlg::OnClicked(int id) {
  if (id == kAdd)
    AddToList();
  else if (id == kAddAndEdit)
    AddAndEdit();
  else if (id == kAddNew)
    lists_.MakeList(symbols_);
}

void CSymbolAddDlg::UpdateButtons() {
  const bool any = lists_.HasSelected();
  CWnd(*this, kAdd).EnableWindow(any);
  CWnd(*this, kAddAndEdit).EnableWindow(any);
}

// Closes even when the list has all of them: the user has been told so then.
void CSymbolAddDlg::AddToList() {
  const int row = lists_.Selected();
  if (row < 0)
    return;
  if (!AreLoadable(symbols_)) {
    ShowMessage(kMessageUnloadableId);
    return;
  }
  CSymbolList& list = Copy().At(row);
  const AddedSymbols added = AddSymbols(list.GetIDs(), symbols_);
  list.Update1(added.ids);
  if (!added.held.empty())
    TellAddedTwice(added.held);
  EndDialog(Accepted);
}

void CSymbolAddDlg::AddAndEdit() {
  if (lists_.EditSelected(symbols_))
    EndDialog(Accepted);
}
