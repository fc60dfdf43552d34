// The operations that open dialogs. Each one activates the library's resources while it runs, and
// wraps the terminal's window handle.
#include <string>

#include "dialogs/EditCommits.h"
#include "dialogs/IndicatorSearches.h"
#include "dialogs/editors/GroupSymbolAdd.h"
#include "dialogs/editors/ListsEditor.h"
#include "dialogs/editors/SymbolAddDlg.h"
#include "dialogs/editors/SymbolSetDlg.h"
#include "dialogs/resources/DialogTable.h"
#include "dialogs/search/SymbolSearchDlg.h"
#include "idlist/ListKind.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/Log.h"
#include "platform/diagnostics/Operation.h"
#include "platform/framework/window/WindowKind.h"
#include "platform/services/tqCommon.h"
#include "symbolid/ListID.h"
#include "symboltable/LiveTables.h"

using tq::ContentEditor;

int CTQSymbolListMgr::m_bDoModal = 0;

namespace {

// Where nobody can see the dialogs the log says why, once for each reason.
void NoteScreen() {
  static std::string told;
  if (told == tq::WindowsMissing())
    return;
  told = tq::WindowsMissing();
  if (!told.empty())
    tq::LogLine(tq::kLogChange, "Dialogs have no screen: %s", told.c_str());
}

int WithReason(int result) {
  NoteScreen();
  if (result == CDialog::Failed)
    tq::NoteProblem(TQProblemDialog,
                    "the dialog could not be made, or another one of its family is open");
  return result;
}

// As the terminal runs the dialogs that are bound to a manager.
int RunAsTerminal(CDialog& dialog) {
  return WithReason(tqDoModal(&dialog, 0, 1, 0));
}

int NoteNoManager() {
  tq::NoteProblem(TQProblemNull, "there is no manager, or no list");
  return CDialog::Failed;
}

// The editor has a copy, so that a list of the manager's differs from it when it is stored.
bool EditOneList(CTQSymbolListMgr& manager, CSymbolTableMgr* tables, CSymbolList& list, int kind,
                 int mode, const CWnd* parent,
                 bool (*commit)(CTQSymbolListMgr&, const CSymbolList&)) {
  CSymbolList* own = nullptr;
  manager.GetSymbolList(list.GetID(), &own, kind);
  const bool isOwn = own == &list;
  CSymbolList edited(list);
  const auto task = mode == 0 ? ContentEditor::Mode::New : ContentEditor::Mode::Edit;
  if (WithReason(tq::RunContentEditor(kind, {manager, tables}, parent, {edited, task, nullptr})) !=
      CDialog::Accepted)
    return false;
  if (!isOwn) { // the manager's own may be gone by now, and is behind the commit
    list.SetID(edited.GetID());
    list.SetName(edited.GetName());
    list.Update1(edited.GetIDs());
  }
  commit(manager, edited);
  return true;
}

// Whether its result goes through a commit, so that only its user may end it. The selection is of
// the editors' family and is none.
bool IsEditor(const CDialog& dialog) {
  if (dynamic_cast<const CSymbolSetDlg*>(&dialog) != nullptr)
    return false;
  return dynamic_cast<const CSingletonDlg*>(&dialog) != nullptr ||
         dynamic_cast<const CGroupSymbolAdd*>(&dialog) != nullptr;
}

// As the terminal stores a group.
CString ListIdOf(const CSymbolSearchDlg::Place& place) {
  CString text;
  text.Format("%d,%s,%s", static_cast<int>(ListIDGroup), place.market.GetString(),
              place.group.GetString());
  return text;
}

} // namespace

int CTQSymbolListMgr::DoSymbolListUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                                     WindowHandle parent) noexcept {
  const tq::Operation operation("DoSymbolListUI");
  if (manager == nullptr)
    return NoteNoManager();
  tables = tq::LiveTables("DoSymbolListUI", tables);
  const tq::ResourceContext context(tq::LibraryResources());
  const int countBefore = manager->GetSymbolListCount(tq::kUserLists);
  const CWnd window(parent);
  CSymbolListDlg dialog({*manager, tables}, &window);
  const int result = RunAsTerminal(dialog);
  tq::CommitLists(*manager, dialog.Copy(), countBefore);
  return result;
}

int CTQSymbolListMgr::DoCloudSymbolListUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                                          WindowHandle parent) noexcept {
  const tq::Operation operation("DoCloudSymbolListUI");
  if (manager == nullptr)
    return NoteNoManager();
  tables = tq::LiveTables("DoCloudSymbolListUI", tables);
  const tq::ResourceContext context(tq::LibraryResources());
  const int countBefore = manager->GetSymbolListCount(tq::kCloudLists);
  const CWnd window(parent);
  CloudSymbolListDlg dialog({*manager, tables}, &window);
  const int result = RunAsTerminal(dialog);
  tq::CommitCloudLists(*manager, dialog.Copy(), countBefore);
  return result;
}

bool CTQSymbolListMgr::DoGroupListUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                                     CSymbolList* list, int mode, CWnd* parent, int) noexcept {
  const tq::Operation operation("DoGroupListUI");
  if (manager == nullptr || list == nullptr) {
    NoteNoManager();
    return false;
  }
  tables = tq::LiveTables("DoGroupListUI", tables);
  const tq::ResourceContext context(tq::LibraryResources());
  return EditOneList(*manager, tables, *list, tq::kUserLists, mode, parent, tq::CommitEditedList);
}

bool CTQSymbolListMgr::DoCloudGroupListUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                                          CSymbolList* list, int mode, CWnd* parent, int) noexcept {
  const tq::Operation operation("DoCloudGroupListUI");
  if (manager == nullptr || list == nullptr) {
    NoteNoManager();
    return false;
  }
  tables = tq::LiveTables("DoCloudGroupListUI", tables);
  const tq::ResourceContext context(tq::LibraryResources());
  return EditOneList(*manager, tables, *list, tq::kCloudLists, mode, parent,
                     tq::CommitEditedCloudList);
}

int CTQSymbolListMgr::DoGroupSymbolAdd(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                                       CWnd* parent, const char* symbol) noexcept {
  const tq::Operation operation("DoGroupSymbolAdd", "symbol", symbol);
  if (manager == nullptr)
    return NoteNoManager();
  tables = tq::LiveTables("DoGroupSymbolAdd", tables);
  const tq::ResourceContext context(tq::LibraryResources());
  CGroupSymbolAdd dialog({*manager, tables}, parent, symbol);
  const int result = RunAsTerminal(dialog);
  tq::CommitSymbolAddedToLists(*manager, dialog.Copy());
  return result;
}

int CTQSymbolListMgr::DoSymbolAddUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                                    WindowHandle parent, const CString& symbols,
                                    const CString& listId) noexcept {
  const tq::Operation operation("DoSymbolAddUI", "symbols,listId", symbols, listId);
  if (manager == nullptr)
    return NoteNoManager();
  tables = tq::LiveTables("DoSymbolAddUI", tables);
  const tq::ResourceContext context(tq::LibraryResources());
  const CWnd window(parent);
  CSymbolAddDlg dialog({*manager, tables}, &window, symbols, listId);
  const int result = RunAsTerminal(dialog);
  tq::CommitAddedSymbols(*manager, dialog.Copy());
  return result;
}

int CTQSymbolListMgr::DoSearchUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                                 WindowHandle parent, const CString& input, SymbolInfo* result,
                                 int forceList, CListID* place) noexcept {
  const tq::Operation operation("DoSearchUI", "input", input);
  if (manager == nullptr)
    return NoteNoManager();
  tables = tq::LiveTables("DoSearchUI", tables);
  const tq::ResourceContext context(tq::LibraryResources());
  if (place != nullptr)
    CSymbolSearchDlg::Remembered() = {place->GetGroupID(), place->GetSubGroupID()};
  const CWnd window(parent);
  CSymbolSearchDlg dialog({*manager, tables}, &window, input, forceList != 0);
  const int code = RunAsTerminal(dialog);
  if (place != nullptr && code != CDialog::Failed)
    place->FromString(ListIdOf(dialog.Chosen()));
  if (code == CDialog::Accepted && dialog.Found() && result != nullptr)
    *result = *dialog.Found();
  return code;
}

int CTQSymbolListMgr::DoSelectUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                                 WindowHandle parent, int* kind, CString& text, int,
                                 bool holdings) noexcept {
  const tq::Operation operation("DoSelectUI");
  if (manager == nullptr)
    return NoteNoManager();
  tables = tq::LiveTables("DoSelectUI", tables);
  const tq::ResourceContext context(tq::LibraryResources());
  const CWnd window(parent);
  CSymbolSetDlg dialog({*manager, tables}, &window, {kind == nullptr ? 0 : *kind, text}, holdings);
  m_bDoModal = 1;
  const int result = RunAsTerminal(dialog);
  m_bDoModal = 0;
  if (dialog.HasChanged())
    tq::ReportChangedBySelection();
  if (result == CDialog::Accepted && dialog.Choice() && kind != nullptr) {
    *kind = dialog.Choice()->kind;
    text = dialog.Choice()->text;
  }
  return result;
}

int CTQSymbolListMgr::EndDomodal(WindowHandle dialog, int result) noexcept {
  tq::CheckCall("EndDomodal");
  if (m_bDoModal == 0)
    return 0;
  CDialog* const running = CDialog::FromHandle(dialog);
  if (running == nullptr || IsEditor(*running))
    return 0;
  running->EndDialog(result);
  return 1;
}

int CTQSymbolListMgr::DoSearchFinIndi(WindowHandle parent, const CString& input, CString& name,
                                      CString& code) noexcept {
  const tq::Operation operation("DoSearchFinIndi", "input", input);
  const tq::ResourceContext context(tq::LibraryResources());
  return WithReason(CFinIndiSearchDlg(CWnd(parent), input).Search(name, code));
}

int CTQSymbolListMgr::DoSearchCommIndi(WindowHandle parent, const CString& input, CString& name,
                                       CString& code, const CString& input2, const CString& input3,
                                       InfoType type) noexcept {
  const tq::Operation operation("DoSearchCommIndi", "input,input2,input3", input, input2, input3);
  const tq::ResourceContext context(tq::LibraryResources());
  return WithReason(
      CNationalCommodityDlg(CWnd(parent), type, {input, input2, input3}).Search(name, code));
}

int CTQSymbolListMgr::DoSearchOptionIndi(WindowHandle parent, const CString& input, CString& name,
                                         CString& code, CString& market) noexcept {
  const tq::Operation operation("DoSearchOptionIndi", "input", input);
  const tq::ResourceContext context(tq::LibraryResources());
  return WithReason(CNationalOptionDlg(CWnd(parent), input).Search(name, code, &market));
}
