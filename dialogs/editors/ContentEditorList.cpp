// The content editor's list: rows, headings, and the symbols that it is opened with.
#include <algorithm>
#include <cctype>

#include "dialogs/DialogMessages.h"
#include "dialogs/editors/ContentEdit.h"
#include "dialogs/editors/ListBoxes.h"
#include "idlist/RecordIndex.h"
#include "platform/CodePage.h"
#include "platform/FieldText.h"
#include "platform/Text.h"
#include "platform/framework/window/CComboBox.h"

namespace tq {

namespace {

// Double-byte characters and, of the single-byte ones, letters and digits.
bool IsHeadingText(std::string_view text) {
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end; at = NextChar(at, end)) {
    const auto byte = static_cast<unsigned char>(*at);
    if (CharLength(at, end) == 1 && byte < 0x80 &&
        (std::ispunct(byte) != 0 || std::isspace(byte) != 0))
      return false;
  }
  return true;
}

// At most five of them with their names, for a message.
CString DuplicatesText(const std::vector<CString>& ids) {
  constexpr std::size_t kMostShown = 5;
  CString text;
  for (std::size_t i = 0; i < std::min(ids.size(), kMostShown); ++i) {
    SymbolInfo record = {};
    text += ids[i];
    if (VLGetSymbolInfo(ids[i], &record) != 0)
      text += " " + ToCString(FieldText(record.name));
    text += ", ";
  }
  text = text.Left(text.GetLength() - 2);
  return ids.size() > kMostShown ? text + "..." : text;
}

} // namespace

void ContentEditor::OnItemLook(int, int row, WindowItemLook& look) {
  CListBoxContents::Look(contents_, row, look);
}

void ContentEditor::FillList() {
  ShowList({}, contents_.RowCount());
  CListBox(*this, kRows).EnsureVisible(0);
}

// All rows anew, drawn once.
void ContentEditor::ShowList(const std::vector<int>& selected, int caret) {
  CListBox list(*this, kRows);
  const CRedrawLock lock(list);
  list.ResetContent();
  for (int row = 0; row < contents_.RowCount(); ++row)
    list.AddString(contents_.RowText(row));
  list.AddString("");
  for (const int row : selected)
    list.SelectRow(row);
  list.SetCaretIndex(caret);
}

// Rows that were selected stay so, and so does the caret row.
void ContentEditor::ShowInserted(int row, int count) {
  CListBox list(*this, kRows);
  if (count == 1) {
    list.InsertString(row, contents_.RowText(row));
  } else if (count > 1) {
    std::vector<int> selected;
    for (int at = list.GetNextSelected(-1); at >= 0; at = list.GetNextSelected(at))
      selected.push_back(at < row ? at : at + count);
    const int caret = list.GetCaretIndex();
    ShowList(selected, caret < row ? caret : caret + count);
  }
  if (count > 0)
    list.EnsureVisible(row);
  UpdateButtons();
}

std::vector<int> ContentEditor::SelectedRows() const {
  const CListBox list(*this, kRows);
  std::vector<int> rows;
  for (int row = list.GetNextSelected(-1); row >= 0 && row < contents_.RowCount();
       row = list.GetNextSelected(row))
    rows.push_back(row);
  return rows;
}

int ContentEditor::InsertPlace() const {
  const int row = CListBox(*this, kRows).GetCurSel();
  return row < 0 ? contents_.RowCount() : row;
}

void ContentEditor::UpdateButtons() {
  const std::vector<int> rows = SelectedRows();
  const bool any = !rows.empty();
  CWnd(*this, kUp).EnableWindow(any && rows.front() > 0);
  CWnd(*this, kDown).EnableWindow(any && rows.back() < contents_.RowCount() - 1);
  CWnd(*this, kRemove).EnableWindow(any);
  CWnd(*this, kAddAll)
      .EnableWindow(MarketChoice::IsGroup(CComboBox(*this, kMarket).GetCurSel(),
                                          CComboBox(*this, kGroup).GetCurSel()));
}

// The row in the place of the first one is selected then, so that the key may be pressed again.
void ContentEditor::RemoveSelected() {
  const std::vector<int> rows = SelectedRows();
  if (rows.empty())
    return;
  const Edit edit(*this);
  contents_.Remove(rows);
  CListBox list(*this, kRows);
  if (rows.size() == 1)
    list.DeleteString(rows.front());
  else
    ShowList({}, rows.front());
  list.SetCurSel(rows.front());
  UpdateButtons();
}

void ContentEditor::MoveSelected(bool up) {
  const Edit edit(*this);
  std::vector<int> rows = SelectedRows();
  if (!contents_.Move(rows, up))
    return;
  const int step = up ? -1 : 1;
  CListBox list(*this, kRows);
  const CRedrawLock lock(list);
  for (const int row : rows) {
    list.SelectRow(row, false);
    for (const int shown : {row, row + step})
      list.SetItemText(shown, contents_.RowText(shown));
  }
  for (int& row : rows)
    list.SelectRow(row += step);
  list.SetCaretIndex(up ? rows.front() : rows.back());
  UpdateButtons();
}

void ContentEditor::SortList() {
  const Edit edit(*this);
  contents_.Sort();
  FillList();
  UpdateButtons();
}

// A heading that is selected gets the new text. Otherwise there is one more: in front of the
// selected row, or at the end, where it is selected so that the next one can be seen to follow it.
void ContentEditor::ApplyHeading() {
  CEdit field(*this, kHeading);
  const CString text = field.GetText();
  if (text.IsEmpty())
    return;
  if (!IsHeadingText(ViewOf(text))) {
    Refuse(kHeading, kMessageBadHeading);
    return;
  }
  const CString entry = HeadingEntry(text);
  if (entry.IsEmpty()) {
    Refuse(kHeading, kMessageNoRecord);
    return;
  }
  const Edit edit(*this);
  CListBox list(*this, kRows);
  const int row = InsertPlace();
  if (row < contents_.RowCount() && contents_.IsHeading(row)) {
    contents_.SetHeading(row, entry);
    list.SetItemText(row, contents_.RowText(row));
  } else {
    const bool atEnd = row == contents_.RowCount();
    contents_.InsertHeading(row, entry);
    ShowInserted(row, 1);
    if (atEnd)
      list.SetCurSel(row);
  }
  field.SetText("");
  UpdateButtons();
}

void ContentEditor::EditHeading(int row) {
  CEdit field(*this, kHeading);
  if (row < 0 || row >= contents_.RowCount() || !contents_.IsHeading(row) || !field.IsWindow())
    return;
  CListBox(*this, kRows).SetCurSel(row);
  UpdateButtons();
  field.SetText(contents_.RowText(row));
  field.SetFocus();
}

void ContentEditor::EnterSymbols() {
  if (task_.symbols.IsEmpty())
    return;
  ForEachPiece(ViewOf(task_.symbols), [this](int, std::string_view id) {
    if (contents_.Holds(id))
      duplicates_.push_back(ToCString(Trimmed(id)));
  });
  ServiceArray<SymbolInfo> found("VLGetSymbolInfos");
  if (VLGetSymbolInfos(task_.symbols, found.List(), found.Count()) != 0)
    contents_.Insert(contents_.RowCount(), found.Records());
  contents_.ForgetSteps();
}

void ContentEditor::TellDuplicates() {
  ShowMessageText(FormattedText(kMessageDuplicates, DuplicatesText(duplicates_)));
  const std::vector<int> rows = contents_.RowsOf(duplicates_);
  if (rows.empty())
    return;
  CListBox list(*this, kRows);
  list.SetCurSel(rows.front());
  for (const int row : rows)
    list.SelectRow(row);
  UpdateButtons();
}

} // namespace tq
