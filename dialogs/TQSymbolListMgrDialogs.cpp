// The operations that open dialogs. Each one activates the library's resources while it runs, and
// wraps the terminal's window handle.
#include "dialogs/IndicatorSearches.h"
#include "dialogs/resources/DialogTable.h"
#include "manager/TQSymbolListMgr.h"

int CTQSymbolListMgr::m_bDoModal = 0;

int CTQSymbolListMgr::EndDomodal(WindowHandle dialog, int result) noexcept {
  if (m_bDoModal == 0)
    return 0;
  CDialog* const running = CDialog::FromHandle(dialog);
  if (running == nullptr)
    return 0;
  running->EndDialog(result);
  return 1;
}

int CTQSymbolListMgr::DoSearchFinIndi(WindowHandle parent, const CString& input, CString& name,
                                      CString& code) noexcept {
  const tq::ResourceContext context(tq::LibraryResources());
  return CFinIndiSearchDlg(CWnd(parent), input).Search(name, code);
}

int CTQSymbolListMgr::DoSearchCommIndi(WindowHandle parent, const CString& input, CString& name,
                                       CString& code, const CString& input2, const CString& input3,
                                       InfoType type) noexcept {
  const tq::ResourceContext context(tq::LibraryResources());
  return CNationalCommodityDlg(CWnd(parent), type, {input, input2, input3}).Search(name, code);
}

int CTQSymbolListMgr::DoSearchOptionIndi(WindowHandle parent, const CString& input, CString& name,
                                         CString& code, CString& market) noexcept {
  const tq::ResourceContext context(tq::LibraryResources());
  return CNationalOptionDlg(CWnd(parent), input).Search(name, code, &market);
}
