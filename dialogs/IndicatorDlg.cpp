#include "dialogs/IndicatorDlg.h"

#include <algorithm>
#include <utility>

#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/ResourceContext.h"

namespace tq {
namespace {

constexpr int kRegions = 761; // absent in the search for commodities, which shows all regions
constexpr int kCategories = 762;
constexpr int kList = 781;

// The first entries of the two boxes.
constexpr unsigned kAllRegions = 48201;
constexpr unsigned kAllCategories = 48202;

constexpr unsigned kHoverMilliseconds = 10;

// The number of the chosen region or category.
int ChoiceOf(const CComboBox& combo) {
  return std::max(combo.GetCurSel(), IndicatorTable::kAll);
}

} // namespace

IndicatorDlg::IndicatorDlg(const Kind& kind, const CWnd& parent, IndicatorInputs inputs)
    : CDialog(kind.templateId, &parent), kind_(kind), inputs_(std::move(inputs)) {}

int IndicatorDlg::Search(CString& name, CString& code, CString* market) {
  chosen_.reset();
  const int result = DoModal();
  if (result != Accepted || !chosen_)
    return result;
  name = chosen_->name;
  code = chosen_->code;
  if (market != nullptr)
    *market = chosen_->market;
  return result;
}

bool IndicatorDlg::OnInitDialog() {
  table_ = IndicatorTable::Read(kind_.table);
  const int input = InputRow();
  FillCombo(kRegions, kAllRegions, table_.Regions(), StartRegion(input));
  FillCombo(kCategories, kAllCategories, table_.Categories(), IndicatorTable::kAll);
  PrepareList();
  FillList();
  SelectRow(input);
  return true;
}

// Tables begin with the region that users ask for most. A row that the terminal asks for must be
// visible.
int IndicatorDlg::StartRegion(int input) const {
  if (input != IndicatorTable::kNoRow)
    return table_.RegionOf(input);
  return table_.Regions().IsEmpty() ? IndicatorTable::kAll : IndicatorTable::kFirstRegion;
}

void IndicatorDlg::FillCombo(int id, unsigned allEntry, const CStringArray& texts, int chosen) {
  CComboBox combo(*this, id);
  combo.AddString(ResourceContext::Text(allEntry));
  for (const CString& text : texts)
    combo.AddString(text);
  combo.SetCurSel(chosen);
}

void IndicatorDlg::PrepareList() {
  CListCtrl list(*this, kList);
  list.SetStyles(CListCtrl::FullRowSelect | CListCtrl::HoverSelect | CListCtrl::GridLines);
  list.SetHoverTime(kHoverMilliseconds);
  list.AddColumn(ResourceContext::Text(kind_.columnTitle), 0);
}

void IndicatorDlg::FillList() {
  const int region = ChoiceOf(CComboBox(*this, kRegions));
  const int category = ChoiceOf(CComboBox(*this, kCategories));
  CListCtrl list(*this, kList);
  const CRedrawLock lock(list);
  list.DeleteAllRows();
  const std::vector<int> rows = table_.RowsOf(region, category);
  const std::vector<CString> titles = table_.Titles(rows);
  for (size_t i = 0; i < rows.size(); ++i)
    list.SetItemData(list.AddRow(titles[i]), rows[i]);
}

int IndicatorDlg::InputRow() const {
  for (const CString& input : inputs_) {
    const int row = table_.Find(input);
    if (row != IndicatorTable::kNoRow)
      return row;
  }
  return IndicatorTable::kNoRow;
}

void IndicatorDlg::SelectRow(int row) {
  CListCtrl list(*this, kList);
  const int count = row == IndicatorTable::kNoRow ? 0 : list.GetRowCount();
  for (int i = 0; i < count; ++i) {
    if (list.GetItemData(i) == row) {
      list.SetCurSel(i);
      return;
    }
  }
}

// Enter chooses nothing: closing with OK would look like a double-click.
void IndicatorDlg::OnOK() {}

void IndicatorDlg::OnCommand(int id, WindowEvent event) {
  if (event == WindowEvent::SelectionChanged && (id == kRegions || id == kCategories))
    FillList();
}

void IndicatorDlg::OnNotify(int id, const WindowListNotice& notice) {
  const CListCtrl list(*this, kList);
  if (id != kList || notice.kind != WindowListNotice::Kind::DoubleClicked || notice.row < 0 ||
      list.GetSelectedCount() > 1)
    return;
  chosen_ = table_.Texts(static_cast<int>(list.GetItemData(notice.row)));
  EndDialog(Accepted);
}

} // namespace tq
