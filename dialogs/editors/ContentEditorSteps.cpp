// The content editor's steps: what was selected, and rows that change when one is taken.
#include <algorithm>

#include "dialogs/editors/ContentEditor.h"
#include "platform/framework/window/CListBox.h"

namespace tq {

RowSelection ContentEditor::Selection() const {
  const CListBox list(*this, kRows);
  RowSelection selection{{}, list.GetCaretIndex()};
  int row = -1;
  for (int left = list.GetSelCount(); left > 0; --left)
    AddPlace(selection.rows, row = list.GetNextSelected(row));
  return selection;
}

// The field of the name keeps what was typed. The others are emptied by what they do, and then the
// keys are meant for that.
bool ContentEditor::IsTyping(int id) const {
  return id == kName || ((id == kCode || id == kHeading) && !CEdit(*this, id).GetText().IsEmpty());
}

void ContentEditor::TakeStep(HistoryWay way) {
  const auto turned = way == HistoryWay::Undo ? contents_.Undo() : contents_.Redo();
  if (!turned)
    return;
  ShowTurned(*turned);
  UpdateButtons();
}

// A few rows are changed in their places, so that the list does not scroll.
void ContentEditor::ShowTurned(const ListContents::Turned& turned) {
  constexpr int kFew = 50;
  CListBox list(*this, kRows);
  const CRedrawLock lock(list);
  if (turned.before + turned.now > kFew) {
    ShowList({}, contents_.RowCount());
  } else {
    const int both = std::min(turned.before, turned.now);
    for (int row = turned.first; row < turned.first + both; ++row)
      list.SetItemText(row, contents_.RowText(row));
    for (int row = both; row < turned.before; ++row)
      list.DeleteString(turned.first + both);
    for (int row = both; row < turned.now; ++row)
      list.InsertString(turned.first + row, contents_.RowText(turned.first + row));
  }
  list.SelectRange(0, list.GetCount() - 1, false);
  for (const PlaceRun& run : turned.selected.rows)
    list.SelectRange(run.first, run.End() - 1);
  list.SetCaretIndex(turned.selected.caret);
}

} // namespace tq
