// The selection of a list: the user chooses a source of symbols and a list in it, and may make,
// edit and delete lists of the user and of the cloud on the way.
//
// What was done to the user's lists is stored when the dialog closes with OK. Cloud lists are
// stored at once, as the cloud has them at once too. The two dialogs that delete lists ask with
// different buttons and choose the next default list differently: both are meant as they are.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "dialogs/WorkingCopy.h"
#include "dialogs/editors/ContentEditor.h"
#include "dialogs/editors/ListSources.h"

class CSymbolSetDlg : public CSingletonDlg {
public:
  // `before` is what the terminal had chosen: it is shown as the dialog opens. `holdings`: the
  // service's groups of holdings are offered too.
  CSymbolSetDlg(const tq::DialogSources& sources, const CWnd* parent, tq::ListChoice before,
                bool holdings);

  // Whether lists were changed, stored or not.
  bool HasChanged() const { return userChanged_ || cloudChanged_ || committed_; }
  // None unless the user has chosen.
  const std::optional<tq::ListChoice>& Choice() const { return choice_; }

protected:
  bool OnInitDialog() override;
  void OnOK() override;
  void OnCommand(int id, WindowEvent event) override;
  bool OnKey(int id, WindowKey key, WindowHeldKeys held) override;

private:
  enum Control : int {
    kSources = 761,
    kItems = 781,
    kNewItem = 801,
    kEditItem = 802,
    kDeleteItem = 803,
  };

  const tq::ListSource* Source() const; // the chosen one
  // The lists of the chosen source that can be edited here, or null.
  tq::WorkingCopy* Editable();
  tq::WorkingCopy* ListsOf(const tq::ListSource& source);
  bool IsCloud() const;
  std::vector<tq::SourceItem> Items();
  std::vector<tq::SourceItem> ItemsIn(const tq::ListSource& source);
  int RowOfBefore(const tq::ListSource& source);
  int Selected() const;
  void ShowBefore();
  void ChooseSource();
  void ShowItems(int selected);
  void UpdateButtons();

  void NewList();
  void EditList();
  void DeleteList();
  bool EditContents(CSymbolList& list, tq::ContentEditor::Mode mode, int row);
  void Changed(const CString& id, int row);
  void StoreCloud(const CString& id);
  void StoreChanges();

  tq::DialogSources sources_;
  tq::ListChoice before_;
  std::vector<tq::ListSource> offered_;
  std::vector<tq::SourceItem> shown_; // the rows
  tq::WorkingCopy user_;
  tq::WorkingCopy cloud_;
  bool userChanged_ = false;
  bool cloudChanged_ = false;
  bool committed_ = false; // changes of before, by OK
  std::optional<tq::ListChoice> choice_;
};
