#include "terminal/desk/DeskDialog.h"

#include <unordered_set>

#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/CListCtrl.h"
#include "terminal/desk/Listening.h"
#include "terminal/desk/Resources.h"
#include "terminal/desk/Session.h"

namespace desk {
namespace {

constexpr unsigned kTemplate = 100;
constexpr int kCloudGroups = 201;

template <class ENTRIES> void Fill(CComboBox box, const ENTRIES& entries, int chosen) {
  box.ResetContent();
  for (const auto& entry : entries)
    box.AddString(entry.name);
  box.SetCurSel(chosen); // makes no event: what follows from it is done by whoever calls
}

} // namespace

DeskDialog::DeskDialog(CTQSymbolListMgr& manager, News& news)
    : CDialog(kTemplate), manager_(manager), news_(news), choice_(manager), page_(manager) {}

DeskDialog::~DeskDialog() {
  news_.Wake(CWnd());
}

bool DeskDialog::OnInitDialog() {
  PreparePage();
  PrepareLog();
  PrepareSearch();
  ShowChoice();
  ShowPage();
  news_.Wake(*this);
  CListCtrl(*this, kPage).SetFocus();
  return false;
}

void DeskDialog::PreparePage() {
  CListCtrl page(*this, kPage);
  page.SetStyles(CListCtrl::FullRowSelect | CListCtrl::GridLines);
  page.AddColumn(Text(Word::Code), 84);
  page.AddColumn(Text(Word::Name), 142);
  page.AddColumn(Text(Word::Exchange), 92);
  page.AddColumn(Text(Word::ReferencePrice), 0);
}

void DeskDialog::PrepareLog() {
  CListCtrl log(*this, kLog);
  log.SetStyles(CListCtrl::FullRowSelect);
  log.AddColumn(Text(Word::Time), 40);
  log.AddColumn(Text(Word::Kind), 30);
  log.AddColumn(Text(Word::Number), 34);
  log.AddColumn(Text(Word::Content), 0);
}

void DeskDialog::PrepareSearch() {
  constexpr int kInputBytes = 30; // as a name has
  CEdit(*this, kInput).SetLimitText(kInputBytes);
  SetToolTip(kInput, Text(Word::SearchTip));
  SetToolTip(kAddOne, Text(Word::AddOneTip));
  SetToolTip(kAddSelected, Text(Word::AddSelectedTip));
}

void DeskDialog::ShowChoice() {
  Fill(CComboBox(*this, kSource), choice_.Sources(), choice_.SourceIndex());
  Fill(CComboBox(*this, kList), choice_.Lists(), choice_.ListIndex());
}

// The buttons come last: one that is disabled for a moment only would lose the focus all the same.
void DeskDialog::ShowPage(const std::vector<CString>& selected) {
  page_.Show(choice_.Chosen());
  CListCtrl(*this, kPage).SetVirtualRows(page_.RowCount());
  SelectSymbols(selected);
}

// The latest line is in sight.
void DeskDialog::ShowLog() {
  CListCtrl log(*this, kLog);
  log.SetVirtualRows(news_.LineCount());
  log.EnsureVisible(news_.LineCount() - 1);
}

void DeskDialog::ReadListsAnew(News::Change change) {
  if (change.cloudLists) // from which the cloud groups are made when they are loaded
    manager_.LoadGroupList(kCloudGroups);
  const std::vector<CString> selected = SelectedSymbols();
  choice_.Reload();
  ShowChoice();
  ShowPage(selected);
}

void DeskDialog::UpdateButtons() {
  const From from = choice_.Chosen().source.from;
  const bool isEditable = from == From::UserLists || from == From::CloudLists;
  CWnd(*this, kEditShown).EnableWindow(isEditable && choice_.ListIndex() != -1);
  CWnd(*this, kAddOne).EnableWindow(!SelectedSymbol().IsEmpty());
  CWnd(*this, kAddSelected).EnableWindow(HasSelectedSymbols());
}

CString DeskDialog::SelectedSymbol() const {
  const CListCtrl page(*this, kPage);
  return page.GetSelectedCount() == 1 ? page_.SymbolAt(page.GetCurSel()) : CString();
}

// Headings that are selected too are passed over.
std::vector<CString> DeskDialog::SelectedSymbols() const {
  const CListCtrl page(*this, kPage);
  std::vector<CString> symbols;
  for (int row = page.GetNextSelected(-1); row != -1; row = page.GetNextSelected(row)) {
    if (const CString symbol = page_.SymbolAt(row); !symbol.IsEmpty())
      symbols.push_back(symbol);
  }
  return symbols;
}

// At the first one: all of a market may be selected.
bool DeskDialog::HasSelectedSymbols() const {
  const CListCtrl page(*this, kPage);
  int row = page.GetNextSelected(-1);
  while (row != -1 && page_.SymbolAt(row).IsEmpty())
    row = page.GetNextSelected(row);
  return row != -1;
}

// The first one is scrolled to, and the keys start there.
void DeskDialog::SelectSymbols(const std::vector<CString>& symbols) {
  const std::unordered_set<CString> wanted(symbols.begin(), symbols.end());
  CListCtrl page(*this, kPage);
  page.SetCurSel(-1);
  for (int row = 0; !wanted.empty() && row < page_.RowCount(); ++row) {
    if (wanted.contains(page_.SymbolAt(row)))
      page.GetSelectedCount() == 0 ? page.SetCurSel(row) : page.SelectRow(row);
  }
  UpdateButtons();
}

// Enter in the field searches. Escape is pressed once too often behind a dialog, and would close
// the terminal.
bool DeskDialog::OnKey(int id, WindowKey key, WindowHeldKeys) {
  if (id == kInput && key == WindowKey::Enter)
    FindSymbol();
  return key == WindowKey::Escape || (id == kInput && key == WindowKey::Enter);
}

void DeskDialog::OnCommand(int id, WindowEvent event) {
  if (event == WindowEvent::Clicked)
    return OnClicked(id);
  if (event != WindowEvent::SelectionChanged) // of a box
    return;
  const int chosen = CComboBox(*this, id).GetCurSel();
  if (id == kSource)
    choice_.ChooseSource(chosen);
  else
    choice_.ChooseList(chosen);
  ShowChoice();
  ShowPage();
}

void DeskDialog::OnNotify(int id, const WindowListNotice& notice) {
  if (id == kPage && notice.kind == WindowListNotice::Kind::SelectionChanged)
    UpdateButtons();
}

// Also while a dialog of the library's is open over the window.
intptr_t DeskDialog::OnMessage(unsigned code, intptr_t, intptr_t) {
  if (code != News::kMessage)
    return 0;
  if (const News::Change change = news_.TakeChange(); change.lists)
    ReadListsAnew(change);
  ShowLog();
  return 0;
}

CString DeskDialog::OnCellText(int id, int row, int column) {
  return id == kPage ? page_.Cell(row, column) : news_.Cell(row, column);
}

int RunDesk(CTQSymbolListMgr& manager) {
  News news;
  const Listening listening(news);
  LogIn(manager);
  PushCloudLists(manager);
  const tq::ResourceContext context(Resources());
  DeskDialog dialog(manager, news);
  return dialog.DoModal();
}

} // namespace desk
