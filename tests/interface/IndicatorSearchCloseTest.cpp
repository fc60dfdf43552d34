// The searches for indicators: closing without a choice, the initial row, and what the terminal
// does from outside.
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/ResourceContext.h"
#include "tests/interface/IndicatorTest.h"

namespace {

class IndicatorSearchClose : public IndicatorTest {
protected:
  ~IndicatorSearchClose() override { CTQSymbolListMgr::m_bDoModal = 0; }
};

// The three searches, for what they have in common.
struct Search {
  const char* name;
  int (*open)(CString& name, CString& code, CString& market);
};

int OpenEconomic(CString& name, CString& code, CString&) {
  return CTQSymbolListMgr::DoSearchFinIndi(nullptr, "", name, code);
}
int OpenCommodity(CString& name, CString& code, CString&) {
  return CTQSymbolListMgr::DoSearchCommIndi(nullptr, "", name, code, "", "",
                                            static_cast<InfoType>(10));
}
int OpenFuture(CString& name, CString& code, CString& market) {
  return CTQSymbolListMgr::DoSearchOptionIndi(nullptr, "", name, code, market);
}

class AnyIndicatorSearch : public IndicatorTest, public testing::WithParamInterface<Search> {
protected:
  ~AnyIndicatorSearch() override { CTQSymbolListMgr::m_bDoModal = 0; }
  int Open(UserScript script) {
    WhenDialogOpens(std::move(script));
    return GetParam().open(name, code, market);
  }
};

std::string NameOf(const testing::TestParamInfo<Search>& tested) {
  return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Of, AnyIndicatorSearch,
                         testing::Values(Search{"EconomicIndicators", OpenEconomic},
                                         Search{"Commodities", OpenCommodity},
                                         Search{"Futures", OpenFuture}),
                         NameOf);

// --- Closing without a choice --------------------------------------------------------------------

TEST_P(AnyIndicatorSearch, EscapeCancels) {
  EXPECT_EQ(Open([](User& user) {
              EXPECT_TRUE(user.ClickRow(kList, 0));
              EXPECT_TRUE(user.Press(WindowKey::Escape));
            }),
            2);
  EXPECT_EQ(Outputs(), untouched);
}

TEST_P(AnyIndicatorSearch, TheTitleBarCancels) {
  EXPECT_EQ(Open([](User& user) { EXPECT_TRUE(user.CloseByTitleBar()); }), 2);
  EXPECT_EQ(Outputs(), untouched);
}

// The dialog would close as after a choice.
TEST_P(AnyIndicatorSearch, EnterDoesNothing) {
  EXPECT_EQ(Open([](User& user) {
              EXPECT_TRUE(user.ClickRow(kList, 0));
              EXPECT_TRUE(user.Press(WindowKey::Enter));
              EXPECT_TRUE(user.IsUp());
              user.Press(WindowKey::Escape);
            }),
            2);
  EXPECT_EQ(Outputs(), untouched);
}

TEST_P(AnyIndicatorSearch, AnEmptyTableCanOnlyBeCancelled) {
  Serve(InfoEconomicIndicators, {});
  Serve(kCommodities, {});
  Serve(InfoInternationalFutures, {});
  EXPECT_EQ(Open([](User& user) {
              EXPECT_EQ(user.Rows(kList), Lines{});
              EXPECT_EQ(user.Rows(kCategories), Lines{Text("所有類別", "所有类别")});
              user.DoubleClick(kList, 0);
              user.Press(WindowKey::Enter);
              EXPECT_TRUE(user.IsUp());
              EXPECT_TRUE(user.Press(WindowKey::Escape));
            }),
            2);
  EXPECT_EQ(Outputs(), untouched);
}

TEST_P(AnyIndicatorSearch, ATableThatCannotBeReadIsEmpty) {
  standin::FailAlways("CStockKey::GetInfoArray");
  EXPECT_EQ(Open([](User& user) {
              EXPECT_EQ(user.Rows(kList), Lines{});
              user.Press(WindowKey::Escape);
            }),
            2);
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_P(AnyIndicatorSearch, TheTerminalIsToldNothing) {
  Open([](User& user) { user.DoubleClick(kList, 0); });
  EXPECT_TRUE(standin::Notifications().empty());
}

// --- How the list behaves ------------------------------------------------------------------------

TEST_P(AnyIndicatorSearch, TheListSelectsWholeRowsUnderTheMouseAndHasGridLines) {
  tq::SetModalHandler([](CDialog& dialog) {
    const CListCtrl list(dialog, kList);
    EXPECT_EQ(list.GetStyles(),
              CListCtrl::FullRowSelect | CListCtrl::HoverSelect | CListCtrl::GridLines);
    EXPECT_EQ(list.GetHoverTime(), 10u);
    EXPECT_EQ(list.GetColumnCount(), 1);
    dialog.EndDialog(CDialog::Cancelled);
  });
  EXPECT_EQ(GetParam().open(name, code, market), 2);
}

TEST_P(AnyIndicatorSearch, ARowUnderTheMouseIsSelected) {
  Open([](User& user) {
    EXPECT_TRUE(user.Hover(kList, 0));
    EXPECT_EQ(user.SelectedRows(kList), std::vector<int>{0});
    EXPECT_TRUE(user.IsUp());
    user.Press(WindowKey::Escape);
  });
}

// --- The row that the input means ----------------------------------------------------------------

UserScript ExpectSelected(std::vector<int> rows) {
  return [rows](User& user) {
    EXPECT_EQ(user.SelectedRows(781), rows);
    user.Press(WindowKey::Escape);
  };
}

TEST_F(IndicatorSearchClose, WithoutAnInputNoRowIsSelected) {
  SearchEconomic(ExpectSelected({}));
}

TEST_F(IndicatorSearchClose, TheRowWithTheCodeIsSelected) {
  SearchEconomic(ExpectSelected({1}), "twexp");
  SearchFuture(ExpectSelected({0}), "ES"); // the first row of its region, on which the search opens
}

TEST_F(IndicatorSearchClose, TheRowWithTheNameIsSelected) {
  SearchEconomic(ExpectSelected({0}), "美國物價");
}

TEST_F(IndicatorSearchClose, AnInputThatIsNoRowSelectsNone) {
  SearchEconomic(ExpectSelected({}), "物價");
}

TEST_F(IndicatorSearchClose, OfTheCommoditysInputsTheFirstThatIsARowCounts) {
  SearchCommodity(ExpectSelected({1}), "CORN", "WTI", "WTI");
  SearchCommodity(ExpectSelected({1}), "", "CORN", "WTI");
  SearchCommodity(ExpectSelected({1}), "GOLD", "SILVER", "玉米");
  SearchCommodity(ExpectSelected({}), "GOLD", "SILVER", "TIN");
}

TEST_F(IndicatorSearchClose, TheRowThatIsSelectedAtTheStartIsNotChosen) {
  EXPECT_EQ(SearchEconomic(ExpectSelected({1}), "TWEXP"), 2);
  EXPECT_EQ(Outputs(), untouched);
}

// --- Ended by the terminal -----------------------------------------------------------------------

int endedResult = 0;

// Ends the dialog from outside or, if that is refused, as its user.
void EndFromOutside(CDialog& dialog) {
  endedResult = CTQSymbolListMgr::EndDomodal(dialog.GetSafeHwnd(), 7);
  if (endedResult == 0)
    dialog.EndDialog(CDialog::Cancelled);
}

TEST_P(AnyIndicatorSearch, EndDomodalIsIgnoredWhileTheListSelectionIsNotOpen) {
  EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
  tq::SetModalHandler(EndFromOutside);
  EXPECT_EQ(GetParam().open(name, code, market), 2);
  EXPECT_EQ(endedResult, 0);
}

TEST_P(AnyIndicatorSearch, EndDomodalEndsTheDialogWithItsResultWhenTheFlagIsSet) {
  CTQSymbolListMgr::m_bDoModal = 1;
  tq::SetModalHandler(EndFromOutside);
  EXPECT_EQ(GetParam().open(name, code, market), 7);
  EXPECT_EQ(endedResult, 1);
  EXPECT_EQ(Outputs(), untouched);
}

TEST_P(AnyIndicatorSearch, AnAcceptanceFromOutsideChoosesNothing) {
  CTQSymbolListMgr::m_bDoModal = 1;
  tq::SetModalHandler(
      [](CDialog& dialog) { CTQSymbolListMgr::EndDomodal(dialog.GetSafeHwnd(), 1); });
  EXPECT_EQ(GetParam().open(name, code, market), 1);
  EXPECT_EQ(Outputs(), untouched);
}

TEST_F(IndicatorSearchClose, EndDomodalNeedsAWindowInWhichADialogRuns) {
  CTQSymbolListMgr::m_bDoModal = 1;
  EXPECT_EQ(CTQSymbolListMgr::EndDomodal(nullptr, 1), 0);
  static WindowHandle gone;
  tq::SetModalHandler([](CDialog& dialog) {
    gone = dialog.GetSafeHwnd();
    EXPECT_EQ(CTQSymbolListMgr::EndDomodal(CWnd(dialog, kList).GetSafeHwnd(), 1), 0);
    dialog.EndDialog(CDialog::Cancelled);
  });
  CTQSymbolListMgr::DoSearchFinIndi(nullptr, "", name, code);
  EXPECT_EQ(CTQSymbolListMgr::EndDomodal(gone, 1), 0);
}

// --- The parent ----------------------------------------------------------------------------------

TEST_F(IndicatorSearchClose, TheParentTakesNoInputWhileASearchIsOpen) {
  static bool enabledMeanwhile;
  static bool enabledAfterwards;
  tq::SetModalHandler([](CDialog& outer) {
    static CWnd parent;
    parent = outer;
    tq::SetModalHandler([](CDialog& inner) {
      enabledMeanwhile = parent.IsWindowEnabled();
      inner.EndDialog(CDialog::Cancelled);
    });
    CString first;
    CString second;
    CTQSymbolListMgr::DoSearchFinIndi(outer.GetSafeHwnd(), "", first, second);
    enabledAfterwards = parent.IsWindowEnabled();
    outer.EndDialog(CDialog::Cancelled);
  });
  CTQSymbolListMgr::DoSearchOptionIndi(nullptr, "", name, code, market);
  EXPECT_FALSE(enabledMeanwhile);
  EXPECT_TRUE(enabledAfterwards);
}

// --- The resources in force ----------------------------------------------------------------------

const char* TerminalString(unsigned, int) {
  return "the terminal's";
}

// The terminal's own resources.
tq::Resources TerminalResources() {
  tq::Resources resources;
  resources.string = TerminalString;
  return resources;
}

TEST_P(AnyIndicatorSearch, TheLibrarysResourcesAreInForceWhileItRuns) {
  const tq::ResourceContext context(TerminalResources());
  Open([](User& user) {
    EXPECT_NE(tq::ResourceContext::Current().string, TerminalString);
    user.Press(WindowKey::Escape);
  });
}

TEST_P(AnyIndicatorSearch, TheTerminalsResourcesAreBackAfterAChoice) {
  const tq::ResourceContext context(TerminalResources());
  EXPECT_EQ(Open([](User& user) { user.DoubleClick(kList, 0); }), 1);
  EXPECT_EQ(tq::ResourceContext::Current().string, TerminalString);
}

TEST_P(AnyIndicatorSearch, TheTerminalsResourcesAreBackAfterACancel) {
  const tq::ResourceContext context(TerminalResources());
  EXPECT_EQ(Open([](User& user) { user.Press(WindowKey::Escape); }), 2);
  EXPECT_EQ(tq::ResourceContext::Current().string, TerminalString);
}

TEST_P(AnyIndicatorSearch, TheTerminalsResourcesAreBackAfterAnEndFromOutside) {
  const tq::ResourceContext context(TerminalResources());
  CTQSymbolListMgr::m_bDoModal = 1;
  tq::SetModalHandler(EndFromOutside);
  EXPECT_EQ(GetParam().open(name, code, market), 7);
  EXPECT_EQ(tq::ResourceContext::Current().string, TerminalString);
}

} // namespace
