#include "tests/interface/EditorSession.h"

namespace {

// In a content editor: a symbol, a heading, another order, and out with it.
void EditContents(User& editor) {
  editor.Fill(742, "edited");
  editor.Fill(741, "2317");
  editor.Press(WindowKey::Enter);
  editor.Fill(743, "Title");
  editor.Click(808);
  editor.Select(761, 1);
  editor.Select(762, 1);
  editor.Click(807);
  editor.ClickRow(781, 0);
  editor.Click(802);
  editor.Click(804);
  editor.ClickRow(781, 1);
  editor.Press(WindowKey::Delete);
  editor.Fill(741, "23");
  editor.Click(805);
  editor.DoubleClick(782, 0);
  editor.Fill(741, "7777");
  editor.Press(WindowKey::Enter);
  editor.Fill(742, "edited");
  editor.Click(1);
  if (editor.IsUp())
    editor.Click(2);
}

void EditLists(User& user) {
  user.ClickRow(781, 0);
  WhenDialogOpens(EditContents);
  user.Click(802);
  user.ClickRow(781, 0);
  user.Press(WindowKey::F2);
  user.Type("renamed");
  user.Press(WindowKey::Enter);
  if (user.IsVisible(741)) // the name was refused
    user.Press(WindowKey::Escape);
  user.ClickRow(781, 1);
  user.Click(807);
  WhenDialogOpens(EditContents);
  user.Click(801);
  user.Click(805);
  user.ClickRow(781, 2);
  user.Click(803);
  user.Click(806);
}

void Select(User& user) {
  user.Select(761, 1);
  user.ClickRow(781, 0);
  WhenDialogOpens(EditContents);
  user.Click(802);
  user.Select(761, 3);
  WhenDialogOpens(EditContents);
  user.Click(801);
  user.ClickRow(781, 0);
  user.Click(803);
  user.Select(761, 1);
  user.ClickRow(781, 1);
  user.Click(1);
  if (user.IsUp())
    user.Click(2);
}

void AddOneSymbol(User& user) {
  user.ClickRow(781, 0);
  user.Click(803);
  user.Click(803);
  WhenDialogOpens(EditContents);
  user.Click(802);
  WhenDialogOpens(EditContents);
  user.Click(801);
  user.Click(1);
}

void AddSymbols(User& user) {
  WhenDialogOpens(EditContents);
  user.Click(802);
  user.ClickRow(781, 0);
  WhenDialogOpens(EditContents); // its name is taken, so that this one is left
  user.Click(801);
  if (user.IsUp())
    user.Click(803);
  if (user.IsUp())
    user.Click(1);
}

int OpenLists(CTQSymbolListMgr& manager, CString&) {
  return CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr);
}
int OpenCloudLists(CTQSymbolListMgr& manager, CString&) {
  return manager.DoCloudSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr);
}
int OpenContents(CTQSymbolListMgr& manager, CString&) {
  CSymbolList* list = nullptr;
  manager.GetSymbolList("A", &list, 1);
  return CTQSymbolListMgr::DoGroupListUI(&manager, manager.GetSymbolTableMgr(), list, 1, nullptr, 0)
             ? 1
             : 0;
}
int OpenCloudContents(CTQSymbolListMgr& manager, CString&) {
  CSymbolList* list = nullptr;
  manager.GetSymbolList("K1", &list, 8);
  return manager.DoCloudGroupListUI(&manager, manager.GetSymbolTableMgr(), list, 1, nullptr, 0) ? 1
                                                                                                : 0;
}
int OpenOneSymbol(CTQSymbolListMgr& manager, CString&) {
  return CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr,
                                            "6488.TE");
}
int OpenSymbols(CTQSymbolListMgr& manager, CString&) {
  return CTQSymbolListMgr::DoSymbolAddUI(&manager, manager.GetSymbolTableMgr(), nullptr,
                                         "6488.TE,2330.TW", "A");
}
int OpenSelection(CTQSymbolListMgr& manager, CString& text) {
  int kind = 1;
  return CTQSymbolListMgr::DoSelectUI(&manager, manager.GetSymbolTableMgr(), nullptr, &kind, text,
                                      0, true);
}

} // namespace

std::vector<EditorSession> EditorSessions() {
  return {{"Lists", OpenLists, EditLists},
          {"CloudLists", OpenCloudLists, EditLists},
          {"Contents", OpenContents, EditContents},
          {"CloudContents", OpenCloudContents, EditContents},
          {"OneSymbol", OpenOneSymbol, AddOneSymbol},
          {"Symbols", OpenSymbols, AddSymbols},
          {"Selection", OpenSelection, Select}};
}
