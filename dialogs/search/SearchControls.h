// The controls that the search for a symbol and the content editor have in common: the boxes of
// markets and groups, and the table of what was found.
#pragma once

#include <vector>

#include "dialogs/search/SymbolRows.h"
#include "platform/framework/window/CComboBox.h"

namespace tq {

// Puts these entries into the box in the place of those that it has, and chooses one.
void FillBox(CComboBox box, const std::vector<CString>& entries, int chosen);

// A virtual table with a column of ids and one of names: it asks for what it shows, so that a
// million rows are there at once.
class ResultTable {
public:
  // The table `id` of the dialog, which stands now. The first column is `codeWidth` dialog units
  // wide, the other one as wide as is left.
  void Open(const CWnd& dialog, int id, int codeWidth);
  // In the place of what is shown.
  void Show(SymbolRows rows);
  const SymbolRows& Rows() const { return rows_; }
  // What the dialog answers when it is asked for a cell.
  CString CellText(int row, int column) const;

private:
  CWnd dialog_;
  int id_ = 0;
  SymbolRows rows_;
};

} // namespace tq
