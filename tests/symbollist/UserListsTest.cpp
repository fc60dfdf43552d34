// The user's lists with their file, made without a manager.
#include "symbollist/UserLists.h"

#include <map>
#include <string>
#include <vector>

#include "platform/FileAccess.h"
#include "platform/Log.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"

namespace {

// The system's files, with the reads of each path counted.
class CountedReads : public tq::FileAccessWrapper {
public:
  CountedReads() : FileAccessWrapper(tq::Files()), before_(tq::SetFiles(this)) {}
  ~CountedReads() override { tq::SetFiles(before_); }
  CountedReads(const CountedReads&) = delete;
  CountedReads& operator=(const CountedReads&) = delete;

  tq::ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    ++reads[path];
    return FileAccessWrapper::ReadWholeFile(path, limit, bytes);
  }

  std::map<std::string, int> reads;

private:
  tq::FileAccess* before_;
};

class UserListsTest : public StandInTest {
protected:
  // Lines are looked at here, and a log once opened stays for the process.
  static void SetUpTestSuite() { tq::OpenLog(); }

  // Symbols ".OLD" have moved to ".NEW".
  UserListsTest() : lists([](CString& ids) { return ids.Replace(".OLD", ".NEW") > 0; }) {
    lists.SetDirectory(directory.Path().c_str());
  }

  // "id/name/symbols|..."
  std::string Shape() const {
    std::string shape;
    for (const auto& list : lists.Lists().All())
      shape += (shape.empty() ? "" : "|") + std::string(list->GetID()) + "/" +
               list->GetName().GetString() + "/" + list->GetIDs().GetString();
    return shape;
  }
  std::string File() const { return directory.Read("SymbolList.xml"); }

  TempDir directory;
  tq::UserLists lists;
};

TEST_F(UserListsTest, BeginWithoutListsAndWithTheFirstAsTheDefault) {
  EXPECT_TRUE(lists.Lists().IsEmpty());
  EXPECT_EQ(lists.DefaultIndex(), 0);
  EXPECT_FALSE(lists.HasDefault());
}

TEST_F(UserListsTest, WithoutADirectoryThereIsNoFile) {
  lists.SetDirectory("");
  EXPECT_TRUE(lists.PathOf("\\SymbolList.xml").IsEmpty());
  EXPECT_EQ(lists.Save(), 0);
  EXPECT_EQ(lists.SaveEmpty(), 0);
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(UserListsTest, AddingSavesLogsAndTells) {
  EXPECT_EQ(lists.Add("a", "One", "2330.TW,5.OLD", true, false), 1);
  EXPECT_EQ(lists.Add("b", "One", "2317.TW", false, false), 1);
  EXPECT_EQ(Shape(), "b/One(1)/2317.TW|a/One/2330.TW,5.NEW");
  EXPECT_NE(File().find("ID='b' Name='One(1)' Value='2317.TW'"), std::string::npos);
  EXPECT_EQ(standin::LogLines().size(), 2u);
  EXPECT_EQ(standin::Notifications().size(), 2u);
}

TEST_F(UserListsTest, OthersReadWhatWasSaved) {
  lists.Add("a", "One", "2330.TW", true, false);
  lists.Add("b", "Two", "5.NEW", true, false);
  lists.SetDefaultIndex(1);
  EXPECT_EQ(lists.Save(), 1);
  tq::UserLists others([](CString&) { return false; });
  others.SetDirectory(directory.Path().c_str());
  others.Load();
  EXPECT_EQ(others.DefaultIndex(), 1);
  EXPECT_TRUE(others.Lists().HasIdAndName("a", "One"));
  EXPECT_TRUE(others.Lists().HasIdAndName("b", "Two"));
  EXPECT_EQ(others.Lists().GetSize(), 2);
}

TEST_F(UserListsTest, AFileIsReadOnceWhetherItIsLoadedOrRepaired) {
  lists.Add("a", "One", "2330.TW", true, false);
  lists.Save();
  const std::map<std::string, int> once = {{directory.Joined("SymbolList.xml"), 1}};
  TQRepairCounts counts{-1, -1, -1};
  CountedReads files;
  lists.Load();
  EXPECT_EQ(files.reads, once);
  files.reads.clear();
  lists.Clear();
  EXPECT_EQ(lists.Repair(counts), 1);
  EXPECT_EQ(files.reads, once);
  EXPECT_EQ(counts.whole, 1);
  EXPECT_EQ(Shape(), "a/One/2330.TW");
  directory.Write("SymbolList.xml", File() + "<List ID='b' Name='it's' Value='2317.TW'/>");
  files.reads.clear();
  EXPECT_EQ(lists.Repair(counts), 1);
  EXPECT_EQ(files.reads, once);
  EXPECT_EQ(lists.Lists().GetSize(), 2);
}

// What was read for the repair is what the next save compares with.
TEST_F(UserListsTest, ASoundFileThatWasRepairedIsKnown) {
  lists.Add("a", "One", "2330.TW", true, false);
  lists.Reset();
  TQRepairCounts counts{-1, -1, -1};
  EXPECT_EQ(lists.Repair(counts), 1);
  const CountedReads files;
  EXPECT_EQ(lists.Save(), 1);
  EXPECT_TRUE(files.reads.empty());
  EXPECT_EQ(directory.Names(), std::vector<std::string>{"SymbolList.xml"});
}

TEST_F(UserListsTest, MovedSymbolsOfAFileAreRenamed) {
  directory.Write("SymbolList.xml", "<Result><SymbolList DefaultIdx='0'>"
                                    "<List ID='a' Name='One' Value='5.OLD,2330.TW' Flag='0'/>"
                                    "</SymbolList></Result>");
  lists.Load();
  EXPECT_EQ(Shape(), "a/One/5.NEW,2330.TW");
}

TEST_F(UserListsTest, AMissingFileIsMadeOnlyInADirectoryThatIsThere) {
  lists.CreateMissingFile();
  EXPECT_NE(File().find("<SymbolList DefaultIdx='0'>"), std::string::npos);
  directory.Write("SymbolList.xml", "kept");
  lists.CreateMissingFile();
  EXPECT_EQ(File(), "kept");
  lists.SetDirectory(directory.Joined("none").c_str());
  lists.CreateMissingFile();
  EXPECT_FALSE(TempDir::IsDirectory(directory.Native("none")));
}

TEST_F(UserListsTest, ASaveOverAFileThatNobodyReadKeepsACopy) {
  directory.Write("SymbolList.xml", "somebody's");
  lists.Add("a", "One", "2330.TW", true, false);
  EXPECT_EQ(directory.Read("SymbolList_Kept.xml"), "somebody's");
}

TEST_F(UserListsTest, TheBackupIsAFileOfItsOwn) {
  lists.Add("a", "One", "2330.TW", true, false);
  EXPECT_EQ(lists.Backup(), 1);
  lists.Delete("a");
  EXPECT_EQ(Shape(), "");
  lists.Restore();
  EXPECT_EQ(Shape(), "a/One/2330.TW");
  EXPECT_EQ(File().find("2330"), std::string::npos) << "the working file is not rewritten";
}

TEST_F(UserListsTest, DeletingTheLastAndDefaultListMovesTheIndex) {
  for (const char* id : {"a", "b", "c"})
    lists.Add(id, id, "2330.TW", true, false);
  lists.SetDefaultIndex(2);
  EXPECT_EQ(lists.Delete("a"), 1);
  EXPECT_EQ(lists.DefaultIndex(), 2) << "not when it was another list";
  lists.SetDefaultIndex(1);
  EXPECT_EQ(lists.Delete("c"), 1);
  EXPECT_EQ(lists.DefaultIndex(), 0);
  EXPECT_EQ(lists.Delete("c"), 0);
}

TEST_F(UserListsTest, SystemListsAreAddedOnceUnderTheNamesOfTheStart) {
  CStringArray names;
  names.Add("First");
  lists.StartSystemLists(&names);
  lists.AddSystemLists(nullptr);
  EXPECT_EQ(lists.Lists().GetSize(), 6);
  EXPECT_STREQ(lists.Lists().At(0)->GetName(), "First");
  EXPECT_EQ(lists.UpdateSystemList(0, "2330.TW", false), 1);
  EXPECT_EQ(lists.UpdateSystemList(0, "2317.TW", false), 0) << "it is not empty any more";
  EXPECT_EQ(lists.UpdateSystemList(1, "2330.TW", true), 0) << "no name for it";
}

TEST_F(UserListsTest, ALoadAddsSystemListsOnlyWhereTheyAreWanted) {
  lists.Save();
  lists.LoadWithSystemLists();
  EXPECT_EQ(lists.Lists().GetSize(), 0);
  lists.WantSystemLists(true);
  lists.LoadWithSystemLists();
  EXPECT_EQ(lists.Lists().GetSize(), 6);
}

TEST_F(UserListsTest, IdsAreReplacedInAllListsAndSavedOnce) {
  lists.Add("a", "One", "2330.TW", true, false);
  lists.Add("b", "Two", "2317.TW", true, false);
  CStringArray before;
  CStringArray now;
  before.Add("23");
  now.Add("24");
  EXPECT_EQ(lists.ReplaceIds(before, now), 1);
  EXPECT_EQ(Shape(), "a/One/2430.TW|b/Two/2417.TW");
  EXPECT_EQ(lists.ReplaceIds(before, now), 0) << "nothing to replace any more";
}

} // namespace
