// What is stored, logged and told when a working copy of cloud lists is committed.
#include "tests/dialogs/EditCommitsTest.h"

namespace {

TEST_F(EditCommits, UntouchedCloudListsDoNothing) {
  StartCloud();
  tq::WorkingCopy copy(manager, kCloudLists);
  tq::CommitCloudLists(manager, copy, 2);
  EXPECT_EQ(Happened(), "saves 0");
  EXPECT_EQ(std::string(manager.GetCloudeList()), "<Cloud></Cloud>");
}

TEST_F(EditCommits, CloudListsGoIntoTheMapAndAreNotSaved) {
  StartCloud();
  tq::WorkingCopy copy(manager, kCloudLists);
  copy.At(0).Update1("1101.TW");
  tq::CommitCloudLists(manager, copy, 2);
  EXPECT_EQ(Happened(), std::string("saves 0; told 41:; log DoCloudSymbolListUI") + kChanged);
  EXPECT_EQ(CloudShape(), "VORNG0101/one/1101.TW|PICK/two/2317.TW");
  EXPECT_EQ(std::string(manager.GetCloudeList()),
            "<Cloud><List ID='VORNG0101' Name='one' Value='1101.TW' Flag='0'/>\n"
            "<List ID='PICK' Name='two' Value='2317.TW' Flag='0'/>\n</Cloud>");
  EXPECT_EQ(copy.Count(), 0);
}

TEST_F(EditCommits, CloudReasonsAreThoseOfTheUsersLists) {
  StartCloud();
  tq::WorkingCopy renamed(manager, kCloudLists);
  Rename(renamed, 1, "TWO");
  tq::CommitCloudLists(manager, renamed, 2);
  EXPECT_EQ(Happened(), std::string("saves 0; told 41:ListNameChange; log DoCloudSymbolListUI") +
                            kChanged + "(bListNameChange)");
  Mark();
  tq::WorkingCopy fewer(manager, kCloudLists);
  Remove(fewer, 0);
  tq::CommitCloudLists(manager, fewer, 2);
  EXPECT_EQ(Happened(), std::string("saves 0; told 41:ListCntChange; log DoCloudSymbolListUI") +
                            kChanged + "(nNewSymbolListCnt != nOldSymbolListCnt)");
  EXPECT_EQ(CloudShape(), "PICK/TWO/2317.TW");
}

TEST_F(EditCommits, MovedSymbolsOfCloudListsAreRenamedInTheMapToo) {
  StartCloud();
  tq::WorkingCopy copy(manager, kCloudLists);
  copy.At(0).Update1("6488.TW"); // which has moved to TE
  tq::CommitCloudLists(manager, copy, 2);
  EXPECT_EQ(CloudShape(), "VORNG0101/one/6488.TE|PICK/two/2317.TW");
  EXPECT_NE(std::string(manager.GetCloudeList()).find("Value='6488.TE'"), std::string::npos);
}

TEST_F(EditCommits, AnEditedCloudListGoesIntoTheMapAndTheCloudGroups) {
  StartCloud();
  tq::WorkingCopy copy(manager, kCloudLists);
  copy.At(1).Update1("2330.TW,2454.TW");
  Rename(copy, 1, "picked");
  EXPECT_TRUE(tq::CommitEditedCloudList(manager, copy.At(1)));
  EXPECT_EQ(Happened(), "saves 0");
  EXPECT_EQ(CloudShape(), "VORNG0101/one/2330.TW|PICK/picked/2330.TW,2454.TW");
  void* group = nullptr;
  ASSERT_NE(manager.GetGroupHandle(201, "PICK", &group, 0), 0);
  CString ids;
  EXPECT_EQ(manager.GetGroupListIDs(group, ids), 1);
  EXPECT_STREQ(ids, "2330.TW,2454.TW");
}

} // namespace
