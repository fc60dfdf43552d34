#include "dialogs/IndicatorSearches.h"

#include <utility>

CFinIndiSearchDlg::CFinIndiSearchDlg(const CWnd& parent, const CString& input)
    : IndicatorDlg({1007, 48027, InfoEconomicIndicators}, parent, {input}) {}

CNationalCommodityDlg::CNationalCommodityDlg(const CWnd& parent, InfoType table,
                                             tq::IndicatorInputs inputs)
    : IndicatorDlg({1008, 48031, table}, parent, std::move(inputs)) {}

CNationalOptionDlg::CNationalOptionDlg(const CWnd& parent, const CString& input)
    : IndicatorDlg({1009, 48032, InfoInternationalFutures}, parent, {input}) {}
