// The search for an indicator: a list of what the stock library knows, narrowed down by region and
// category. It opens on the first region of the table. A double-click on a row chooses it and
// closes the dialog; whichever other way it closes, nothing was chosen. Three dialogs derive from
// this one. They differ in template, title of the list and table; the template for commodities has
// no box of regions, and shows those of all.
#pragma once

#include <optional>

#include "dialogs/IndicatorTable.h"
#include "platform/framework/CDialog.h"

namespace tq {

// Texts that the dialog was opened with: codes or names.
using IndicatorInputs = std::vector<CString>;

class IndicatorDlg : public CDialog {
public:
  // Runs the dialog and returns its end code. The texts of the row are written when one was chosen,
  // and not touched otherwise; a null `market` is not wanted.
  int Search(CString& name, CString& code, CString* market = nullptr);

protected:
  struct Kind {
    unsigned templateId;
    unsigned columnTitle; // an entry of the string table
    InfoType table;
  };
  // The row that the first of the inputs means is selected at the start, in its own region; when
  // there is none, that of the next, and so on.
  IndicatorDlg(const Kind& kind, const CWnd& parent, IndicatorInputs inputs);

  bool OnInitDialog() override;
  void OnOK() override;
  void OnCommand(int id, ControlEvent event) override;
  void OnNotify(int id, const ListNotice& notice) override;

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
