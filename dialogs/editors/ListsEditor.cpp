#include "dialogs/editors/ListsEditor.h"

#include "dialogs/DialogMessages.h"
#include "idlist/ListKind.h"

namespace tq {

ListsEditor::ListsEditor(const Kind& kind, const DialogSources& sources, const CWnd* parent)
    : CSingletonDlg(kEditorFamily, kind.templateId, parent, 0), kind_(kind),
      pane_(sources, kind.lists, kind.hasDefault) {
  Copy().KeepSteps();
}

bool ListsEditor::OnInitDialog() {
  CTQIconButton(*this, kUp, WindowButtonIcon::Up);
  CTQIconButton(*this, kDown, WindowButtonIcon::Down);
  const CListBoxEdit limited(*this, kNameField); // its length, from the start
  pane_.Open(*this, kind_.hasDefault ? Copy().DefaultIndex() : 0);
  UpdateButtons();
  return true;
}

void ListsEditor::OnCommand(int id, WindowEvent event) {
  if (event == WindowEvent::Clicked) {
    OnClicked(id);
  } else if (id == kLists && event == WindowEvent::SelectionChanged) {
    pane_.ShowContents();
    UpdateButtons();
  } else if (id == kLists && event == WindowEvent::DoubleClicked) {
    EditList();
  } else if (id == kNameField && event == WindowEvent::FocusLost) {
    Rename(NameCheck::Voice::Silent);
  }
}

void ListsEditor::OnClicked(int id) {
  switch (id) {
  case kNew:
    return NewList();
  case kEdit:
    return EditList();
  case kDelete:
    return DeleteList();
  case kRename:
    return StartRenaming();
  case kDefault:
    return MakeDefault();
  case kUp:
  case kDown:
    return MoveList(id == kUp);
  case kDone:
    return EndDialog(Accepted);
  default:
    return;
  }
}

intptr_t ListsEditor::OnMessage(unsigned code, intptr_t first, intptr_t second) {
  if (code != kIsNameTaken || first == 0)
    return 0;
  return Copy().HasName(reinterpret_cast<const char*>(first), static_cast<int>(second)) ? 1 : 0;
}

bool ListsEditor::OnKey(int id, WindowKey key, WindowHeldKeys held) {
  const HistoryWay way = HistoryWayOf(key, held);
  if (way != HistoryWay::None && id != kNameField) {
    TakeStep(way);
    return true;
  }
  if (id == kLists)
    return OnListKey(key, held);
  if (id != kNameField || held.alt || held.control)
    return false;
  if (key == WindowKey::Enter)
    Rename(NameCheck::Voice::Spoken);
  else if (key == WindowKey::Escape)
    EndRenaming(Focus::ToLists);
  else
    return false;
  return true;
}

// The title bar takes no focus from the editor of names.
void ListsEditor::OnCancel() {
  Rename(NameCheck::Voice::Silent);
  CSingletonDlg::OnCancel();
}

bool ListsEditor::OnListKey(WindowKey key, WindowHeldKeys held) {
  if (held.alt && (key == WindowKey::Up || key == WindowKey::Down))
    MoveList(key == WindowKey::Up);
  else if (key == WindowKey::F2)
    StartRenaming();
  else if (key == WindowKey::Delete)
    DeleteList();
  else
    return false;
  return true;
}

void ListsEditor::UpdateButtons() {
  const int row = pane_.Selected();
  const bool any = row >= 0;
  CWnd(*this, kDefault).EnableWindow(Copy().Count() > 0);
  CWnd(*this, kEdit).EnableWindow(any);
  CWnd(*this, kRename).EnableWindow(any);
  CWnd(*this, kDelete).EnableWindow(any && Copy().At(row).GetFlag() == 0);
  CWnd(*this, kUp).EnableWindow(row > 0);
  CWnd(*this, kDown).EnableWindow(any && row < Copy().Count() - 1);
}

void ListsEditor::NewList() {
  if (pane_.MakeList())
    UpdateButtons();
}

void ListsEditor::EditList() {
  if (pane_.EditSelected())
    UpdateButtons();
}

void ListsEditor::DeleteList() {
  const int row = pane_.Selected();
  if (row < 0 || Copy().At(row).GetFlag() != 0)
    return;
  CListBox lists(*this, kLists);
  if (!AskUser(kMessageDeleteList)) {
    lists.SetFocus();
    return;
  }
  const int next = Copy().Remove(row, WorkingCopy::DefaultRule::StaysInPlace);
  lists.DeleteString(row);
  pane_.Select(next);
  lists.RedrawItems();
  UpdateButtons();
}

void ListsEditor::MakeDefault() {
  const int row = pane_.Selected();
  if (row < 0)
    return;
  Copy().MakeDefault(row);
  CListBox(*this, kLists).RedrawItems();
}

void ListsEditor::MoveList(bool up) {
  const int row = pane_.Selected();
  const int moved = up ? Copy().MoveUp(row) : Copy().MoveDown(row);
  if (moved < 0)
    return;
  CListBox lists(*this, kLists);
  {
    const CRedrawLock lock(lists);
    for (const int each : {row, moved})
      pane_.ShowName(each);
    lists.SetCurSel(moved);
  }
  lists.RedrawItems();
  UpdateButtons();
}

void ListsEditor::TakeStep(HistoryWay way) {
  const std::optional<int> selected = way == HistoryWay::Undo ? Copy().Undo() : Copy().Redo();
  if (!selected)
    return;
  pane_.Show(*selected);
  UpdateButtons();
}

bool ListsEditor::IsTaken(const CString& name, int except) const {
  return Send(kIsNameTaken, reinterpret_cast<intptr_t>(name.GetString()), except) != 0;
}

void ListsEditor::StartRenaming() {
  const int row = pane_.Selected();
  if (row >= 0 &&
      CListBoxEdit(*this, kNameField).Open(CListBox(*this, kLists), row, Copy().At(row).GetName()))
    renamed_ = row;
}

void ListsEditor::EndRenaming(Focus focus) {
  renamed_ = -1;
  CWnd(*this, kNameField).Show(false);
  if (focus == Focus::ToLists)
    CListBox(*this, kLists).SetFocus();
}

void ListsEditor::Rename(NameCheck::Voice voice) {
  if (renamed_ < 0)
    return;
  CListBoxEdit field(*this, kNameField);
  const CString name = TypedName(field, Copy().At(renamed_).GetName());
  NameCheck check(*this, name, voice);
  const bool good = check.IsFree([this](const CString& text) { return IsTaken(text, renamed_); }) &&
                    check.IsFileName() && check.IsUnreserved() && check.CanBeLoaded();
  if (!good && voice == NameCheck::Voice::Spoken) {
    field.SetFocus();
    field.SelectAll();
    return;
  }
  if (good) {
    Copy().Rename(renamed_, name);
    pane_.ShowName(renamed_);
  }
  EndRenaming(voice == NameCheck::Voice::Spoken ? Focus::ToLists : Focus::Stays);
}

} // namespace tq

CSymbolListDlg::CSymbolListDlg(const tq::DialogSources& sources, const CWnd* parent)
    : ListsEditor({1000, tq::kUserLists, true}, sources, parent) {}

CloudSymbolListDlg::CloudSymbolListDlg(const tq::DialogSources& sources, const CWnd* parent)
    : ListsEditor({1010, tq::kCloudLists, false}, sources, parent) {}
