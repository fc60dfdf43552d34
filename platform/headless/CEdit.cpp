#include "platform/framework/window/CEdit.h"

#include <algorithm>

#include "platform/headless/HitTest.h"

using namespace tq::headless;

namespace {

Control* FindEdit(WindowHandle handle) {
  return FindControl(handle, tq::ControlKind::Edit);
}

} // namespace

void CEdit::SetLimitText(int bytes) {
  if (Control* const edit = FindEdit(handle_))
    edit->limit = std::max(0, bytes);
}

int CEdit::GetLimitText() const {
  const Control* const edit = FindEdit(handle_);
  return edit == nullptr ? 0 : edit->limit;
}

void CEdit::SelectAll() {
  if (Control* const edit = FindEdit(handle_)) {
    edit->selectionStart = 0;
    edit->selectionEnd = edit->text.GetLength();
  }
}

bool CEdit::IsAllSelected() const {
  const Control* const edit = FindEdit(handle_);
  return edit != nullptr && !edit->text.IsEmpty() && edit->selectionStart == 0 &&
         edit->selectionEnd == edit->text.GetLength();
}

void CEdit::SetReadOnly(bool readOnly) {
  if (Control* const edit = FindEdit(handle_)) {
    edit->style &= ~unsigned{tq::TemplateReadOnly};
    edit->style |= readOnly ? tq::TemplateReadOnly : tq::TemplatePlain;
  }
}

bool CEdit::IsReadOnly() const {
  const Control* const edit = FindEdit(handle_);
  return edit != nullptr && (edit->style & tq::TemplateReadOnly) != 0;
}

bool CEdit::PlaceOverRow(const CListBox& list, int row) {
  Control* const edit = FindEdit(handle_);
  Control* const box = FindControl(list.GetSafeHwnd(), tq::ControlKind::ListBox);
  if (edit == nullptr || box == nullptr || box->owner != edit->owner ||
      box->rows.At(row) == nullptr)
    return false;
  box->rows.Reveal(row);
  edit->place = PlaceOfRow(*box, row);
  edit->over = box;
  edit->overRow = row;
  ++edit->placings;
  edit->visible = true;
  return true;
}
