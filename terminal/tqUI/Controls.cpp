// tqUI: the terminal's controls, which are controls of the window layer with defaults.
#include "platform/services/tqUI.h"

CTQIconButton::CTQIconButton(const CWnd& dialog, int id, WindowButtonIcon icon)
    : CButton(dialog, id) {
  SetIcon(icon);
}

CTQToolTip::CTQToolTip(CDialog& dialog) : dialog_(dialog) {}

int CTQToolTip::AddTool(int controlId, const char* text) {
  if (CWnd(dialog_, controlId).GetSafeHwnd() == nullptr)
    return 0;
  dialog_.SetToolTip(controlId, text);
  return 1;
}

CCharEdit::CCharEdit(const CWnd& dialog, int id, int bytes) : CEdit(dialog, id) {
  SetLimitText(bytes);
}

CString CCharEdit::GetInput() const {
  CString text = GetText();
  text.TrimLeft();
  text.TrimRight();
  return text;
}
