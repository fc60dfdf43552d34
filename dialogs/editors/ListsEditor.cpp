#include "dialogs/editors/ListsEditor.h"

#include <algorithm>
#include <utility>

#include "dialogs/editors/EditorMessages.h"
#include "dialogs/editors/ListBoxes.h"
#include "idlist/ListKind.h"

namespace tq {
ListsEditor::ListsEditor(const Kind& kind, const EditorSources& sources, const CWnd* parent)
    : CSingletonDlg(kEditorFamily, kind.templateId, parent, 0), kind_(kind), sources_(sources),
      copy_(sources.Manager(), kind.lists) {}

bool ListsEditor::OnInitDialog() {
  CTQIconButton(*this, kUp, ButtonIcon::Up);
  CTQIconButton(*this, kDown, ButtonIcon::Down);
  const CListBoxEdit limited(*this, kNameField); // its length, from the start
  CListBoxMain lists(*this, kLists);
  lists.SetRowTips(true);
  CListBox(*this, kContents).SetRowTips(true);
  lists.Fill(copy_);
  const int shown = kind_.hasDefault ? copy_.DefaultIndex() : 0;
  Select(shown >= 0 && shown < copy_.Count() ? shown : std::min(0, copy_.Count() - 1));
  return true;
}

void ListsEditor::OnCommand(int id, ControlEvent event) {
  if (event == ControlEvent::Clicked)
    OnClicked(id);
  else if (id == kLists && event == ControlEvent::SelectionChanged)
    ShowSelected();
  else if (id == kLists && event == ControlEvent::DoubleClicked)
    EditList();
  else if (id == kNameField && event == ControlEvent::FocusLost)
    Rename(NameCheck::Voice::Silent);
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
  return copy_.HasName(reinterpret_cast<const char*>(first), static_cast<int>(second)) ? 1 : 0;
}

bool ListsEditor::OnKey(int id, Key key, Held held) {
  if (id == kLists)
    return OnListKey(key, held);
  if (id != kNameField || held.alt || held.control)
    return false;
  if (key == Key::Enter)
    Rename(NameCheck::Voice::Spoken);
  else if (key == Key::Escape)
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

bool ListsEditor::OnListKey(Key key, Held held) {
  if (held.alt && (key == Key::Up || key == Key::Down))
    MoveList(key == Key::Up);
  else if (key == Key::F2)
    StartRenaming();
  else if (key == Key::Delete)
    DeleteList();
  else
    return false;
  return true;
}

void ListsEditor::OnItemLook(int id, int row, ItemLook& look) {
  if (id == kLists)
    CListBoxMain::Look(kind_.hasDefault && row == copy_.DefaultIndex(), look);
  else
    CListBoxContents::Look(shown_, row, look);
}

int ListsEditor::Selected() const {
  return CListBox(*this, kLists).GetCurSel();
}

void ListsEditor::Select(int row) {
  CListBox(*this, kLists).SetCurSel(row);
  ShowSelected();
}

void ListsEditor::ShowSelected() {
  const int row = Selected();
  shown_ = row < 0 ? ListContents() : ListContents(copy_.At(row));
  CListBoxContents(*this, kContents).Fill(shown_);
  UpdateButtons();
}

void ListsEditor::UpdateButtons() {
  const int row = Selected();
  const bool any = row >= 0;
  CWnd(*this, kDefault).EnableWindow(copy_.Count() > 0);
  CWnd(*this, kEdit).EnableWindow(any);
  CWnd(*this, kRename).EnableWindow(any);
  CWnd(*this, kDelete).EnableWindow(any && copy_.At(row).GetFlag() == 0);
  CWnd(*this, kUp).EnableWindow(row > 0);
  CWnd(*this, kDown).EnableWindow(any && row < copy_.Count() - 1);
}

void ListsEditor::NewList() {
  auto list = std::make_unique<CSymbolList>();
  if (!EditContents(*list, ContentEditor::Mode::New, -1))
    return;
  const CString name = DisplayName(*list);
  const int row = copy_.Add(std::move(list));
  CListBox(*this, kLists).AddString(name);
  Select(row);
}

void ListsEditor::EditList() {
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

// Names are free when no other list of the working copy has them: what the manager has is about to
// be replaced.
bool ListsEditor::EditContents(CSymbolList& list, ContentEditor::Mode mode, int row) {
  const auto isTaken = [this, row](const CString& name) { return IsTaken(name, row); };
  return RunWithin(kind_.lists, sources_, *this, {list, mode, isTaken}) == Accepted;
}

void ListsEditor::DeleteList() {
  const int row = Selected();
  if (row < 0 || copy_.At(row).GetFlag() != 0)
    return;
  CListBox lists(*this, kLists);
  if (!AskUser(kMessageDeleteList)) {
    lists.SetFocus();
    return;
  }
  const int next = copy_.Remove(row, WorkingCopy::DefaultRule::StaysInPlace);
  lists.DeleteString(row);
  Select(next);
  lists.RedrawItems();
}

void ListsEditor::MakeDefault() {
  const int row = Selected();
  if (row < 0)
    return;
  copy_.SetDefaultIndex(row);
  CListBox(*this, kLists).RedrawItems();
}

void ListsEditor::MoveList(bool up) {
  const int row = Selected();
  const int moved = up ? copy_.MoveUp(row) : copy_.MoveDown(row);
  if (moved < 0)
    return;
  CListBox lists(*this, kLists);
  {
    const CRedrawLock lock(lists);
    for (const int each : {row, moved})
      lists.SetItemText(each, DisplayName(copy_.At(each)));
    lists.SetCurSel(moved);
  }
  lists.RedrawItems();
  UpdateButtons();
}

bool ListsEditor::IsTaken(const CString& name, int except) const {
  return Send(kIsNameTaken, reinterpret_cast<intptr_t>(name.GetString()), except) != 0;
}

void ListsEditor::StartRenaming() {
  const int row = Selected();
  if (row >= 0 &&
      CListBoxEdit(*this, kNameField).Open(CListBox(*this, kLists), row, copy_.At(row).GetName()))
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
  CSymbolList& list = copy_.At(renamed_);
  const CString name = field.GetText() == list.GetName() ? field.GetText() : field.GetInput();
  NameCheck check(*this, name, voice);
  const bool good = check.IsFree([this](const CString& text) { return IsTaken(text, renamed_); }) &&
                    check.IsFileName() && check.IsUnreserved() && check.CanBeLoaded();
  if (!good && voice == NameCheck::Voice::Spoken) {
    field.SetFocus();
    field.SelectAll();
    return;
  }
  if (good) {
    list.SetName(name);
    CListBox(*this, kLists).SetItemText(renamed_, DisplayName(list));
  }
  EndRenaming(voice == NameCheck::Voice::Spoken ? Focus::ToLists : Focus::Stays);
}

} // namespace tq

CSymbolListDlg::CSymbolListDlg(const tq::EditorSources& sources, const CWnd* parent)
    : ListsEditor({1000, tq::kUserLists, true}, sources, parent) {}

CloudSymbolListDlg::CloudSymbolListDlg(const tq::EditorSources& sources, const CWnd* parent)
    : ListsEditor({1010, tq::kCloudLists, false}, sources, parent) {}
