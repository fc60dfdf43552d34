#include "platform/headless/user/EditText.h"

#include "platform/CodePage.h"

namespace tq::headless {

namespace {

bool IsReadOnly(const Control& edit) {
  return (edit.style & TemplateReadOnly) != 0;
}

int SelectedBytes(const Control& edit) {
  return edit.selectionEnd - edit.selectionStart;
}

void PutCaretAt(Control& edit, int byte) {
  edit.selectionStart = byte;
  edit.selectionEnd = byte;
}

// Replaces the bytes from `from` to `to` by `text`.
void Exchange(Control& edit, int from, int to, const CString& text) {
  edit.text = edit.text.Left(from) + text + edit.text.Mid(to);
  PutCaretAt(edit, from + text.GetLength());
}

bool TakeBack(Control& edit) {
  int from = edit.selectionStart;
  if (SelectedBytes(edit) == 0) {
    const char* const text = edit.text.GetString();
    from = static_cast<int>(PreviousChar(text, text + from) - text);
  }
  if (from == edit.selectionEnd)
    return false;
  Exchange(edit, from, edit.selectionEnd, CString());
  return true;
}

} // namespace

bool TypeCharacter(Control& edit, const CString& character) {
  if (IsReadOnly(edit))
    return false;
  if (character == "\b")
    return TakeBack(edit);
  const int length = edit.text.GetLength() - SelectedBytes(edit) + character.GetLength();
  if (edit.limit != 0 && length > edit.limit)
    return false;
  Exchange(edit, edit.selectionStart, edit.selectionEnd, character);
  return true;
}

bool DeleteForward(Control& edit) {
  int to = edit.selectionEnd;
  if (SelectedBytes(edit) == 0 && to < edit.text.GetLength()) {
    const char* const text = edit.text.GetString();
    to = static_cast<int>(NextChar(text + to, text + edit.text.GetLength()) - text);
  }
  if (IsReadOnly(edit) || to == edit.selectionStart)
    return false;
  Exchange(edit, edit.selectionStart, to, CString());
  return true;
}

void PutCaret(Control& edit, WindowKey key, bool selects) {
  if (key != WindowKey::Home && key != WindowKey::End)
    return;
  if (!selects)
    PutCaretAt(edit, key == WindowKey::Home ? 0 : edit.text.GetLength());
  else if (key == WindowKey::Home)
    edit.selectionStart = 0;
  else
    edit.selectionEnd = edit.text.GetLength();
}

} // namespace tq::headless
