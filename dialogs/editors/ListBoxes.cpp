#include "dialogs/editors/ListBoxes.h"

#include "dialogs/editors/ContentEditor.h"

void CListBoxMain::Fill(const tq::WorkingCopy& lists) {
  const CRedrawLock lock(*this);
  ResetContent();
  for (int i = 0; i < lists.Count(); ++i)
    AddString(tq::DisplayName(lists.At(i)));
}

void CListBoxContents::Fill(const tq::ListContents& contents) {
  const CRedrawLock lock(*this);
  ResetContent();
  for (int row = 0; row < contents.RowCount(); ++row)
    AddString(contents.RowText(row));
}

CListBoxEdit::CListBoxEdit(const CWnd& dialog, int id) : CCharEdit(dialog, id, tq::kNameBytes) {}

bool CListBoxEdit::Open(const CListBox& lists, int row, const char* text) {
  if (!PlaceOverRow(lists, row))
    return false;
  SetText(text);
  SetFocus();
  return true;
}
