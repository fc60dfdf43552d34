#include "dialogs/FinIndiSearchDlg.h"

CFinIndiSearchDlg::CFinIndiSearchDlg(const CWnd& parent, const CString& input)
    : IndicatorDlg({1007, 48027, InfoEconomicIndicators}, parent, {input}) {}
