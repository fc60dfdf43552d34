// Cloud lists may have headings, and so may the groups that take them over. A heading is no symbol
// that somebody could choose from such a group.
#include <string>
#include <vector>

#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/User.h"

namespace {

class GroupHeadings : public EditTest {
protected:
  GroupHeadings() {
    standin::SetMarket(GroupMarket());
    StartWith({"A/one/2330.TW"});
    manager.SetCloudeList("PICK", "Picked", "Tag:,2454.TW");
    EXPECT_EQ(manager.LoadGroupList(201), 1);
  }

  // What the list is when the user has chosen from the group.
  std::string ChooseInEditor(const UserScript& choose) {
    WhenDialogOpens([choose](User& user) {
      EXPECT_TRUE(user.Select(761, "Picked"));
      choose(user);
      EXPECT_TRUE(user.Click(1));
    });
    CSymbolList* list = nullptr;
    EXPECT_EQ(manager.GetSymbolList("A", &list, 1), 1);
    EXPECT_TRUE(CTQSymbolListMgr::DoGroupListUI(&manager, manager.GetSymbolTableMgr(), list, 1,
                                                nullptr, 0));
    CSymbolList* edited = nullptr;
    EXPECT_EQ(manager.GetSymbolList("A", &edited, 1), 1);
    return edited->GetIDs().GetString();
  }
  // ":" is the id of a heading's record, and the text of no entry.
  static bool HasBareMarker(const std::string& ids) {
    return ("," + ids + ",").find(",:,") != std::string::npos;
  }
};

// A heading of a cloud group that was picked became the entry ":", an id that no exchange has.
TEST_F(GroupHeadings, OneThatIsPickedIsNoSymbolOfTheList) {
  const std::string ids = ChooseInEditor([](User& user) {
    for (int row = 0; row < static_cast<int>(user.Rows(782).size()); ++row)
      EXPECT_TRUE(user.DoubleClick(782, row));
  });
  EXPECT_FALSE(HasBareMarker(ids)) << ids;
  EXPECT_NE(ids.find("2454.TW"), std::string::npos) << ids;
}

TEST_F(GroupHeadings, AllOfAGroupAreWithoutIt) {
  const std::string ids = ChooseInEditor([](User& user) { EXPECT_TRUE(user.Click(807)); });
  EXPECT_FALSE(HasBareMarker(ids)) << ids;
  EXPECT_NE(ids.find("2454.TW"), std::string::npos) << ids;
}

// The terminal was given a symbol ":" to show.
TEST_F(GroupHeadings, TheSearchForASymbolDoesNotAnswerOne) {
  WhenDialogOpens([](User& user) {
    EXPECT_TRUE(user.Select(761, "Picked"));
    for (const std::string& row : user.Rows(781))
      EXPECT_NE(row.substr(0, row.find(' ')), ":") << row;
    EXPECT_TRUE(user.DoubleClick(781, 0));
    user.CloseByTitleBar();
  });
  SymbolInfo record = {};
  CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, "", &record, 0,
                               nullptr);
  EXPECT_STRNE(record.id, ":");
}

} // namespace
