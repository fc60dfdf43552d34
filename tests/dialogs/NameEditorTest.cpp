// The editor of names is in front of the list, so the mouse reaches it.
#include <gtest/gtest.h>

#include "platform/framework/window/CEdit.h"
#include "tests/dialogs/Templates.h"
#include "tests/support/User.h"

namespace {

class NameEditor : public testing::TestWithParam<int> {};

// Symptom: the editor stood behind the list in the template, so a click on it selected a row.
TEST_P(NameEditor, TakesTheClickOnTheRowThatItLiesOver) {
  const tq::ResourceContext context(tq::LibraryResources());
  CDialog dialog(static_cast<unsigned>(GetParam()));
  const int code = RunDialog(dialog, [&](User& user) {
    CListBox lists(dialog, 781);
    for (const char* name : {"A", "B", "C"})
      lists.AddString(name);
    lists.SetCurSel(1);
    EXPECT_TRUE(user.HasFocus(781)); // the hidden editor in front is skipped
    CEdit editor(dialog, 741);
    ASSERT_TRUE(editor.PlaceOverRow(lists, 2));
    EXPECT_FALSE(user.ClickRow(781, 2));
    EXPECT_EQ(lists.GetCurSel(), 1);
    EXPECT_TRUE(user.Click(741));
    EXPECT_TRUE(user.HasFocus(741));
    EXPECT_TRUE(user.Type("name"));
    EXPECT_EQ(user.Text(741), "name");
    EXPECT_TRUE(user.ClickRow(781, 0));
    EXPECT_EQ(lists.GetCurSel(), 0);
    dialog.EndDialog(CDialog::Accepted);
  });
  EXPECT_EQ(code, CDialog::Accepted);
}

INSTANTIATE_TEST_SUITE_P(ListsOfLists, NameEditor, testing::Values(1000, 1010),
                         [](const auto& tested) { return std::to_string(tested.param); });

} // namespace
