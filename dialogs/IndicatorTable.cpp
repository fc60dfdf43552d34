#include "dialogs/IndicatorTable.h"

#include "platform/framework/CMap.h"
#include "platform/services/tqStock.h"

namespace tq {
namespace {

// Terminals compare with this text: do not translate it.
constexpr char kNoName[] = "Undefined";

CString ColumnOf(const CStringArray& columns, int column) {
  return column < columns.GetSize() ? columns[column] : CString();
}

// Numbers each new text consecutively.
class Numbering {
public:
  explicit Numbering(CStringArray& texts) : texts_(texts) {}

  int NumberOf(const CString& text) {
    if (text.IsEmpty())
      return IndicatorTable::kAll;
    int& number = numbers_[text];
    if (number == 0)
      number = static_cast<int>(texts_.Add(text)) + 1;
    return number;
  }

private:
  CStringArray& texts_;
  CMap<CString, const char*, int, int> numbers_;
};

} // namespace

IndicatorTable::IndicatorTable(const CPtrArray& rows) : rows_(static_cast<size_t>(rows.GetSize())) {
  Numbering regions(regions_);
  Numbering categories(categories_);
  for (int i = 0; i < rows.GetSize(); ++i) {
    Row& row = rows_[static_cast<size_t>(i)];
    if (rows[i] != nullptr)
      row.columns.Copy(*static_cast<const CStringArray*>(rows[i]));
    row.region = regions.NumberOf(ColumnOf(row.columns, InfoRegion));
    row.category = categories.NumberOf(ColumnOf(row.columns, InfoCategory));
  }
}

IndicatorTable IndicatorTable::Read(InfoType type) {
  // The rows are copied at once because the terminal may ask for another table while the search is
  // open.
  CPtrArray rows;
  return CStockKey::GetInfoArray(type, rows) != 0 ? IndicatorTable(rows) : IndicatorTable();
}

std::vector<int> IndicatorTable::RowsOf(int region, int category) const {
  std::vector<int> found;
  found.reserve(rows_.size());
  for (int i = 0; i < GetRowCount(); ++i) {
    const Row& row = rows_[static_cast<size_t>(i)];
    if ((region == kAll || row.region == region) && (category == kAll || row.category == category))
      found.push_back(i);
  }
  return found;
}

CString IndicatorTable::Column(int row, int column) const {
  return ColumnOf(rows_[static_cast<size_t>(row)].columns, column);
}

CString IndicatorTable::NameOrCode(int row) const {
  const CString name = Column(row, InfoName);
  return name.IsEmpty() ? Column(row, InfoCode) : name;
}

std::vector<CString> IndicatorTable::Titles(const std::vector<int>& rows) const {
  std::vector<CString> titles;
  titles.reserve(rows.size());
  CMap<CString, const char*, int, int> counts;
  for (const int row : rows) {
    titles.push_back(NameOrCode(row));
    ++counts[titles.back()];
  }
  for (size_t i = 0; i < rows.size(); ++i) {
    const int region = RegionOf(rows[i]);
    if (region != kAll && counts[titles[i]] > 1)
      titles[i] += "(" + regions_[region - kFirstRegion] + ")";
  }
  return titles;
}

int IndicatorTable::RegionOf(int row) const {
  return rows_[static_cast<size_t>(row)].region;
}

IndicatorTexts IndicatorTable::Texts(int row) const {
  const bool named = rows_[static_cast<size_t>(row)].columns.GetSize() > InfoName;
  return {named ? Column(row, InfoName) : CString(kNoName), Column(row, InfoCode),
          Column(row, InfoMarket)};
}

int IndicatorTable::Find(const char* text) const {
  if (text == nullptr || *text == '\0')
    return kNoRow;
  int named = kNoRow;
  for (int i = 0; i < GetRowCount(); ++i) {
    if (Column(i, InfoCode).CompareNoCase(text) == 0)
      return i;
    if (named == kNoRow && Column(i, InfoName).CompareNoCase(text) == 0)
      named = i;
  }
  return named;
}

} // namespace tq
