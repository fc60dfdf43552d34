// The content editor from opening to closing.
#include "dialogs/editors/ContentEditor.h"

#include <utility>

#include "dialogs/DialogMessages.h"
#include "idlist/ListKind.h"
#include "platform/LibraryString.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/services/tqCommon.h"
#include "symbollist/ListIds.h"

namespace tq {

ContentEditor::ContentEditor(const Kind& kind, const DialogSources& sources, const CWnd* parent,
                             Task task)
    : CSingletonDlg(kEditorFamily, kind.templateId, parent, 0), kind_(kind), sources_(sources),
      task_(std::move(task)), markets_(sources.Manager()), contents_(task_.list) {}

bool ContentEditor::OnInitDialog() {
  if (task_.mode == Mode::Edit)
    SetText(LibraryString(kind_.editTitle));
  PrepareControls();
  CEdit(*this, kName).SetText(task_.list.GetName());
  FillBox(CComboBox(*this, kMarket), markets_.MarketNames(), MarketChoice::kAll);
  FillBox(CComboBox(*this, kGroup), markets_.GroupNames(MarketChoice::kAll), MarketChoice::kAll);
  EnterSymbols();
  FillList();
  UpdateButtons();
  CEdit(*this, kCode).SetFocus();
  if (!duplicates_.empty())
    Post(kTellDuplicates); // when the dialog stands behind the message
  return false;
}

void ContentEditor::PrepareControls() {
  constexpr int kCodeWidth = 80; // of the first column, in dialog units
  CTQIconButton(*this, kUp, WindowButtonIcon::Up);
  CTQIconButton(*this, kDown, WindowButtonIcon::Down);
  CTQIconButton(*this, kRemove, WindowButtonIcon::Remove);
  CTQIconButton(*this, kAdd, WindowButtonIcon::Left);
  CTQIconButton(*this, kAddHeading, WindowButtonIcon::Left);
  CTQToolTip tips(*this);
  for (const auto& [id, text] : {std::pair{kUp, 48013U},
                                 {kDown, 48014U},
                                 {kRemove, 48015U},
                                 {kSort, 48016U},
                                 {kAdd, 48017U},
                                 {kAddHeading, 48043U}})
    tips.AddTool(id, LibraryString(text));
  CCharEdit(*this, kName, kNameBytes);
  CCharEdit(*this, kHeading, kNameBytes);
  CListBox(*this, kRows).SetRowTips(true);
  results_.Open(*this, kResults, kCodeWidth);
}

void ContentEditor::OnCommand(int id, WindowEvent event) {
  if (event == WindowEvent::Clicked)
    OnClicked(id);
  else if (id == kRows && event == WindowEvent::DoubleClicked)
    EditHeading(CListBox(*this, kRows).GetCurSel());
  else if (event == WindowEvent::SelectionChanged && id == kRows)
    UpdateButtons();
  else if (event == WindowEvent::SelectionChanged && id == kMarket)
    ChooseMarket();
  else if (event == WindowEvent::SelectionChanged && id == kGroup)
    ShowMarket();
}

void ContentEditor::OnClicked(int id) {
  switch (id) {
  case kUp:
  case kDown:
    return MoveSelected(id == kUp);
  case kRemove:
    return RemoveSelected();
  case kSort:
    return SortList();
  case kFind:
    return FindSimilar();
  case kAdd:
    return CListCtrl(*this, kResults).GetSelectedCount() > 0 ? AddPicked() : AddTyped();
  case kAddAll:
    return AddAll();
  case kAddHeading:
    return ApplyHeading();
  default:
    return;
  }
}

void ContentEditor::OnNotify(int id, const WindowListNotice& notice) {
  if (id == kResults && notice.kind == WindowListNotice::Kind::DoubleClicked && notice.row >= 0)
    AddPicked();
}

intptr_t ContentEditor::OnMessage(unsigned code, intptr_t, intptr_t) {
  if (code == kTellDuplicates)
    TellDuplicates();
  return 0;
}

// Enter in a field does what the button beside the field does, and not Done.
bool ContentEditor::OnKey(int id, WindowKey key, WindowHeldKeys held) {
  const HistoryWay way = HistoryWayOf(key, held);
  if (way != HistoryWay::None && !IsTyping(id)) {
    TakeStep(way);
    return true;
  }
  if (id == kRows)
    return OnListKey(key, held);
  if (key != WindowKey::Enter || held.alt || held.control)
    return false;
  if (id == kCode)
    AddTyped();
  else if (id == kHeading)
    ApplyHeading();
  else if (id == kResults && CListCtrl(*this, kResults).GetSelectedCount() > 0)
    AddPicked();
  else
    return false;
  return true;
}

bool ContentEditor::OnListKey(WindowKey key, WindowHeldKeys held) {
  if (held.alt && (key == WindowKey::Up || key == WindowKey::Down))
    MoveSelected(key == WindowKey::Up);
  else if (key == WindowKey::Delete)
    RemoveSelected();
  else if (key == WindowKey::F2)
    EditHeading(CListBox(*this, kRows).GetCurSel());
  else
    return false;
  return true;
}

void ContentEditor::OnOK() {
  const CString name = TypedName(CCharEdit(*this, kName, kNameBytes), task_.list.GetName());
  if (Accepts(name) && Store(name))
    EndDialog(Accepted);
  else
    CEdit(*this, kName).SetFocus();
}

bool ContentEditor::Accepts(const CString& name) {
  NameCheck check(*this, name);
  return check.IsGiven() && check.IsFileName() &&
         check.IsFree([this](const CString& text) { return IsNameTaken(text); }) &&
         check.IsUnreserved() && check.CanBeLoaded();
}

// The manager ignores letter case, a dialog's own lists do not: both as they always were.
bool ContentEditor::IsNameTaken(const CString& name) const {
  if (task_.isTaken)
    return task_.isTaken(name);
  CTQSymbolListMgr& manager = sources_.Manager();
  int own = -1;
  TQSymbolListInfo info;
  for (int i = 0; task_.mode == Mode::Edit && own < 0 &&
                  manager.GetTQSymbolListInfo(i, &info, kind_.lists) != 0;
       ++i)
    own = task_.list.IsSameID(info.ID) ? i : -1;
  return manager.CheckNameExist(name, own >= 0 ? 1 : 0, own, kind_.lists) != 0;
}

// False when the system has no identifier to give: a list without one could not be told from
// others.
bool ContentEditor::Store(const CString& name) {
  if (task_.mode == Mode::New) {
    const CString id = IdOfNewList({});
    if (id.IsEmpty())
      return Refuse(kName, kMessageSaveFailed);
    task_.list.SetID(id);
  }
  task_.list.SetName(name);
  task_.list.Update1(contents_.Ids());
  stored_ = true;
  return true;
}

// The focus goes to the field at fault.
bool ContentEditor::Refuse(int id, unsigned message) {
  ShowMessage(message);
  CWnd(*this, id).SetFocus();
  return false;
}

namespace {

int Run(ContentEditor& editor) {
  const int code = tqDoModal(&editor, 0, 1, 0);
  return code == CDialog::Accepted && !editor.IsStored() ? CDialog::Cancelled : code;
}

} // namespace

int RunContentEditor(int lists, const DialogSources& sources, const CWnd* parent,
                     ContentEditor::Task task) {
  if (lists == kCloudLists) {
    CCloudGroupListDlg dialog(sources, parent, std::move(task));
    return Run(dialog);
  }
  CGroupListDlg dialog(sources, parent, std::move(task));
  return Run(dialog);
}

int RunWithin(int lists, const DialogSources& sources, const CWnd& opener,
              ContentEditor::Task task) {
  const int code = RunContentEditor(lists, sources, &opener, std::move(task));
  if (code == CDialog::Failed)
    ShowMessage(kMessageNoDialog);
  return code;
}

} // namespace tq

CGroupListDlg::CGroupListDlg(const tq::DialogSources& sources, const CWnd* parent, Task task)
    : ContentEditor({1001, 48010, tq::kUserLists}, sources, parent, std::move(task)) {}

CCloudGroupListDlg::CCloudGroupListDlg(const tq::DialogSources& sources, const CWnd* parent,
                                       Task task)
    : ContentEditor({1011, 48102, tq::kCloudLists}, sources, parent, std::move(task)) {}
