// The search for one symbol: the user types a code or a name, or looks through markets and groups,
// and double-clicks a row. A text that means one symbol only is answered at once, unless the
// terminal wants the table to be shown.
//
// The market and the group that are chosen are remembered: the next search opens with them.
#pragma once

#include <optional>

#include "dialogs/DialogSources.h"
#include "dialogs/search/MarketChoice.h"
#include "dialogs/search/SearchControls.h"
#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/CWaitCursor.h"

class CSymbolSearchDlg : public CDialog {
public:
  // `input` is searched as soon as the dialog stands, unless it is empty. `forceList`: the only hit
  // is shown, too.
  CSymbolSearchDlg(const tq::DialogSources& sources, const CWnd* parent, const CString& input,
                   bool forceList);

  // None unless the user has chosen.
  const std::optional<SymbolInfo>& Found() const { return found_; }

  // A market and a group by their ids; empty for all.
  struct Place {
    CString market;
    CString group;
  };
  const Place& Chosen() const { return chosen_; }
  // What the next search opens with.
  static Place& Remembered();

protected:
  bool OnInitDialog() override;
  void OnOK() override {} // Enter is the field's and the table's
  void OnCommand(int id, WindowEvent event) override;
  void OnNotify(int id, const WindowListNotice& notice) override;
  void OnTimer(unsigned id) override;
  intptr_t OnMessage(unsigned code, intptr_t first, intptr_t second) override;
  bool OnKey(int id, WindowKey key, WindowHeldKeys held) override;
  CString OnCellText(int, int row, int column) override { return results_.CellText(row, column); }

private:
  enum Control : int {
    kMarket = 761,
    kGroup = 762,
    kInput = 741,
    kSearch = 801,
    kResults = 781,
  };
  // Message: the first search is due. Terminals know the number: do not change.
  enum : unsigned { kFirstSearch = 0x41E };

  void PrepareControls();
  void ShowPlace(const Place& place);
  void ChooseMarket();
  void Remember();
  void ShowMarket();
  void SearchFirst();
  void SearchTyped();
  void SearchFor(const CString& text);
  void Choose(int row);
  bool OnInputKey(WindowKey key);

  tq::DialogSources sources_;
  CString input_;
  CString exchanges_; // where the user looks first
  bool forceList_;
  tq::MarketChoice markets_;
  tq::ResultTable results_;
  std::optional<SymbolInfo> found_;
  Place chosen_;
  // The first search runs behind the opening, so that the user sees the dialog at once.
  enum class Start { Waiting, Posted, Searching, Done } start_ = Start::Waiting;
  std::optional<CWaitCursor> waiting_; // until then, and to the end of a dialog that closes before
};
