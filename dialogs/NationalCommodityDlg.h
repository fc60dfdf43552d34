// CNationalCommodityDlg: the search for an international commodity, which the terminal keeps in
// several tables. It has no choice of regions.
#pragma once

#include "dialogs/IndicatorDlg.h"

class CNationalCommodityDlg : public tq::IndicatorDlg {
public:
  CNationalCommodityDlg(const CWnd& parent, InfoType table, tq::IndicatorInputs inputs);
};
