// What the buttons open: each of the library's dialogs, and what a terminal has to do behind it.
#include "platform/framework/window/CEdit.h"
#include "terminal/desk/DeskDialog.h"
#include "terminal/desk/Resources.h"
#include "terminal/desk/Selection.h"

namespace desk {
namespace {

// How the editors of one list are opened.
constexpr int kNew = 0;
constexpr int kEdit = 1;
constexpr int kNoOption = 0;

CString Joined(const std::vector<CString>& symbols) {
  CString joined;
  for (const CString& symbol : symbols)
    joined += (joined.IsEmpty() ? "" : ",") + symbol;
  return joined;
}

} // namespace

void DeskDialog::OnClicked(int id) {
  switch (id) {
  case kSelect:
    return SelectPlace();
  case kEditLists:
    return EditLists();
  case kEditCloudLists:
    return EditCloudLists();
  case kEditShown:
    return EditShownList();
  case kNewList:
    return MakeList();
  case kNewCloudList:
    return MakeCloudList();
  case kFind:
    return FindSymbol();
  case kAddOne:
    return AddOneSymbol();
  case kAddSelected:
    return AddSelectedSymbols();
  case kEconomic:
    return FindEconomicIndicator();
  case kCommodities:
    return FindCommodity();
  case kFutures:
    return FindFuture();
  default:
    return;
  }
}

// Saves and tells by itself: the page hears of it as of any other change.
void DeskDialog::EditLists() {
  NoteOpened(CTQSymbolListMgr::DoSymbolListUI(&manager_, Tables(), GetSafeHwnd()));
}

void DeskDialog::EditCloudLists() {
  NoteOpened(manager_.DoCloudSymbolListUI(&manager_, Tables(), GetSafeHwnd()));
}

// The editor gets a copy: it replaces the manager's own list, and a pointer to that would lead
// nowhere then. It has stored the list by the time it returns, and leaves it to its caller to tell
// the pages.
void DeskDialog::EditShownList() {
  const Place place = choice_.Chosen();
  CSymbolList* own = nullptr; // the manager's
  manager_.GetSymbolList(place.list, &own, KindOf(place.source.from));
  if (own == nullptr)
    return;
  CSymbolList list(*own);
  const bool done =
      place.source.from == From::CloudLists
          ? manager_.DoCloudGroupListUI(&manager_, Tables(), &list, kEdit, this, kNoOption)
          : CTQSymbolListMgr::DoGroupListUI(&manager_, Tables(), &list, kEdit, this, kNoOption);
  if (done)
    news_.ListsChanged();
}

// A new list is nobody's but ours until it is added: a copy of it, so that this one may go. Unlike
// AddSymbolList this takes a list without symbols too, and neither saves nor tells.
void DeskDialog::MakeList() {
  CSymbolList list;
  if (!CTQSymbolListMgr::DoGroupListUI(&manager_, Tables(), &list, kNew, this, kNoOption))
    return;
  constexpr int kAtTheEnd = 1;
  manager_.AddTQSymbolList(&list, kAtTheEnd);
  manager_.SaveSymbolList(); // says so to the user when it fails
  choice_.Choose({{From::UserLists}, list.GetID()});
  news_.ListsChanged();
}

// Of a new cloud list the library tells when the cloud groups are made anew from the map.
void DeskDialog::MakeCloudList() {
  CSymbolList list;
  if (!manager_.DoCloudGroupListUI(&manager_, Tables(), &list, kNew, this, kNoOption))
    return;
  manager_.SetCloudeList(list.GetID(), list.GetName(), list.GetIDs());
  choice_.Choose({{From::CloudLists}, list.GetID()});
  manager_.RefreshCloudeSymbol();
}

// What is shown goes in, so that the dialog opens on it, and what was chosen comes out. Lists that
// the user changes on the way are told of by the library.
void DeskDialog::SelectPlace() {
  constexpr bool kGroupsOfHoldings = true;
  Selection selection = SelectionOf(manager_, choice_.Chosen());
  const int code = CTQSymbolListMgr::DoSelectUI(&manager_, Tables(), GetSafeHwnd(), &selection.kind,
                                                selection.text, kNoOption, kGroupsOfHoldings);
  NoteOpened(code);
  const std::optional<Place> place = code == Accepted ? PlaceOf(manager_, selection) : std::nullopt;
  if (!place)
    return;
  choice_.Choose(*place);
  ShowChoice();
  ShowPage();
}

// The search opens with the group that the page shows, and with all symbols for anything else. What
// means one symbol only is answered without the user.
void DeskDialog::FindSymbol() {
  constexpr int kListIsForced = 0;
  const Place place = choice_.Chosen();
  CListID group;
  if (place.source.from == From::Group)
    group.SetData(ListIDGroup, place.source.group + "," + place.list, 0);
  SymbolInfo found = {};
  const int code =
      CTQSymbolListMgr::DoSearchUI(&manager_, Tables(), GetSafeHwnd(),
                                   CEdit(*this, kInput).GetText(), &found, kListIsForced, &group);
  NoteOpened(code);
  if (code == Accepted)
    ShowFound(found.id);
}

// On the page, or else among all symbols.
void DeskDialog::ShowFound(const CString& symbol) {
  if (page_.RowOf(symbol) == -1) {
    choice_.Choose({{From::AllSymbols}});
    ShowChoice();
    ShowPage();
  }
  SelectSymbols({symbol});
  CWnd(*this, kPage).SetFocus();
}

void DeskDialog::AddOneSymbol() {
  NoteOpened(CTQSymbolListMgr::DoGroupSymbolAdd(&manager_, Tables(), this, SelectedSymbol()));
}

// The list on the page is proposed when it is the user's; the dialog knows no others, and proposes
// the one that is shown first then.
void DeskDialog::AddSelectedSymbols() {
  const Place place = choice_.Chosen();
  const CString proposed = place.source.from == From::UserLists ? place.list : CString();
  NoteOpened(CTQSymbolListMgr::DoSymbolAddUI(&manager_, Tables(), GetSafeHwnd(),
                                             Joined(SelectedSymbols()), proposed));
}

// The searches for series hand back a code and a name, which a chart would take; here they are
// noted.
void DeskDialog::FindEconomicIndicator() {
  CString name;
  CString code;
  const int result = CTQSymbolListMgr::DoSearchFinIndi(GetSafeHwnd(), CString(), name, code);
  NoteChosen(result, code + " " + name);
}

void DeskDialog::FindCommodity() {
  CString name;
  CString code;
  const CString none; // nothing is searched for as it opens
  const int result = CTQSymbolListMgr::DoSearchCommIndi(GetSafeHwnd(), none, name, code, none, none,
                                                        InfoCommodities);
  NoteChosen(result, code + " " + name);
}

void DeskDialog::FindFuture() {
  CString name;
  CString code;
  CString market;
  const int result =
      CTQSymbolListMgr::DoSearchOptionIndi(GetSafeHwnd(), CString(), name, code, market);
  NoteChosen(result, code + " " + name + " " + market);
}

// Nothing when the user cancelled.
void DeskDialog::NoteChosen(int code, const CString& text) {
  NoteOpened(code);
  if (code == Accepted)
    news_.Add(News::Kind::Noted, 0, text);
}

// A dialog that could not be opened says so by its end code alone.
void DeskDialog::NoteOpened(int code) {
  if (code == Failed)
    news_.Add(News::Kind::Noted, 0, Text(Word::NoDialog));
}

} // namespace desk
