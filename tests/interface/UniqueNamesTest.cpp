// Names that are made unique among the user's lists.
#include "tests/interface/WholeListsTest.h"

namespace {

TEST_F(WholeListsTest, AFreeNameIsLeftAlone) {
  StartWith({"a/A/", "b/B/"});
  EXPECT_STREQ(manager.AdjustFileName("C"), "C");
  EXPECT_STREQ(manager.AdjustFileName("C(1)"), "C(1)");
}

TEST_F(WholeListsTest, ATakenNameGetsOneThenTwoInItsPlace) {
  StartWith({"a/Chips/", "b/Other/"});
  EXPECT_STREQ(manager.AdjustFileName("CHIPS"), "CHIPS(1)");
  ASSERT_EQ(Add("c", "chips", "2330.TW"), 1);
  EXPECT_EQ(NameAt(2), "chips(1)");
  EXPECT_STREQ(manager.AdjustFileName("CHIPS"), "CHIPS(2)");
}

TEST_F(WholeListsTest, ANameWithItsNumberIsRenumbered) {
  StartWith({"a/A(1)/"});
  EXPECT_STREQ(manager.AdjustFileName("A(1)"), "A(2)");
}

TEST_F(WholeListsTest, AnotherNumberIsNoSuffixToRenumber) {
  StartWith({"a/A(2)/", "b/A(2)(1)/"});
  EXPECT_STREQ(manager.AdjustFileName("A(2)"), "A(2)(2)");
}

TEST_F(WholeListsTest, EveryOccurrenceOfTheSuffixIsRenumbered) {
  StartWith({"a/(1)A(1)/", "b/(2)A(2)/"});
  EXPECT_STREQ(manager.AdjustFileName("(1)A(1)"), "(3)A(3)");
}

TEST_F(WholeListsTest, AfterAHundredNumbersTheNameIsRefused) {
  StartWith({});
  for (int i = 0; i <= 100; ++i)
    ASSERT_EQ(Add("", "A", "2330.TW"), 1) << i;
  EXPECT_EQ(NameAt(1), "A(1)");
  EXPECT_EQ(NameAt(100), "A(100)");
  EXPECT_STREQ(manager.AdjustFileName("a"), "a(100)");
  const std::string working = ReadWorking();
  EXPECT_EQ(Add("", "A", "2330.TW"), 0);
  EXPECT_EQ(manager.GetSymbolListCount(1), 101);
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(WholeListsTest, NamesOfFullLengthAreMadeUniqueWithinIt) {
  StartWith({});
  const std::string name(64, 'n');
  for (int i = 0; i < 12; ++i)
    ASSERT_EQ(Add("", (name + "tail").c_str(), "2330.TW"), 1);
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(NameAt(i).size(), 64u);
    EXPECT_EQ(manager.CheckNameExist(NameAt(i).c_str(), 1, i, 1), 0) << i;
  }
}

TEST_F(WholeListsTest, OnlyUserListsTakeANameFromAUserList) {
  StartWith({});
  ASSERT_EQ(manager.AddCloudSymbolList("k", "Cloud", "2330.TW", 0), 1);
  EXPECT_STREQ(manager.AdjustFileName("Cloud"), "Cloud");
  EXPECT_EQ(Add("k", "Cloud", "2317.TW"), 1);
  EXPECT_EQ(Shape(), "k/Cloud/2317.TW");
}

} // namespace
