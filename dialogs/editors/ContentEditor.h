// The content editor: one list's name, symbols and headings, with a search beside it.
//
// The list is given by whoever opens the editor, and is changed only when the user is done: name
// and symbols, and of a new list the identifier too. What the user does until then happens to
// ListContents. The last row of the list box is always empty: it marks the place behind the others.
//
// Control and Z take back what the user did to the list, one step after the other, to what it was
// when the editor opened. In a field that holds text, and in that of the name, the keys are the
// field's own.
#pragma once

#include <span>
#include <vector>

#include "dialogs/DialogSources.h"
#include "dialogs/ListContents.h"
#include "dialogs/editors/NameCheck.h"
#include "dialogs/search/MarketChoice.h"
#include "dialogs/search/SearchControls.h"
#include "dialogs/undo/HistoryKeys.h"
#include "platform/services/tqUI.h"

namespace tq {

// The list editors and the content editors are one family: one of them runs at a time, and what is
// opened from within it. The terminal knows the key: do not change.
inline constexpr char kEditorFamily[] = "F62515BA-0BE1-4f10-9743-9183E8706EF2";
// What the editors' names hold, in bytes.
inline constexpr int kNameBytes = sizeof(TQSymbolListInfo::Name) - 1;

class ContentEditor : public CSingletonDlg {
public:
  enum class Mode { New, Edit };

  // What it is opened for.
  struct Task {
    CSymbolList& list; // of new lists an empty one
    Mode mode;
    NameTest isTaken;  // none: the manager's lists of the kind are asked, but for this one
    CString symbols{}; // ids joined by ",", to be put behind the others as it opens
  };

  // Whether the user was done, and the list is what was made of it. An end code of 1 alone does not
  // say so: a terminal may end any dialog with it.
  bool IsStored() const { return stored_; }

protected:
  // The editors differ in this alone.
  struct Kind {
    unsigned templateId;
    unsigned editTitle; // an entry of the string table; new lists have the template's title
    int lists;          // the kind of the manager's lists whose names are taken
  };
  ContentEditor(const Kind& kind, const DialogSources& sources, const CWnd* parent, Task task);

  bool OnInitDialog() override;
  void OnOK() override;
  void OnCommand(int id, WindowEvent event) override;
  void OnNotify(int id, const WindowListNotice& notice) override;
  intptr_t OnMessage(unsigned code, intptr_t first, intptr_t second) override;
  bool OnKey(int id, WindowKey key, WindowHeldKeys held) override;
  CString OnCellText(int, int row, int column) override { return results_.CellText(row, column); }
  void OnItemLook(int id, int row, WindowItemLook& look) override;

private:
  enum Control : int {
    kRows = 781,
    kUp = 801,
    kDown = 802,
    kRemove = 803,
    kSort = 804,
    kMarket = 761,
    kGroup = 762,
    kAddAll = 807,
    kCode = 741,
    kAdd = 806,
    kFind = 805,
    kHeading = 743,
    kAddHeading = 808,
    kResults = 782,
    kName = 742,
  };
  // Message: the dialog stands, and may tell of the symbols that the list has already.
  enum : unsigned { kTellDuplicates = 0x415 };

  // --- Opening and closing (ContentEditor.cpp)
  void PrepareControls();
  void OnClicked(int id);
  bool OnListKey(WindowKey key, WindowHeldKeys held);
  bool IsNameTaken(const CString& name) const;
  bool Accepts(const CString& name);
  bool Store(const CString& name);
  bool Refuse(int id, unsigned message);

  // --- The list (ContentEditorList.cpp)
  // Lives while the user's action changes the list: the step that comes of it gets what was
  // selected in front of it and behind it.
  class Edit;
  void FillList();
  void ShowList(const std::vector<int>& selected, int caret);
  void ShowInserted(int row, int count);
  void ShowTurned(const ListContents::Turned& turned);
  void TakeStep(HistoryWay way);
  bool IsTyping(int id) const;
  std::vector<int> SelectedRows() const; // without the empty row
  RowSelection Selection() const;        // with it
  int InsertPlace() const;               // the first selected row, or the empty one
  void UpdateButtons();
  void RemoveSelected();
  void MoveSelected(bool up);
  void SortList();
  void ApplyHeading();
  void EditHeading(int row);
  void EnterSymbols();
  void TellDuplicates();

  // --- The search (ContentEditorSearch.cpp)
  void ChooseMarket();
  void ShowMarket();
  void AddPicked();
  void AddTyped();
  void AddOne(const SymbolInfo& symbol);
  void AddAll();
  void AddSymbols(int row, std::span<const SymbolInfo> symbols);
  void FindSimilar();
  void FindSimilarTo(const CString& text);

  Kind kind_;
  DialogSources sources_;
  Task task_;
  MarketChoice markets_;
  ListContents contents_;
  ResultTable results_;
  bool stored_ = false;
  std::vector<CString> duplicates_; // of the symbols to be entered those that the list has
};

} // namespace tq

// The content editor of a user list.
class CGroupListDlg : public tq::ContentEditor {
public:
  CGroupListDlg(const tq::DialogSources& sources, const CWnd* parent, Task task);
};

// The content editor of a cloud list, which has no headings of its own.
class CCloudGroupListDlg : public tq::ContentEditor {
public:
  CCloudGroupListDlg(const tq::DialogSources& sources, const CWnd* parent, Task task);
};

namespace tq {

// Runs the content editor for lists of a kind as the terminal runs dialogs, and returns its end
// code: 1 only when the list was stored. When its window cannot be made, a dialog that opens it
// tells the user (RunWithin).
int RunContentEditor(int lists, const DialogSources& sources, const CWnd* parent,
                     ContentEditor::Task task);
int RunWithin(int lists, const DialogSources& sources, const CWnd& opener,
              ContentEditor::Task task);

} // namespace tq
