// The list-of-lists editor: creates, edits, renames, moves and deletes lists, on a working copy.
// Whoever opens it commits the copy when it has closed, in whatever way: this editor has no Cancel.
//
// While a row is renamed the editor of names lies over it. Going elsewhere ends the renaming: a
// good name is taken as with Enter, any other is dropped without a message, and what the user did
// to go there is done.
//
// Control and Z take back what was done, one step after the other: a content editor that ended with
// OK is one. In the editor of names the keys are the field's own.
#pragma once

#include "dialogs/editors/ListsPane.h"
#include "dialogs/undo/HistoryKeys.h"

namespace tq {

class ListsEditor : public CSingletonDlg {
public:
  WorkingCopy& Copy() { return pane_.Copy(); }

  // Message: whether a list of the working copy other than that at `second` (-1: any) has the name
  // whose text is at the address `first`. 1 or 0. Letter case counts.
  enum : unsigned { kIsNameTaken = 0x414 };

protected:
  // The editors differ in this alone.
  struct Kind {
    unsigned templateId;
    int lists;       // the kind of the manager's lists
    bool hasDefault; // one of them is marked, and shown first
  };
  ListsEditor(const Kind& kind, const DialogSources& sources, const CWnd* parent);

  bool OnInitDialog() override;
  void OnCommand(int id, WindowEvent event) override;
  void OnCancel() override;
  intptr_t OnMessage(unsigned code, intptr_t first, intptr_t second) override;
  bool OnKey(int id, WindowKey key, WindowHeldKeys held) override;
  void OnItemLook(int id, int row, WindowItemLook& look) override { pane_.Look(id, row, look); }

private:
  enum Control : int {
    kLists = ListsPane::kLists,
    kNameField = 741,
    kNew = 801,
    kEdit = 802,
    kDelete = 803,
    kRename = 804,
    kDefault = 805,
    kDone = 806,
    kUp = 807,
    kDown = 808,
  };

  void OnClicked(int id);
  bool OnListKey(WindowKey key, WindowHeldKeys held);
  void UpdateButtons();

  void NewList();
  void EditList();
  void DeleteList();
  void MakeDefault();
  void MoveList(bool up);
  void TakeStep(HistoryWay way);

  // --- Renaming
  void StartRenaming();
  enum class Focus { ToLists, Stays }; // Stays: the user has taken it elsewhere
  void EndRenaming(Focus focus);
  void Rename(NameCheck::Voice voice);
  bool IsTaken(const CString& name, int except) const;

  Kind kind_;
  ListsPane pane_;
  int renamed_ = -1; // the row under the editor of names
};

} // namespace tq

// The editor of the user's lists.
class CSymbolListDlg : public tq::ListsEditor {
public:
  CSymbolListDlg(const tq::DialogSources& sources, const CWnd* parent);
};

// The editor of the cloud lists, of which none is the default.
class CloudSymbolListDlg : public tq::ListsEditor {
public:
  CloudSymbolListDlg(const tq::DialogSources& sources, const CWnd* parent);
};
