// The side effects of dialogs, as docs/notifications.md has them.
#include "tests/interface/EffectsTest.h"
#include "tests/support/User.h"

namespace {

// Opens an editor, which the user closes after `act`.
template <typename Open> void RunEditor(Open open, UserScript act) {
  WhenDialogOpens([act](User& user) {
    act(user);
    user.CloseByTitleBar();
  });
  open();
}
void LookAround(User&) {}
void RenameTheFirst(User& user) {
  user.ClickRow(781, 0);
  user.Press(WindowKey::F2);
  user.Type("renamed");
  user.Press(WindowKey::Enter);
}

TEST_F(Effects, OfEditorsThatAreClosedUntouchedAreNone) {
  CSymbolTableMgr* const tables = manager.GetSymbolTableMgr();
  CSymbolList* list = nullptr;
  manager.GetSymbolList("a", &list, 1);
  RunEditor([&] { CTQSymbolListMgr::DoSymbolListUI(&manager, tables, nullptr); }, LookAround);
  RunEditor([&] { manager.DoCloudSymbolListUI(&manager, tables, nullptr); }, LookAround);
  RunEditor([&] { CTQSymbolListMgr::DoGroupListUI(&manager, tables, list, 1, nullptr, 0); },
            LookAround);
  RunEditor([&] { CTQSymbolListMgr::DoGroupSymbolAdd(&manager, tables, nullptr, "1101.TW"); },
            LookAround);
  RunEditor(
      [&] { CTQSymbolListMgr::DoSearchUI(&manager, tables, nullptr, "", nullptr, 0, nullptr); },
      LookAround);
  CString text;
  RunEditor(
      [&] { CTQSymbolListMgr::DoSelectUI(&manager, tables, nullptr, nullptr, text, 0, false); },
      LookAround);
  EXPECT_EQ(Seen(), kNothing);
}

TEST_F(Effects, OfAListThatIsRenamedInItsEditorAreASaveALineAndANotification) {
  RunEditor(
      [&] { CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr); },
      RenameTheFirst);
  EXPECT_EQ(Seen().rfind("SymbolList.xml | 64 DoSymbolListUI ", 0), 0u) << Seen();
  EXPECT_EQ(Seen().substr(Seen().rfind('|')), "| 40 'ListNameChange'");
}

TEST_F(Effects, OfACloudListThatIsRenamedInItsEditorAreLinesAndANotification) {
  RunEditor([&] { manager.DoCloudSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr); },
            RenameTheFirst);
  EXPECT_EQ(Seen().rfind(" | 64 CTQSymbolListMgr::UpdateCloudSymbolList ", 0), 0u) << Seen();
  EXPECT_EQ(Seen().substr(Seen().rfind('|')), "| 41 'ListNameChange'");
}

TEST_F(Effects, OfAListWhoseContentsAreEditedAreASave) {
  CSymbolList* list = nullptr;
  manager.GetSymbolList("a", &list, 1);
  RunEditor(
      [&] {
        CTQSymbolListMgr::DoGroupListUI(&manager, manager.GetSymbolTableMgr(), list, 1, nullptr, 0);
      },
      [](User& user) {
        user.Fill(741, "1101");
        user.Press(WindowKey::Enter);
        user.Click(1);
      });
  EXPECT_EQ(Seen(), "SymbolList.xml |  | ");
}

TEST_F(Effects, OfASymbolThatIsAddedToAListAreASaveALineAndANotification) {
  RunEditor(
      [&] {
        CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr,
                                           "1101.TW");
      },
      [](User& user) { user.Click(803); });
  EXPECT_EQ(Seen().rfind("SymbolList.xml | 64 DoGroupSymbolAdd ", 0), 0u) << Seen();
  EXPECT_EQ(Seen().substr(Seen().rfind('|')), "| 40 ''");
}

TEST_F(Effects, OfSymbolsThatAreAddedToAListAreASaveALineAndTwoNotifications) {
  RunEditor(
      [&] {
        CTQSymbolListMgr::DoSymbolAddUI(&manager, manager.GetSymbolTableMgr(), nullptr, "1101.TW",
                                        "");
      },
      [](User& user) { user.Click(803); });
  EXPECT_EQ(Seen().rfind("SymbolList.xml | 64 DoSymbolAddUI ", 0), 0u) << Seen();
  EXPECT_EQ(Seen().substr(Seen().rfind('|')), "| 4 '', 40 ''");
}

TEST_F(Effects, OfAddingSymbolsWithoutDoingSoAreANotification) {
  RunEditor(
      [&] {
        CTQSymbolListMgr::DoSymbolAddUI(&manager, manager.GetSymbolTableMgr(), nullptr, "1101.TW",
                                        "");
      },
      LookAround);
  EXPECT_EQ(Seen(), " |  | 40 ''");
}

} // namespace
