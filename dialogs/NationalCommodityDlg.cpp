#include "dialogs/NationalCommodityDlg.h"

#include <utility>

CNationalCommodityDlg::CNationalCommodityDlg(const CWnd& parent, InfoType table,
                                             tq::IndicatorInputs inputs)
    : IndicatorDlg({1008, 48031, table}, parent, std::move(inputs)) {}
