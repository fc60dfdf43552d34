#include "dialogs/editors/GroupSymbolAdd.h"

#include <algorithm>
#include <utility>

#include "dialogs/editors/EditorMessages.h"
#include "dialogs/editors/ListBoxes.h"
#include "idlist/IdString.h"
#include "idlist/ListKind.h"
#include "platform/FieldText.h"
#include "platform/Text.h"

using namespace tq;

CGroupSymbolAdd::CGroupSymbolAdd(const EditorSources& sources, const CWnd* parent,
                                 const CString& symbol)
    : CDialog(1005, parent), sources_(sources), symbol_(ToCString(Trimmed(ViewOf(symbol)))),
      copy_(sources.Manager(), kUserLists) {}

bool CGroupSymbolAdd::OnInitDialog() {
  CListBoxMain lists(*this, kLists);
  lists.SetRowTips(true);
  CListBox(*this, kContents).SetRowTips(true);
  lists.Fill(copy_);
  const int shown = copy_.DefaultIndex();
  Select(shown >= 0 && shown < copy_.Count() ? shown : std::min(0, copy_.Count() - 1));
  return true;
}

void CGroupSymbolAdd::OnCommand(int id, ControlEvent event) {
  if (event == ControlEvent::SelectionChanged && id == kLists)
    ShowSelected();
  else if (event == ControlEvent::Clicked && id == kAdd)
    AddToList();
  else if ((event == ControlEvent::Clicked && id == kAddAndEdit) ||
           (event == ControlEvent::DoubleClicked && id == kLists))
    AddAndEdit();
  else if (event == ControlEvent::Clicked && id == kAddNew)
    AddToNewList();
}

void CGroupSymbolAdd::OnItemLook(int id, int row, ItemLook& look) {
  if (id == kLists)
    CListBoxMain::Look(row == copy_.DefaultIndex(), look);
  else
    CListBoxContents::Look(shown_, row, look);
}

int CGroupSymbolAdd::Selected() const {
  return CListBox(*this, kLists).GetCurSel();
}

void CGroupSymbolAdd::Select(int row) {
  CListBox(*this, kLists).SetCurSel(row);
  ShowSelected();
}

void CGroupSymbolAdd::ShowSelected() {
  const int row = Selected();
  shown_ = row < 0 ? ListContents() : ListContents(copy_.At(row));
  CListBoxContents(*this, kContents).Fill(shown_);
  CWnd(*this, kAdd).EnableWindow(row >= 0 && IsOneToken(ViewOf(symbol_)));
  CWnd(*this, kAddAndEdit).EnableWindow(row >= 0);
}

// Behind what the list has, as text: what the service does not know yet is kept.
void CGroupSymbolAdd::AddToList() {
  const int row = Selected();
  if (row < 0 || !IsOneToken(ViewOf(symbol_)))
    return;
  if (!ListContents::CanHold(ViewOf(symbol_))) {
    ShowMessage(kMessageUnloadableId);
    return;
  }
  CSymbolList& list = copy_.At(row);
  if (list.Holds(symbol_)) {
    TellAddedTwice();
    return;
  }
  const CString& ids = list.GetIDs();
  list.Update1(ids.IsEmpty() ? symbol_ : ids + "," + symbol_);
  ShowSelected();
  CListBox contents(*this, kContents);
  contents.EnsureVisible(contents.GetCount() - 1);
}

void CGroupSymbolAdd::TellAddedTwice() const {
  SymbolInfo record = {};
  VLGetSymbolInfo(symbol_, &record);
  ShowMessageText(
      FormattedText(kMessageAddedTwice, symbol_ + "(" + ToCString(FieldText(record.name)) + ")"));
}

void CGroupSymbolAdd::AddAndEdit() {
  const int row = Selected();
  if (row < 0)
    return;
  auto edited = std::make_unique<CSymbolList>(copy_.At(row));
  if (!EditContents(*edited, ContentEditor::Mode::Edit, row))
    return;
  copy_.Replace(row, std::move(edited));
  CListBox(*this, kLists).SetItemText(row, DisplayName(copy_.At(row)));
  Select(row);
}

void CGroupSymbolAdd::AddToNewList() {
  auto list = std::make_unique<CSymbolList>();
  if (!EditContents(*list, ContentEditor::Mode::New, -1))
    return;
  const CString name = DisplayName(*list);
  const int row = copy_.Add(std::move(list));
  CListBox(*this, kLists).AddString(name);
  Select(row);
}

bool CGroupSymbolAdd::EditContents(CSymbolList& list, ContentEditor::Mode mode, int row) {
  const auto isTaken = [this, row](const CString& name) { return copy_.HasName(name, row); };
  return RunWithin(kUserLists, sources_, *this, {list, mode, isTaken, symbol_}) ==
         CDialog::Accepted;
}
