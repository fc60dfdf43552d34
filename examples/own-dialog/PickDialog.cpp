#include "PickDialog.h"

#include <CComboBox.h>
#include <CListCtrl.h>

#include "Resources.h"

namespace {

class PickDialog : public CDialog {
public:
  PickDialog(const CWnd* parent, const ListModel& model) : CDialog(2001, parent), model_(model) {}
  int List() const { return list_; }
  int Picked() const { return picked_; } // a row of that list

protected:
  bool OnInitDialog() override {
    CListCtrl rows(*this, 781);
    rows.SetStyles(CListCtrl::FullRowSelect | CListCtrl::GridLines);
    rows.AddColumn(tq::ResourceContext::Text(kSymbolColumn), 0);
    CComboBox lists(*this, 761);
    for (int list = 0; list < model_.ListCount(); ++list)
      lists.AddString(model_.ListName(list));
    lists.SetCurSel(0);
    ShowRows();
    return true; // the focus goes to the first control
  }

  void OnCommand(int id, WindowEvent event) override {
    if (id == 761 && event == WindowEvent::SelectionChanged)
      ShowRows();
  }

  void OnNotify(int, const WindowListNotice& notice) override {
    if (notice.kind != WindowListNotice::Kind::DoubleClicked || notice.row == -1)
      return;
    picked_ = static_cast<int>(CListCtrl(*this, 781).GetItemData(notice.row));
    EndDialog(Accepted);
  }

private:
  void ShowRows() {
    CListCtrl rows(*this, 781);
    const CRedrawLock lock(rows);
    rows.DeleteAllRows();
    list_ = CComboBox(*this, 761).GetCurSel();
    for (int row = 0; row < model_.RowCount(list_); ++row)
      if (const SymbolInfo symbol = model_.Row(list_, row); symbol.id[0] != ':') // no heading
        rows.SetItemData(rows.AddRow(symbol.id), row);
  }

  const ListModel& model_;
  int list_ = 0;
  int picked_ = -1;
};

} // namespace

CString ListModel::IdOf(int list) const {
  TQSymbolListInfo info = {};
  manager_.GetTQSymbolListInfo(list, &info, 1);
  return info.ID;
}

CString ListModel::ListName(int list) const {
  CString name;
  manager_.GetSymbolListName(IdOf(list), name, 1);
  return name;
}

int ListModel::RowCount(int list) const {
  return manager_.GetTQSymbolCount(IdOf(list), 1);
}

SymbolInfo ListModel::Row(int list, int row) const {
  SymbolInfo symbol = {};
  manager_.GetTQSymbolInfo(IdOf(list), row, &symbol, 1);
  return symbol;
}

int PickSymbol(CTQSymbolListMgr& manager, WindowHandle parent, SymbolInfo& picked) {
  const tq::ResourceContext context(OwnResources()); // back to the caller's on every return
  const CWnd window(parent);
  const ListModel model(manager);
  PickDialog dialog(&window, model);
  const int code = dialog.DoModal();
  if (code == CDialog::Accepted)
    picked = model.Row(dialog.List(), dialog.Picked());
  return code;
}
