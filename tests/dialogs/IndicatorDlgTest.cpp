// The searches for indicators when their windows cannot be created.
#include <gtest/gtest.h>

#include "dialogs/IndicatorSearches.h"
#include "platform/framework/window/ResourceContext.h"
#include "tests/support/StandInTest.h"

namespace {

class IndicatorDlg : public StandInTest {
protected:
  void ExpectFailure(tq::IndicatorDlg& dialog) {
    const tq::ResourceContext context{tq::Resources()}; // has no templates
    CString name = "was";
    CString code = "was";
    CString market = "was";
    EXPECT_EQ(dialog.Search(name, code, &market), -1);
    EXPECT_STREQ(name, "was");
    EXPECT_STREQ(code, "was");
    EXPECT_STREQ(market, "was");
    EXPECT_EQ(standin::CountCalls("CStockKey::GetInfoArray"), 0);
  }
};

TEST_F(IndicatorDlg, WithoutATemplateEconomicIndicatorsFailAndGiveNothing) {
  CFinIndiSearchDlg dialog(CWnd(), "TWCPI");
  ExpectFailure(dialog);
}

TEST_F(IndicatorDlg, WithoutATemplateCommoditiesFailAndGiveNothing) {
  CNationalCommodityDlg dialog(CWnd(), static_cast<InfoType>(10), {"WTI", "", ""});
  ExpectFailure(dialog);
}

TEST_F(IndicatorDlg, WithoutATemplateFuturesFailAndGiveNothing) {
  CNationalOptionDlg dialog(CWnd(), "ES");
  ExpectFailure(dialog);
}

} // namespace
