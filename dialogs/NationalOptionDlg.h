// CNationalOptionDlg: the search for an international future.
#pragma once

#include "dialogs/IndicatorDlg.h"

class CNationalOptionDlg : public tq::IndicatorDlg {
public:
  CNationalOptionDlg(const CWnd& parent, const CString& input);
};
