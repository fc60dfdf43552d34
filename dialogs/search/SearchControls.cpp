#include "dialogs/search/SearchControls.h"

#include <utility>

#include "idlist/RecordIndex.h"
#include "platform/FieldText.h"
#include "platform/LibraryString.h"
#include "platform/Text.h"
#include "platform/framework/window/CListCtrl.h"

namespace tq {

void FillBox(CComboBox box, const std::vector<CString>& entries, int chosen) {
  box.ResetContent();
  for (const CString& entry : entries)
    box.AddString(entry);
  box.SetCurSel(chosen);
}

void ResultTable::Open(const CWnd& dialog, int id, int codeWidth) {
  dialog_ = dialog;
  id_ = id;
  CListCtrl table(dialog_, id_);
  table.SetStyles(CListCtrl::FullRowSelect);
  table.AddColumn(LibraryString(kStringCode), codeWidth);
  table.AddColumn(LibraryString(kStringName), 0);
}

void ResultTable::Show(SymbolRows rows) {
  rows_ = std::move(rows);
  CListCtrl(dialog_, id_).SetVirtualRows(rows_.Count());
}

CString ResultTable::CellText(int row, int column) const {
  if (!rows_.Has(row))
    return {};
  const SymbolInfo& symbol = rows_.At(row);
  return ToCString(column == 0 ? IdOf(symbol) : FieldText(symbol.name));
}

} // namespace tq
