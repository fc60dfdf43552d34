// What the editors do to their copies of the lists: order, default list, names.
#include "dialogs/WorkingCopy.h"

#include <memory>
#include <string>

#include "platform/LibraryString.h"
#include "tests/support/StandInTest.h"

namespace {

class WorkingCopyTest : public StandInTest {
protected:
  static std::unique_ptr<CSymbolList> List(const char* name, const char* id = "id") {
    auto list = std::make_unique<CSymbolList>();
    list->SetID(id);
    list->SetName(name);
    return list;
  }
  // Lists with these one-letter names; the default one is in the third place.
  void Fill(const std::string& names, int defaultIndex = 2) {
    for (const char name : names)
      copy.Add(List(std::string(1, name).c_str()));
    copy.SetDefaultIndex(defaultIndex);
  }
  // The names, with "*" behind that of the default list.
  std::string Names() {
    std::string names;
    for (int i = 0; i < copy.Count(); ++i)
      names += std::string(copy.At(i).GetName()) + (i == copy.DefaultIndex() ? "*" : "");
    return names;
  }
  tq::WorkingCopy copy;
};

using Rule = tq::WorkingCopy::DefaultRule;

TEST_F(WorkingCopyTest, TheOnlyListIsTheDefaultOne) {
  EXPECT_EQ(copy.Add(List("a")), 0);
  EXPECT_EQ(Names(), "a*");
  EXPECT_EQ(copy.Add(List("b")), 1);
  EXPECT_EQ(Names(), "a*b");
}

TEST_F(WorkingCopyTest, AListAddedToOthersIsNoDefault) {
  Fill("ab", -1);
  copy.Add(List("c"));
  EXPECT_EQ(copy.DefaultIndex(), -1);
}

TEST_F(WorkingCopyTest, TheMarkGoesWithTheListThatHasIt) {
  Fill("abcd");
  EXPECT_EQ(copy.MoveUp(2), 1);
  EXPECT_EQ(Names(), "ac*bd");
  EXPECT_EQ(copy.MoveDown(0), 1);
  EXPECT_EQ(Names(), "c*abd");
  EXPECT_EQ(copy.MoveDown(2), 3);
  EXPECT_EQ(Names(), "c*adb");
}

TEST_F(WorkingCopyTest, NothingMovesPastTheEnds) {
  Fill("abc");
  EXPECT_EQ(copy.MoveUp(0), -1);
  EXPECT_EQ(copy.MoveDown(2), -1);
  EXPECT_EQ(copy.MoveUp(-1), -1);
  EXPECT_EQ(copy.MoveDown(3), -1);
  EXPECT_EQ(Names(), "abc*");
}

TEST_F(WorkingCopyTest, TheEditorsDefaultListStaysInPlaceWhenItGoes) {
  Fill("abcd");
  EXPECT_EQ(copy.Remove(2, Rule::StaysInPlace), 2);
  EXPECT_EQ(Names(), "abd*");
  EXPECT_EQ(copy.Remove(2, Rule::StaysInPlace), 1);
  EXPECT_EQ(Names(), "ab*");
  EXPECT_EQ(copy.Remove(0, Rule::StaysInPlace), 0);
  EXPECT_EQ(Names(), "b*");
  EXPECT_EQ(copy.Remove(0, Rule::StaysInPlace), -1);
  EXPECT_EQ(copy.DefaultIndex(), -1);
}

TEST_F(WorkingCopyTest, AListBehindTheDefaultOneGoesWithoutATrace) {
  for (const Rule rule : {Rule::StaysInPlace, Rule::StepsBack}) {
    copy.Clear();
    Fill("abc", 0);
    EXPECT_EQ(copy.Remove(2, rule), 1);
    EXPECT_EQ(Names(), "a*b");
  }
}

TEST_F(WorkingCopyTest, TheSelectionsDefaultStepsBack) {
  Fill("abcd");
  EXPECT_EQ(copy.Remove(2, Rule::StepsBack), 2);
  EXPECT_EQ(Names(), "ab*d");
  EXPECT_EQ(copy.Remove(0, Rule::StepsBack), 0);
  EXPECT_EQ(Names(), "b*d");
  EXPECT_EQ(copy.Remove(0, Rule::StepsBack), 0);
  EXPECT_EQ(Names(), "d");
  EXPECT_EQ(copy.DefaultIndex(), -1);
  EXPECT_EQ(copy.Remove(0, Rule::StepsBack), -1);
  EXPECT_EQ(copy.DefaultIndex(), -1);
}

TEST_F(WorkingCopyTest, NamesAreComparedExactlyAndNotWithTheirOwn) {
  Fill("ab");
  EXPECT_TRUE(copy.HasName("a", -1));
  EXPECT_TRUE(copy.HasName("a", 1));
  EXPECT_FALSE(copy.HasName("a", 0));
  EXPECT_FALSE(copy.HasName("A", -1));
}

TEST_F(WorkingCopyTest, AnEditedListTakesThePlaceOfTheOld) {
  Fill("abc");
  copy.Replace(1, List("x", "other"));
  EXPECT_EQ(Names(), "axc*");
  EXPECT_EQ(copy.Find("OTHER"), 1);
}

TEST_F(WorkingCopyTest, ASystemListIsMarkedWhereItIsShown) {
  EXPECT_STREQ(tq::DisplayName(*List("mine")), "mine");
  EXPECT_STREQ(tq::DisplayName(*List("mine", "ZUSYSLIST3")),
               CString("mine") + tq::LibraryString(tq::kStringSystemList));
}

} // namespace
