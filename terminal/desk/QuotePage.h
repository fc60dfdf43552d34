// The rows of a quote page: a list's symbols under its headings, with what the symbol tables know
// of them. It holds ids alone, and asks for the rest when a row is drawn.
#pragma once

#include <memory>

#include "terminal/desk/Places.h"

namespace desk {

class QuotePage {
public:
  enum Column : int { Code, Name, Exchange, Price, ColumnCount };

  // The manager outlives it.
  explicit QuotePage(CTQSymbolListMgr& manager) : manager_(manager) {}

  // Takes what the place has now. Later changes show when it is called again.
  void Show(const Place& place);

  int RowCount() const;
  CString Cell(int row, int column) const;
  // The full id of the row's symbol; empty for a heading, and for a row that is not there.
  CString SymbolAt(int row) const;
  // The first row of a symbol, or -1.
  int RowOf(const CString& symbol) const;

private:
  void ShowAllSymbols();
  CString EntryAt(int row) const;
  CString SymbolCell(const CString& symbol, int column) const;
  CString Field(int field, const CString& symbol) const;
  CString PriceOf(const CString& symbol) const;

  CTQSymbolListMgr& manager_;
  std::vector<CString> entries_; // ids, and headings with their ":"
  // Of all symbols the manager's own buffer in the place of that: nothing is copied, and it lives
  // for as long as it is held here.
  std::shared_ptr<const SymbolInfo[]> all_;
  int allCount_ = 0;
};

} // namespace desk
