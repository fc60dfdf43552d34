// The rows of one of the stock library's info tables, as the searches for indicators see them: what
// there is to choose from, which rows a choice leaves, and the texts of a row. Everything about
// these searches that needs no window.
//
// Columns are those of CStockKey::GetInfoArray (InfoColumn). A row may have any number of them; a
// column that it lacks is an empty text, unless said.
#pragma once

#include <vector>

#include "platform/framework/CPtrArray.h"
#include "platform/framework/CStringArray.h"
#include "platform/services/tqStockFields.h"

namespace tq {

// What a row gives to whoever asked for the search.
struct IndicatorTexts {
  CString name; // "Undefined" when the row has no such column
  CString code;
  CString market; // what the search for futures gives as its third text
};

class IndicatorTable {
public:
  IndicatorTable() = default;
  // Of rows as GetInfoArray hands them out, which are copied; null rows have no columns.
  explicit IndicatorTable(const CPtrArray& rows);
  // A table that the stock library does not have, or fails to read, is empty.
  static IndicatorTable Read(InfoType type);

  // The number that stands for all regions, or all categories. The others count from 1.
  static constexpr int kAll = 0;
  static constexpr int kFirstRegion = 1;
  // In place of a row's number where there is none.
  static constexpr int kNoRow = -1;
  // Each text that a row has, once, in the order in which they first come: number 1 is the first of
  // them.
  const CStringArray& Regions() const { return regions_; }
  const CStringArray& Categories() const { return categories_; }
  // The rows of a region and a category, in the order of the table. A row that lacks one of the
  // two, or has it empty, is only in all of them. Of a number that is not there, there are none.
  std::vector<int> RowsOf(int region, int category) const;
  // What the list shows for these rows, which are there: their names, or the code of a row without
  // one. Where two of them would be the same, the row's region stands behind it in brackets, if it
  // has one.
  std::vector<CString> Titles(const std::vector<int>& rows) const;

  int GetRowCount() const { return static_cast<int>(rows_.size()); }
  // These take the number of a row, which is there.
  IndicatorTexts Texts(int row) const;
  int RegionOf(int row) const; // its number; kAll for a row without one

  // The first row whose code is the text, or else the first with that name; letter case is ignored.
  // kNoRow when there is none, and for an empty text.
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
