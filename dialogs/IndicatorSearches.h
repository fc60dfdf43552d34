// The three searches for indicators.
#pragma once

#include "dialogs/IndicatorDlg.h"

// The search for an economic indicator.
class CFinIndiSearchDlg : public tq::IndicatorDlg {
public:
  CFinIndiSearchDlg(const CWnd& parent, const CString& input);
};

// The search for an international commodity, which the terminal keeps in several tables. It has no
// choice of regions.
class CNationalCommodityDlg : public tq::IndicatorDlg {
public:
  CNationalCommodityDlg(const CWnd& parent, InfoType table, tq::IndicatorInputs inputs);
};

// The search for an international future.
class CNationalOptionDlg : public tq::IndicatorDlg {
public:
  CNationalOptionDlg(const CWnd& parent, const CString& input);
};
