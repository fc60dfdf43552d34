// The window by itself.
#include "tests/desk/DeskTest.h"

#include "platform/services/TQSProxy.h"

namespace {

using desk::DeskDialog;

class DeskWindow : public DeskTest {};

TEST_F(DeskWindow, OpensOnTheListThatIsShownFirst) {
  InDesk([](User& user) {
    EXPECT_EQ(user.Title(), Said("行情終端", "行情终端"));
    EXPECT_EQ(user.Text(DeskDialog::kSource), Said("我的自選", "我的自选"));
    EXPECT_EQ(user.Text(DeskDialog::kList), "one");
    EXPECT_EQ(user.Rows(DeskDialog::kPage),
              (Texts{"2330 | " + Said("台積電", "台积电") + " | 上市 | 1085.00", "■ Tag |  |  | ",
                     "2454 | " + Said("聯發科", "联发科") + " | 上市 | 1390.00"}));
    EXPECT_TRUE(user.HasFocus(DeskDialog::kPage));
  });
}

TEST_F(DeskWindow, TellsOfTheStartInItsLog) {
  InDesk([&](User& user) {
    const Texts lines = NewLines(user);
    EXPECT_NE(LineWith(lines, "4 | TSSymbolList"), "");   // the logins
    EXPECT_NE(LineWith(lines, "4 | ListNameChange"), ""); // the cloud groups
    EXPECT_TRUE(user.IsInSight(DeskDialog::kLog, static_cast<int>(lines.size()) - 1));
  });
}

TEST_F(DeskWindow, ShowsListsOfEachSource) {
  InDesk([](User& user) {
    user.Select(DeskDialog::kSource, 1);
    EXPECT_EQ(user.Rows(DeskDialog::kList), (Texts{Said("雲端觀察", "云端观察"), "海外科技"}));
    user.Select(DeskDialog::kSource, Said("上櫃", "上柜"));
    EXPECT_EQ(user.Rows(DeskDialog::kList), (Texts{Said("矽晶圓", "硅晶圆")}));
    EXPECT_EQ(user.Rows(DeskDialog::kPage).size(), 2U);
  });
}

// The terminal is told while nothing of it waits for the library.
TEST_F(DeskWindow, FollowsAChangeThatItIsToldOf) {
  InDesk([this](User& user) {
    manager.InsertSymbolList("A", 99, "1101.TW", 0, 0);
    EXPECT_EQ(user.Rows(DeskDialog::kPage).size(), 3U); // nobody has told it
    TQSCall("", -1, 40, "");
    actions::Settle();
    EXPECT_EQ(user.Rows(DeskDialog::kPage).size(), 4U);
  });
}

TEST_F(DeskWindow, FollowsAFill) {
  InDesk([this](User& user) {
    user.Select(DeskDialog::kSource, 2);
    user.Select(DeskDialog::kList, "9801-***1");
    const size_t held = user.Rows(DeskDialog::kPage).size();
    standin::SetHoldings("VTS01", "98011", 1, "2330.TW,2317.TW,0050.TW,8069.TE");
    manager.UpDataTSAccHodling("VTS01", "98011", static_cast<TqsAccType>(1));
    actions::Settle();
    EXPECT_EQ(user.Rows(DeskDialog::kPage).size(), held + 1);
  });
}

TEST_F(DeskWindow, StaysOpenForEnterAndEscape) {
  InDesk([](User& user) {
    user.Press(WindowKey::Enter);
    EXPECT_TRUE(user.IsUp());
    user.Press(WindowKey::Escape);
    EXPECT_TRUE(user.IsUp());
    user.CloseByTitleBar();
    EXPECT_FALSE(user.IsUp());
  });
}

TEST_F(DeskWindow, KeepsTheSelectedSymbolWhenListsChange) {
  InDesk([this](User& user) {
    user.ClickRow(DeskDialog::kPage, 0);
    manager.InsertSymbolList("A", 0, "1101.TW", 1, 0);
    TQSCall("", -1, 40, "");
    actions::Settle();
    EXPECT_EQ(user.SelectedRows(DeskDialog::kPage), std::vector<int>{1});
    EXPECT_TRUE(user.IsEnabled(DeskDialog::kAddOne));
  });
}

// In the order of the Tab key, from the page on.
TEST_F(DeskWindow, GoesFromThePageToTheButtonsAndTheLog) {
  InDesk([](User& user) {
    user.Press(WindowKey::Tab);
    EXPECT_TRUE(user.HasFocus(DeskDialog::kEditLists));
    user.PressLetter('C');
    EXPECT_TRUE(user.HasFocus(DeskDialog::kInput));
    user.PressLetter('J');
    EXPECT_TRUE(user.HasFocus(DeskDialog::kLog));
    user.PressLetter('S');
    EXPECT_TRUE(user.HasFocus(DeskDialog::kSource));
  });
}

TEST_F(DeskWindow, OpensOnNothing) {
  manager.ClearSymbolList();
  InDesk([](User& user) {
    EXPECT_EQ(user.Rows(DeskDialog::kPage), Texts());
    EXPECT_FALSE(user.IsEnabled(DeskDialog::kEditShown));
    EXPECT_FALSE(user.IsEnabled(DeskDialog::kAddOne));
  });
}

} // namespace
