#include "dialogs/editors/GroupSymbolAdd.h"

#include "dialogs/DialogMessages.h"
#include "dialogs/editors/AddedSymbols.h"
#include "idlist/IdString.h"
#include "idlist/ListKind.h"
#include "platform/Text.h"

using namespace tq;

CGroupSymbolAdd::CGroupSymbolAdd(const DialogSources& sources, const CWnd* parent,
                                 const CString& symbol)
    : CDialog(1005, parent), symbol_(ToCString(Trimmed(ViewOf(symbol)))),
      lists_(sources, kUserLists, true) {}

bool CGroupSymbolAdd::OnInitDialog() {
  lists_.Open(*this, Copy().DefaultIndex());
  UpdateButtons();
  return true;
}

void CGroupSymbolAdd::OnCommand(int id, WindowEvent event) {
  if (event == WindowEvent::Clicked)
    OnClicked(id);
  else if (event == WindowEvent::SelectionChanged && id == ListsPane::kLists)
    lists_.ShowContents();
  else if (event == WindowEvent::DoubleClicked && id == ListsPane::kLists)
    lists_.EditSelected(symbol_);
  UpdateButtons();
}

void CGroupSymbolAdd::OnClicked(int id) {
  if (id == kAdd)
    AddToList();
  else if (id == kAddAndEdit)
    lists_.EditSelected(symbol_);
  else if (id == kAddNew)
    lists_.MakeList(symbol_);
}

void CGroupSymbolAdd::UpdateButtons() {
  const bool any = lists_.HasSelected();
  CWnd(*this, kAdd).EnableWindow(any && IsOneToken(ViewOf(symbol_)));
  CWnd(*this, kAddAndEdit).EnableWindow(any);
}

void CGroupSymbolAdd::AddToList() {
  const int row = lists_.Selected();
  if (row < 0 || !IsOneToken(ViewOf(symbol_)))
    return;
  if (!ListContents::CanHold(ViewOf(symbol_))) {
    ShowMessage(kMessageUnloadableId);
    return;
  }
  CSymbolList& list = Copy().At(row);
  const AddedSymbols added = AddSymbols(list.GetIDs(), symbol_);
  if (!added.held.empty()) {
    TellAddedTwice(added.held);
    return;
  }
  list.Update1(added.ids);
  lists_.ShowContents();
  CListBox contents(*this, ListsPane::kContents);
  contents.EnsureVisible(contents.GetCount() - 1);
}
