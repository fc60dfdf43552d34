#include "dialogs/editors/SymbolSetDlg.h"

#include <algorithm>
#include <utility>

#include "dialogs/DialogMessages.h"
#include "dialogs/editors/ListBoxes.h"
#include "idlist/ListKind.h"
#include "platform/Notify.h"
#include "platform/framework/window/CComboBox.h"

using namespace tq;

CSymbolSetDlg::CSymbolSetDlg(const DialogSources& sources, const CWnd* parent, ListChoice before,
                             bool holdings)
    : CSingletonDlg(kEditorFamily, 1003, parent, 0), sources_(sources), before_(std::move(before)),
      offered_(ListSources(sources.Manager(), holdings)), user_(sources.Manager(), kUserLists),
      cloud_(sources.Manager(), kCloudLists) {}

bool CSymbolSetDlg::OnInitDialog() {
  CComboBox box(*this, kSources);
  for (const ListSource& source : offered_)
    box.SetItemData(box.AddString(source.name), static_cast<intptr_t>(source.code));
  CListBox(*this, kItems).SetRowTips(true);
  ShowBefore();
  return true;
}

// Where it is not there any more, the user's lists are shown, and none is selected.
void CSymbolSetDlg::ShowBefore() {
  CComboBox box(*this, kSources);
  for (std::size_t i = 0; i < offered_.size(); ++i) {
    const int row = RowOfBefore(offered_[i]);
    if (row < 0)
      continue;
    box.SetCurSel(static_cast<int>(i));
    return ShowItems(row);
  }
  box.SetCurSel(static_cast<int>(SourceCode::UserLists));
  ShowItems(-1);
}

int CSymbolSetDlg::RowOfBefore(const ListSource& source) {
  if (ChoiceOf(source, nullptr).kind != before_.kind)
    return -1;
  const std::vector<SourceItem> items = ItemsIn(source);
  const auto found = std::find_if(items.begin(), items.end(), [&](const SourceItem& item) {
    return IsChoice(before_, source, item);
  });
  return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

void CSymbolSetDlg::OnCommand(int id, WindowEvent event) {
  if (event == WindowEvent::SelectionChanged && id == kSources)
    ChooseSource();
  else if (event == WindowEvent::SelectionChanged && id == kItems)
    UpdateButtons();
  else if (event == WindowEvent::Clicked && id == kNewItem)
    NewList();
  else if ((event == WindowEvent::Clicked && id == kEditItem) ||
           (event == WindowEvent::DoubleClicked && id == kItems))
    EditList();
  else if (event == WindowEvent::Clicked && id == kDeleteItem)
    DeleteList();
}

bool CSymbolSetDlg::OnKey(int id, WindowKey key, WindowHeldKeys held) {
  if (id != kItems || key != WindowKey::Delete || held.alt)
    return false;
  DeleteList();
  return true;
}

const ListSource* CSymbolSetDlg::Source() const {
  const int chosen = CComboBox(*this, kSources).GetCurSel();
  return chosen < 0 ? nullptr : &offered_[static_cast<std::size_t>(chosen)];
}

bool CSymbolSetDlg::IsCloud() const {
  const ListSource* const source = Source();
  return source != nullptr && source->code == SourceCode::Cloud;
}

WorkingCopy* CSymbolSetDlg::Editable() {
  const ListSource* const source = Source();
  return source == nullptr ? nullptr : ListsOf(*source);
}

WorkingCopy* CSymbolSetDlg::ListsOf(const ListSource& source) {
  if (source.code == SourceCode::Cloud)
    return &cloud_;
  return source.code == SourceCode::UserLists ? &user_ : nullptr;
}

std::vector<SourceItem> CSymbolSetDlg::Items() {
  const ListSource* const source = Source();
  return source == nullptr ? std::vector<SourceItem>() : ItemsIn(*source);
}

std::vector<SourceItem> CSymbolSetDlg::ItemsIn(const ListSource& source) {
  const WorkingCopy* const lists = ListsOf(source);
  if (lists == nullptr)
    return ItemsOf(sources_.Manager(), source);
  std::vector<SourceItem> items;
  items.reserve(static_cast<std::size_t>(lists->Count()));
  for (int i = 0; i < lists->Count(); ++i)
    items.push_back({DisplayName(lists->At(i)), lists->At(i).GetID()});
  return items;
}

int CSymbolSetDlg::Selected() const {
  return CListBox(*this, kItems).GetCurSel();
}

// All symbols are one row, which is chosen with its source.
void CSymbolSetDlg::ChooseSource() {
  const ListSource* const source = Source();
  ShowItems(source != nullptr && source->code == SourceCode::AllSymbols ? 0 : -1);
}

void CSymbolSetDlg::ShowItems(int selected) {
  CListBox box(*this, kItems);
  {
    const CRedrawLock lock(box);
    box.ResetContent();
    shown_ = Items();
    for (const SourceItem& item : shown_)
      box.AddString(item.name);
    box.SetCurSel(selected);
  }
  UpdateButtons();
}

void CSymbolSetDlg::UpdateButtons() {
  const bool editable = Editable() != nullptr;
  const bool any = editable && Selected() >= 0;
  CWnd(*this, kNewItem).EnableWindow(editable);
  CWnd(*this, kEditItem).EnableWindow(any);
  CWnd(*this, kDeleteItem).EnableWindow(any);
}

void CSymbolSetDlg::NewList() {
  WorkingCopy* const lists = Editable();
  auto list = std::make_unique<CSymbolList>();
  if (lists == nullptr || !EditContents(*list, ContentEditor::Mode::New, -1))
    return;
  const int row = lists->Add(std::move(list));
  if (lists->DefaultIndex() < 0)
    lists->SetDefaultIndex(0);
  Changed(lists->At(row).GetID(), row);
}

void CSymbolSetDlg::EditList() {
  WorkingCopy* const lists = Editable();
  const int row = Selected();
  if (lists == nullptr || row < 0)
    return;
  auto edited = std::make_unique<CSymbolList>(lists->At(row));
  if (!EditContents(*edited, ContentEditor::Mode::Edit, row))
    return;
  lists->Replace(row, std::move(edited));
  Changed(lists->At(row).GetID(), row);
}

void CSymbolSetDlg::DeleteList() {
  WorkingCopy* const lists = Editable();
  const int row = Selected();
  if (lists == nullptr || row < 0)
    return;
  if (!AskUser(kMessageDeleteList, Buttons::YesNoCancel)) {
    CListBox(*this, kItems).SetFocus();
    return;
  }
  Changed({}, lists->Remove(row, WorkingCopy::DefaultRule::StepsBack));
}

bool CSymbolSetDlg::EditContents(CSymbolList& list, ContentEditor::Mode mode, int row) {
  const WorkingCopy& lists = *Editable();
  const auto isTaken = [&lists, row](const CString& name) { return lists.HasName(name, row); };
  return RunWithin(IsCloud() ? kCloudLists : kUserLists, sources_, *this, {list, mode, isTaken}) ==
         Accepted;
}

// `id` is that of the list that was edited or made; empty when one was deleted.
void CSymbolSetDlg::Changed(const CString& id, int row) {
  if (IsCloud()) {
    cloudChanged_ = true;
    StoreCloud(id);
  } else {
    userChanged_ = true;
  }
  ShowItems(row);
}

void CSymbolSetDlg::StoreCloud(const CString& id) {
  CTQSymbolListMgr& manager = sources_.Manager();
  cloud_.TakeInChanges(manager);
  CPtrArray lists = cloud_.Pointers();
  manager.SetCloudSymbolList(&lists, kCloudLists);
  cloud_.Committed();
  cloud_.ReportKept();
  const int place = id.IsEmpty() ? -1 : cloud_.Find(id);
  if (place >= 0)
    manager.UpdateCloudSymbolList(id, cloud_.At(place).GetName(), cloud_.At(place).GetIDs());
}

void CSymbolSetDlg::StoreChanges() {
  if (userChanged_) {
    CTQSymbolListMgr& manager = sources_.Manager();
    if (user_.TakeInChanges(manager)) {
      CPtrArray lists = user_.Pointers();
      manager.SetSymbolList(&lists);
      manager.SetDefaultIndex(user_.DefaultIndex());
      user_.Committed();
      user_.ReportKept();
      manager.SaveSymbolList();
    }
    userChanged_ = false;
    committed_ = true;
  }
  if (cloudChanged_ && IsCloud()) {
    Notify(kNotifyCloudLists, "");
    cloudChanged_ = false;
    committed_ = true;
  }
}

void CSymbolSetDlg::OnOK() {
  const ListSource* const source = Source();
  if (source == nullptr)
    return;
  const int row = Selected();
  StoreChanges();
  if (row < 0 && !shown_.empty()) {
    ShowItems(-1); // as they are after what others did
    ShowMessage(kMessageNothingChosen);
    CListBox(*this, kItems).SetFocus();
    return;
  }
  // What the user sees counts, whatever the terminal has done to the lists since.
  choice_ = ChoiceOf(*source, row < 0 ? nullptr : &shown_[static_cast<std::size_t>(row)]);
  EndDialog(Accepted);
}
