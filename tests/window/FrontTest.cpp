// Overlapping controls: the one in front gets the mouse.
#include "platform/framework/window/CEdit.h"
#include "tests/window/WindowTest.h"

namespace {

class FrontTest : public WindowTest {
protected:
  void InOverlaps(const std::function<void(User&, TestDialog&)>& script) {
    TestDialog dialog(104);
    In(dialog, [&](User& user) {
      for (const int id : {781, 782}) {
        for (const char* text : {"A", "B", "C"})
          CListBox(dialog, id).AddString(text);
      }
      script(user, dialog);
    });
  }
};

// Symptom: the editor of names stood behind its list in the template, so a click on it selected a
// row.
TEST_F(FrontTest, AnEditThatStandsBeforeItsListTakesTheClickOnItsRow) {
  InOverlaps([](User& user, TestDialog& dialog) {
    EXPECT_TRUE(CEdit(dialog, 741).PlaceOverRow(CListBox(dialog, 781), 1));
    EXPECT_FALSE(user.ClickRow(781, 1));
    EXPECT_FALSE(user.DoubleClick(781, 1));
    EXPECT_EQ(dialog.Take(), Log());
    EXPECT_TRUE(user.Click(741));
    EXPECT_TRUE(user.HasFocus(741));
    EXPECT_EQ(dialog.Take(), Log{"741 focus"});
    EXPECT_TRUE(user.ClickRow(781, 0));
    EXPECT_TRUE(user.ClickRow(781, 2));
    EXPECT_EQ(dialog.Take(), (Log{"741 left", "781 selection", "781 selection"}));
    CWnd(dialog, 741).Show(false);
    EXPECT_TRUE(user.ClickRow(781, 1));
    EXPECT_EQ(user.SelectedRows(781), std::vector<int>{1});
  });
}

TEST_F(FrontTest, AnEditThatStandsBehindItsListIsOutOfReach) {
  InOverlaps([](User& user, TestDialog& dialog) {
    EXPECT_TRUE(CEdit(dialog, 742).PlaceOverRow(CListBox(dialog, 782), 1));
    EXPECT_FALSE(user.Click(742));
    EXPECT_FALSE(user.Fill(742, "x"));
    EXPECT_TRUE(user.ClickRow(782, 1));
    EXPECT_EQ(user.SelectedRows(782), std::vector<int>{1});
    EXPECT_EQ(dialog.log, Log{"782 selection"});
  });
}

TEST_F(FrontTest, LabelsAndDisabledControlsLeaveTheMouseToWhatLiesBehind) {
  InOverlaps([](User& user, TestDialog& dialog) {
    EXPECT_TRUE(user.Click(801));
    EXPECT_TRUE(user.Click(803));
    EXPECT_FALSE(user.Click(802));
    CWnd(dialog, 802).EnableWindow();
    EXPECT_FALSE(user.Click(803));
    EXPECT_TRUE(user.Click(802));
    EXPECT_EQ(dialog.log, (Log{"801 clicked", "803 clicked", "802 clicked"}));
  });
}

TEST_F(FrontTest, TheEditScrollsToItsRow) {
  InOverlaps([](User& user, TestDialog& dialog) {
    CListBox box(dialog, 781);
    while (box.GetCount() < 100)
      box.AddString("row");
    EXPECT_FALSE(user.IsInSight(781, 60));
    EXPECT_TRUE(CEdit(dialog, 741).PlaceOverRow(box, 60));
    EXPECT_TRUE(user.IsInSight(781, 60));
    EXPECT_FALSE(user.IsInSight(781, 0));
    EXPECT_FALSE(user.ClickRow(781, 60));
    EXPECT_TRUE(user.ClickRow(781, 59));
    EXPECT_TRUE(user.Click(741));
  });
}

} // namespace
