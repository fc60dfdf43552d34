#include "dialogs/search/SymbolSearchDlg.h"

#include "dialogs/DialogMessages.h"
#include "dialogs/search/SymbolFind.h"
#include "platform/CodePage.h"
#include "platform/LibraryString.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/CWaitCursor.h"
#include "platform/services/tqUI.h"

using namespace tq;

namespace {

constexpr unsigned kStringTitle = 48023;
constexpr unsigned kStartTimer = 1;
constexpr unsigned kStartMilliseconds = 10;

// A double-byte character is one.
bool IsOneCharacter(const CString& text) {
  const char* const begin = text.GetString();
  return !text.IsEmpty() &&
         CharLength(begin, begin + text.GetLength()) == static_cast<std::size_t>(text.GetLength());
}

} // namespace

CSymbolSearchDlg::CSymbolSearchDlg(const DialogSources& sources, const CWnd* parent,
                                   const CString& input, bool forceList)
    : CDialog(1002, parent), sources_(sources), input_(input),
      exchanges_(PreferredExchanges(sources.Manager())), forceList_(forceList),
      markets_(sources.Manager()) {}

CSymbolSearchDlg::Place& CSymbolSearchDlg::Remembered() {
  static Place place;
  return place;
}

bool CSymbolSearchDlg::OnInitDialog() {
  SetText(LibraryString(kStringTitle));
  PrepareControls();
  ShowPlace(Remembered());
  CEdit input(*this, kInput);
  input.SetText(input_);
  input.SetFocus();
  if (!input_.IsEmpty())
    SetTimer(kStartTimer, kStartMilliseconds);
  return false;
}

void CSymbolSearchDlg::PrepareControls() {
  constexpr int kCodeWidth = 100; // in dialog units
  CTQIconButton(*this, kSearch, WindowButtonIcon::Search);
  results_.Open(*this, kResults, kCodeWidth);
}

// A market or a group that is not offered any more is all of them.
void CSymbolSearchDlg::ShowPlace(const Place& place) {
  const int market = markets_.FindMarket(place.market);
  FillBox(CComboBox(*this, kMarket), markets_.MarketNames(), market);
  FillBox(CComboBox(*this, kGroup), markets_.GroupNames(market),
          markets_.FindGroup(market, place.group));
  Remember();
}

void CSymbolSearchDlg::OnCommand(int id, WindowEvent event) {
  if (event == WindowEvent::SelectionChanged && id == kMarket) {
    ChooseMarket();
  } else if (event == WindowEvent::SelectionChanged && id == kGroup) {
    Remember();
    ShowMarket();
  } else if (event == WindowEvent::Clicked && id == kSearch) {
    SearchTyped();
  }
}

void CSymbolSearchDlg::ChooseMarket() {
  const int market = CComboBox(*this, kMarket).GetCurSel();
  FillBox(CComboBox(*this, kGroup), markets_.GroupNames(market), MarketChoice::kAll);
  Remember();
  ShowMarket();
}

void CSymbolSearchDlg::Remember() {
  const int market = CComboBox(*this, kMarket).GetCurSel();
  chosen_ = {markets_.MarketId(market),
             markets_.GroupId(market, CComboBox(*this, kGroup).GetCurSel())};
  Remembered() = chosen_;
}

void CSymbolSearchDlg::ShowMarket() {
  const CWaitCursor reading;
  results_.Show({});
  results_.Show(markets_.Symbols(CComboBox(*this, kMarket).GetCurSel(),
                                 CComboBox(*this, kGroup).GetCurSel()));
}

// Each tick sets the cursor again, for moving the mouse takes it back.
void CSymbolSearchDlg::OnTimer(unsigned) {
  if (start_ == Start::Done) {
    waiting_.reset();
    KillTimer(kStartTimer);
    return;
  }
  if (!waiting_)
    waiting_.emplace();
  SetWindowCursor(WindowCursor::Wait);
  if (start_ == Start::Waiting && Post(kFirstSearch))
    start_ = Start::Posted;
}

intptr_t CSymbolSearchDlg::OnMessage(unsigned code, intptr_t, intptr_t) {
  if (code == kFirstSearch && start_ == Start::Posted)
    SearchFirst();
  return 0;
}

void CSymbolSearchDlg::SearchFirst() {
  start_ = Start::Searching;
  SearchFor(CCharEdit(*this, kInput, 0).GetInput());
  CListCtrl results(*this, kResults);
  if (results.GetRowCount() > 0)
    results.SetCurSel(0);
  start_ = Start::Done;
}

// One character means too many symbols.
void CSymbolSearchDlg::SearchTyped() {
  const CString text = CCharEdit(*this, kInput, 0).GetInput();
  if (!IsOneCharacter(text)) {
    SearchFor(text);
    return;
  }
  ShowMessage(kMessageOneCharacter);
  CEdit(*this, kInput).SetFocus();
}

void CSymbolSearchDlg::SearchFor(const CString& text) {
  if (text.IsEmpty())
    return ShowMarket();
  const CWaitCursor searching;
  results_.Show({});
  results_.Show(FindSymbols(sources_, {text, chosen_.market, exchanges_}));
  if (results_.Rows().Count() == 1 && !forceList_)
    return Choose(0);
  CEdit(*this, kInput).SelectAll();
}

void CSymbolSearchDlg::Choose(int row) {
  if (!results_.Rows().Has(row))
    return;
  found_ = results_.Rows().At(row);
  EndDialog(Accepted);
}

void CSymbolSearchDlg::OnNotify(int id, const WindowListNotice& notice) {
  if (id == kResults && notice.kind == WindowListNotice::Kind::DoubleClicked &&
      CListCtrl(*this, kResults).GetSelectedCount() <= 1)
    Choose(notice.row);
}

bool CSymbolSearchDlg::OnKey(int id, WindowKey key, WindowHeldKeys held) {
  if (held.alt || held.control || held.shift)
    return false;
  if (id == kInput)
    return OnInputKey(key);
  const CListCtrl results(*this, kResults);
  if (id != kResults || key != WindowKey::Enter || results.GetSelectedCount() != 1)
    return false;
  Choose(results.GetCurSel());
  return true;
}

// Down goes to the results, as in every field with a list below.
bool CSymbolSearchDlg::OnInputKey(WindowKey key) {
  CListCtrl results(*this, kResults);
  if (key == WindowKey::Enter) {
    SearchTyped();
  } else if (key == WindowKey::Down && results.GetRowCount() > 0) {
    results.SetFocus();
    if (results.GetSelectedCount() == 0)
      results.SetCurSel(0);
  } else {
    return false;
  }
  return true;
}
