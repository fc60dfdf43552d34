// The search for an indicator: a list of the stock library's indicators, filtered by region and
// category. It opens on the first region of the table. A double-click chooses a row and closes the
// dialog; closing it in any other way chooses nothing. The three dialogs derived from this class
// differ in template, list title and table; the template for commodities has no box of regions and
// shows all of them.
#pragma once

#include <optional>

#include "dialogs/IndicatorTable.h"
#include "platform/framework/window/CDialog.h"

namespace tq {

// The texts that the dialog is opened with: codes or names.
using IndicatorInputs = std::vector<CString>;

class IndicatorDlg : public CDialog {
public:
  // Runs the dialog and returns its end code. The outputs are written only when a row was chosen;
  // `market` may be null.
  int Search(CString& name, CString& code, CString* market = nullptr);

protected:
  struct Kind {
    unsigned templateId;
    unsigned columnTitle; // an entry of the string table
    InfoType table;
  };
  // The first input that names a row selects it initially, in the row's own region.
  IndicatorDlg(const Kind& kind, const CWnd& parent, IndicatorInputs inputs);

  bool OnInitDialog() override;
  void OnOK() override;
  void OnCommand(int id, WindowEvent event) override;
  void OnNotify(int id, const WindowListNotice& notice) override;

private:
  void PrepareList();
  int StartRegion(int input) const;
  void FillCombo(int id, unsigned allEntry, const CStringArray& texts, int chosen);
  void FillList();
  int InputRow() const;
  void SelectRow(int row);

  Kind kind_;
  IndicatorInputs inputs_;
  IndicatorTable table_;
  std::optional<IndicatorTexts> chosen_;
};

} // namespace tq
