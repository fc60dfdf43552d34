// What the terminal's dialogs have in common.
#include <tqUI.h>

#include <algorithm>
#include <vector>

namespace {

// The dialogs that run, from the outermost to the innermost.
std::vector<const CSingletonDlg*>& Running() {
  static std::vector<const CSingletonDlg*> running;
  return running;
}

} // namespace

CSingletonDlg::CSingletonDlg(const char* key, unsigned templateId, const CWnd* parent, int)
    : CDialog(templateId, parent), key_(key),
      opener_(parent == nullptr ? nullptr : parent->GetSafeHwnd()) {}

CSingletonDlg::~CSingletonDlg() {}

int CSingletonDlg::DoModal() {
  const auto found =
      std::find_if(Running().rbegin(), Running().rend(),
                   [this](const CSingletonDlg* dialog) { return dialog->key_ == key_; });
  if (found != Running().rend() && (*found)->GetSafeHwnd() != opener_)
    return Failed; // one of its family runs already
  Running().push_back(this);
  const int code = CDialog::DoModal();
  Running().pop_back();
  return code;
}

CTQIconButton::CTQIconButton(const CWnd& dialog, int id, ButtonIcon icon) : CButton(dialog, id) {
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
