// CFinIndiSearchDlg: the search for an economic indicator.
#pragma once

#include "dialogs/IndicatorDlg.h"

class CFinIndiSearchDlg : public tq::IndicatorDlg {
public:
  CFinIndiSearchDlg(const CWnd& parent, const CString& input);
};
