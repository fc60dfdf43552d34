#include "dialogs/editors/ListsPane.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace tq {

void ListsPane::Open(const CWnd& dialog, int selected) {
  dialog_ = dialog;
  CListBoxMain lists(dialog_, kLists);
  lists.SetRowTips(true);
  CListBox(dialog_, kContents).SetRowTips(true);
  Show(selected >= 0 && selected < copy_.Count() ? selected : std::min(0, copy_.Count() - 1));
}

void ListsPane::Show(int selected) {
  CListBoxMain(dialog_, kLists).Fill(copy_);
  Select(selected);
}

void ListsPane::Select(int row) {
  Lists().SetCurSel(row);
  ShowContents();
}

void ListsPane::ShowContents() {
  const int row = Selected();
  shown_ = row < 0 ? ListContents() : ListContents(copy_.At(row));
  CListBoxContents(dialog_, kContents).Fill(shown_);
}

void ListsPane::ShowName(int row) {
  Lists().SetItemText(row, DisplayName(copy_.At(row)));
}

bool ListsPane::EditSelected(const CString& symbols) {
  const int row = Selected();
  if (row < 0)
    return false;
  auto edited = std::make_unique<CSymbolList>(copy_.At(row));
  if (!Edit(*edited, ContentEditor::Mode::Edit, row, symbols))
    return false;
  copy_.Replace(row, std::move(edited));
  ShowName(row);
  Select(row);
  return true;
}

bool ListsPane::MakeList(const CString& symbols) {
  auto list = std::make_unique<CSymbolList>();
  if (!Edit(*list, ContentEditor::Mode::New, -1, symbols))
    return false;
  const CString name = DisplayName(*list);
  const int row = copy_.Add(std::move(list), Selected());
  Lists().AddString(name);
  Select(row);
  return true;
}

// A name is free when no other list of the working copy has it: what the manager has is about to be
// replaced.
bool ListsPane::Edit(CSymbolList& list, ContentEditor::Mode mode, int row, const CString& symbols) {
  const auto isTaken = [this, row](const CString& name) { return copy_.HasName(name, row); };
  return RunWithin(kind_, sources_, dialog_, {list, mode, isTaken, symbols}) == CDialog::Accepted;
}

void ListsPane::Look(int id, int row, WindowItemLook& look) const {
  if (id == kLists)
    CListBoxMain::Look(marksDefault_ && row == copy_.DefaultIndex(), look);
  else
    CListBoxContents::Look(shown_, row, look);
}

} // namespace tq
