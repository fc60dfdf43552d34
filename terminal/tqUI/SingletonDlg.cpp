// tqUI: dialogs of which one per key runs at a time.
#include <algorithm>
#include <vector>

#include "platform/services/tqUI.h"
#include "terminal/control/Script.h"
#include "terminal/tqUI/WindowFront.h"

using namespace standin;

namespace {

struct Run {
  const CString& key;
  const CDialog& dialog;
};

// From the outermost to the innermost.
std::vector<Run>& Runs() {
  static std::vector<Run> runs;
  return runs;
}

// Null when no dialog of the key runs.
const CDialog* InnermostOf(const CString& key) {
  const auto found = std::find_if(Runs().rbegin(), Runs().rend(),
                                  [&key](const Run& run) { return run.key.Compare(key) == 0; });
  return found == Runs().rend() ? nullptr : &found->dialog;
}

} // namespace

CSingletonDlg::CSingletonDlg(const char* key, unsigned templateId, const CWnd* parent, int)
    : CDialog(templateId, parent), key_(key),
      opener_(parent == nullptr ? nullptr : parent->GetSafeHwnd()) {}

CSingletonDlg::~CSingletonDlg() = default;

int CSingletonDlg::DoModal() {
  if (!Begin("CSingletonDlg::DoModal", key_.GetString()))
    return Failed;
  const CDialog* const innermost = InnermostOf(key_);
  if (innermost != nullptr && innermost->GetSafeHwnd() != opener_) {
    Record("CSingletonDlg::BringToFront", key_.GetString());
    BringToFront(innermost->GetSafeHwnd());
    return Failed;
  }
  Runs().push_back({key_, *this});
  const int code = CDialog::DoModal();
  Runs().pop_back();
  return code;
}
