// Taking another product's lists over into the user's, made without a manager.
#include "imports/ListImport.h"

#include <string>

#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"

namespace {

constexpr char kTwoLists[] = "<HaldeUserList><L><IDs>2330.TW</IDs></L><L><IDs>2317.TW</IDs></L>"
                             "</HaldeUserList>";

class ListImportTest : public StandInTest {
protected:
  ListImportTest() : lists([](CString&) { return false; }) {
    lists.SetDirectory(directory.Path().c_str());
    lists.Save();
  }

  TempDir directory;
  tq::UserLists lists;
};

TEST_F(ListImportTest, ListsAreAddedBehindTheUsersAndSaved) {
  lists.Add("a", "One", "1101.TW", true, false);
  directory.Write("Other.xml", kTwoLists);
  EXPECT_EQ(tq::ImportFile(lists, directory.Joined("Other.xml").c_str(), 1), 1);
  ASSERT_EQ(lists.Lists().GetSize(), 3);
  EXPECT_STREQ(lists.Lists().At(1)->GetID(), "eOrvel 1");
  EXPECT_NE(directory.Read("SymbolList.xml").find("eOrvel 2"), std::string::npos);
  EXPECT_EQ(tq::ImportFile(lists, directory.Joined("None.xml").c_str(), 1), 0);
}

TEST_F(ListImportTest, AStartsFileIsImportedOnceAndSetAside) {
  directory.Write("OldOTVList.xml", kTwoLists);
  EXPECT_EQ(tq::ImportOnce(lists), 1);
  EXPECT_EQ(lists.Lists().GetSize(), 2);
  EXPECT_TRUE(directory.Exists("Added_OldOTVList.xml"));
  EXPECT_EQ(tq::ImportOnce(lists), 0);
}

TEST_F(ListImportTest, AListThatTheUserRenamedIsTheUsersOwn) {
  directory.Write("Other.xml", kTwoLists);
  tq::ImportFile(lists, directory.Joined("Other.xml").c_str(), 1);
  lists.Lists().At(0)->SetName("Mine");
  lists.Lists().At(0)->Update1("1101.TW");
  tq::ImportFile(lists, directory.Joined("Other.xml").c_str(), 1);
  EXPECT_STREQ(lists.Lists().At(0)->GetIDs(), "1101.TW");
  EXPECT_EQ(lists.Lists().GetSize(), 2);
}

TEST_F(ListImportTest, WithoutADirectoryThereIsNothingToImport) {
  lists.SetDirectory("");
  EXPECT_EQ(tq::ImportOnce(lists), 0);
}

} // namespace
