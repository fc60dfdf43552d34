// Reading the tree from a sound and from a broken service.
#include "groups/GroupLoader.h"

#include "tests/groups/GroupRecords.h"

namespace {

using groups::Answer;
using groups::Record;

class GroupLoaderTest : public StandInTest {
protected:
  std::string Load(int type = 1) {
    level.Clear();
    loaded = tq::GroupLoader().Load(type, level);
    return groups::Shape(level);
  }
  int Calls() { return standin::CountCalls("VLGetSubGroup"); }

  tq::GroupLevel level;
  bool loaded = false;
};

TEST_F(GroupLoaderTest, TwoLevelsInTheServicesOrder) {
  Answer(1, "", {Record(1, "b", "B", 1), Record(1, "a", "A"), Record(1, "c", "C", 1)});
  Answer(1, "b", {Record(1, "z", "Z"), Record(1, "y", "Y")});
  Answer(1, "c", {Record(1, "x", "X")});
  EXPECT_EQ(Load(), "b/B(z/Z y/Y) a/A c/C(x/X)");
  EXPECT_TRUE(loaded);
  ASSERT_EQ(Calls(), 3);
  EXPECT_EQ(standin::Calls()[0].arguments, "1,");
  EXPECT_EQ(standin::Calls()[1].arguments, "1,b");
  EXPECT_EQ(standin::Calls()[2].arguments, "1,c");
}

TEST_F(GroupLoaderTest, RecordsAreTheServicesByteForByte) {
  GroupInfo record = Record(1, "a", "A", 77);
  record.szID[10] = 'q';
  Answer(1, "", {record});
  Load();
  EXPECT_EQ(std::memcmp(&level.InfoAt(0), &record, sizeof(record)), 0);
}

TEST_F(GroupLoaderTest, DeeperLevelsAreReadToo) {
  Answer(1, "", {Record(1, "a", "A", 1)});
  Answer(1, "a", {Record(1, "b", "B", 1)});
  Answer(1, "b", {Record(1, "c", "C", 1)});
  Answer(1, "c", {Record(1, "d", "D")});
  EXPECT_EQ(Load(), "a/A(b/B(c/C(d/D)))");
}

TEST_F(GroupLoaderTest, SubGroupsAreAskedForWithTheRecordsOwnType) {
  Answer(1, "", {Record(5, "a", "A", 1)});
  Answer(5, "a", {Record(9, "b", "B")});
  EXPECT_EQ(Load(), "a/A(b/B)");
  EXPECT_EQ(standin::Calls()[1].arguments, "5,a");
}

TEST_F(GroupLoaderTest, AnyNonZeroMarkMeansSubGroups) {
  Answer(1, "", {Record(1, "a", "A", -1), Record(1, "b", "B", 0)});
  Answer(1, "a", {Record(1, "x", "X")});
  Answer(1, "b", {Record(1, "y", "Y")});
  EXPECT_EQ(Load(), "a/A(x/X) b/B");
}

TEST_F(GroupLoaderTest, FailureLeavesTheLevelEmpty) {
  Answer(1, "", {Record(1, "a", "A")});
  standin::FailCall("VLGetSubGroup", 1);
  EXPECT_EQ(Load(), "");
  EXPECT_FALSE(loaded);
}

TEST_F(GroupLoaderTest, FailureBelowLeavesThatGroupWithoutSubGroups) {
  Answer(1, "", {Record(1, "a", "A", 1), Record(1, "b", "B", 1)});
  Answer(1, "a", {Record(1, "x", "X")});
  Answer(1, "b", {Record(1, "y", "Y")});
  standin::FailCall("VLGetSubGroup", 2);
  EXPECT_EQ(Load(), "a/A b/B(y/Y)");
  EXPECT_TRUE(loaded);
}

TEST_F(GroupLoaderTest, CountsThatLieAreHeldToTheArray) {
  for (const int count : {-1, -2000000000, 3}) {
    standin::AnswerGroups(1, "", {}, count);
    EXPECT_EQ(Load(), "");
    EXPECT_TRUE(loaded);
  }
  standin::AnswerGroups(1, "", {Record(1, "a", "A"), Record(1, "b", "B")}, -1);
  EXPECT_EQ(Load(), "");
  standin::AnswerGroups(1, "", {Record(1, "a", "A"), Record(1, "b", "B")}, 1);
  EXPECT_EQ(Load(), "a/A");
}

TEST_F(GroupLoaderTest, UnterminatedTextsEndWithTheirField) {
  GroupInfo raw;
  std::memset(&raw, 'z', sizeof(raw));
  raw.nType = 1;
  Answer(1, "", {raw});
  Answer(1, std::string(16, 'z'), {Record(1, "a", "A")});
  EXPECT_EQ(Load(), std::string(16, 'z') + "/" + std::string(48, 'z') + "(a/A)");
}

TEST_F(GroupLoaderTest, AGroupThatNamesItselfAsParentIsNotAskedForAgain) {
  Answer(1, "", {Record(1, "a", "A", 1)});
  Answer(1, "a", {Record(1, "a", "A", 1)});
  EXPECT_EQ(Load(), "a/A(a/A)");
  EXPECT_EQ(Calls(), 2);
}

TEST_F(GroupLoaderTest, ACycleOverTwoLevelsEnds) {
  Answer(1, "", {Record(1, "a", "A", 1)});
  Answer(1, "a", {Record(1, "b", "B", 1)});
  Answer(1, "b", {Record(1, "a", "A", 1)});
  EXPECT_EQ(Load(), "a/A(b/B(a/A))");
  EXPECT_EQ(Calls(), 3);
}

TEST_F(GroupLoaderTest, AGroupWithoutIdDoesNotBringTheFirstLevelAgain) {
  Answer(1, "", {Record(1, "", "None", 1), Record(1, "a", "A")});
  EXPECT_EQ(Load(), "/None a/A");
  EXPECT_EQ(Calls(), 1);
}

TEST_F(GroupLoaderTest, TheSameIdElsewhereInTheTreeIsAskedForThereToo) {
  Answer(1, "", {Record(1, "a", "A", 1), Record(1, "a", "A2", 1), Record(2, "a", "A3", 1)});
  Answer(1, "a", {Record(1, "x", "X")});
  Answer(2, "a", {Record(1, "y", "Y")});
  EXPECT_EQ(Load(), "a/A(x/X) a/A2(x/X) a/A3(y/Y)");
}

TEST_F(GroupLoaderTest, AChainWithoutEndIsReadToTheDeepestLevel) {
  Answer(1, "", {Record(1, "0", "", 1)});
  for (int i = 0; i < 100; ++i)
    Answer(1, std::to_string(i), {Record(1, std::to_string(i + 1), "", 1)});
  Load();
  EXPECT_EQ(Calls(), static_cast<int>(tq::kDeepestLevel));
}

TEST_F(GroupLoaderTest, AHundredThousandGroupsThatNameThemselves) {
  constexpr int count = 100'000;
  std::vector<GroupInfo> records;
  for (int i = 0; i < count; ++i) {
    records.push_back(Record(1, "g" + std::to_string(i), "Name", 1));
    Answer(1, records.back().szID, {records.back()});
  }
  Answer(1, "", records);
  standin::RecordCalls(false);
  Load();
  ASSERT_EQ(level.Count(), count);
  for (int i = 0; i < count; ++i)
    ASSERT_EQ(level.SubCountAt(i), 1);
}

// A thousand groups that each have all of them as sub-groups.
TEST_F(GroupLoaderTest, GroupsThatAllNameOneAnotherEndAtTheMostGroups) {
  std::vector<GroupInfo> records;
  for (int i = 0; i < 1000; ++i)
    records.push_back(Record(1, "g" + std::to_string(i), "", 1));
  Answer(1, "", records);
  for (const GroupInfo& record : records)
    Answer(1, record.szID, records);
  Load();
  EXPECT_EQ(level.Count(), 1000);
  EXPECT_LE(Calls(), 1001);
}

} // namespace
