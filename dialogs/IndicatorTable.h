// The rows of an info table of the stock library, for the searches for indicators: the choices, the
// rows that match a choice, and the texts of a row. All that these searches need besides windows.
//
// The columns are those of CStockKey::GetInfoArray (InfoColumn). A row may have any number of them;
// a missing column is an empty text unless stated otherwise.
#pragma once

#include <vector>

#include "platform/framework/CPtrArray.h"
#include "platform/framework/CStringArray.h"
#include "platform/services/tqStockFields.h"

namespace tq {

// The texts of a chosen row.
struct IndicatorTexts {
  CString name; // "Undefined" when the row has no name column
  CString code;
  CString market; // the third text of the search for futures
};

class IndicatorTable {
public:
  IndicatorTable() = default;
  // Copies rows as GetInfoArray hands them out; null rows have no columns.
  explicit IndicatorTable(const CPtrArray& rows);
  // Empty for a table that the stock library does not have or fails to read.
  static IndicatorTable Read(InfoType type);

  // The number for all regions or all categories. The others count from 1.
  static constexpr int kAll = 0;
  static constexpr int kFirstRegion = 1;
  // The row number when there is none.
  static constexpr int kNoRow = -1;
  // The distinct texts of the rows in the order of their first occurrence, numbered from 1.
  const CStringArray& Regions() const { return regions_; }
  const CStringArray& Categories() const { return categories_; }
  // The rows of a region and a category, in the order of the table. A row without a region or a
  // category appears only under all of them. An unknown number has no rows.
  std::vector<int> RowsOf(int region, int category) const;
  // The texts that the list shows for these rows, which must exist: the name, or the code of a row
  // without a name. Equal texts get the region of their row, if any, in brackets.
  std::vector<CString> Titles(const std::vector<int>& rows) const;

  int GetRowCount() const { return static_cast<int>(rows_.size()); }
  // `row` must exist.
  IndicatorTexts Texts(int row) const;
  int RegionOf(int row) const; // its number; kAll for a row without one

  // The first row with that code, or else the first with that name, ignoring letter case. kNoRow
  // when there is none, and for an empty text.
  int Find(const char* text) const;

private:
  struct Row {
    int region = kAll;
    int category = kAll;
    CStringArray columns;
  };

  CString Column(int row, int column) const;
  CString NameOrCode(int row) const;

  std::vector<Row> rows_;
  CStringArray regions_;
  CStringArray categories_;
};

} // namespace tq
