#include "dialogs/NationalOptionDlg.h"

CNationalOptionDlg::CNationalOptionDlg(const CWnd& parent, const CString& input)
    : IndicatorDlg({1009, 48032, InfoInternationalFutures}, parent, {input}) {}
