// Checks of names, identifiers and working copies.
#include <string>

#include "tests/interface/ListText.h"

namespace {

using namespace listtext;

class ListTextCheckTest : public EditTest {
protected:
  void Start() {
    StartWith({"a/Alpha/2330.TW", "b/Beta/2317.TW", "A/Gamma/", "c/ALPHA/"});
    ASSERT_EQ(manager.AddCloudSymbolList("k", "Cloud", "2330.TW", 0), 1);
  }
};

TEST_F(ListTextCheckTest, ANameIsFoundIgnoringCaseAndWholeOnly) {
  Start();
  EXPECT_NE(manager.CheckNameExist("bETA", 0, 0, 1), 0);
  EXPECT_EQ(manager.CheckNameExist("Bet", 0, 0, 1), 0);
  EXPECT_EQ(manager.CheckNameExist("Betas", 0, 0, 1), 0);
}

TEST_F(ListTextCheckTest, TheListToSkipIsSkippedOnlyWhenAsked) {
  Start();
  EXPECT_EQ(manager.CheckNameExist("Beta", 1, 1, 1), 0);
  EXPECT_NE(manager.CheckNameExist("Beta", 0, 1, 1), 0);
  EXPECT_NE(manager.CheckNameExist("Beta", 1, 0, 1), 0);
  EXPECT_NE(manager.CheckNameExist("Alpha", 1, 0, 1), 0);
}

TEST_F(ListTextCheckTest, IdAndNameAreAnsweredInBitsOfTheFirstListWithTheId) {
  Start();
  EXPECT_EQ(manager.CheckIDandName("B", "beta", 1), 3);
  EXPECT_EQ(manager.CheckIDandName("b", "Alpha", 1), 1);
  EXPECT_EQ(manager.CheckIDandName("z", "Alpha", 1), 0);
  EXPECT_EQ(manager.CheckIDandName("a", "Gamma", 1), 1);
  EXPECT_EQ(manager.CheckIDandName("A", "Alpha", 1), 3);
}

TEST_F(ListTextCheckTest, AnIdIsFoundIgnoringCase) {
  Start();
  EXPECT_EQ(manager.CheckSymbolListExist("B", 1), 1);
  EXPECT_EQ(manager.CheckSymbolListExist("bb", 1), 0);
  EXPECT_EQ(manager.CheckSymbolListExist("K", 8), 1);
  EXPECT_EQ(manager.CheckSymbolListExist("k", 1), 0);
}

TEST_F(ListTextCheckTest, AnIdWithExactlyThatNameIsFoundInAnyList) {
  Start();
  EXPECT_EQ(manager.CheckListAndNameExist("B", "Beta", 1), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("b", "beta", 1), 0);
  EXPECT_EQ(manager.CheckListAndNameExist("a", "Alpha", 1), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("a", "Gamma", 1), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("a", "ALPHA", 1), 0);
}

TEST_F(ListTextCheckTest, EachKindHasItsOwnListsAndOtherKindsHaveNone) {
  Start();
  EXPECT_NE(manager.CheckNameExist("cloud", 0, 0, 8), 0);
  EXPECT_EQ(manager.CheckIDandName("K", "CLOUD", 8), 3);
  for (int kind : {-1, 0, 2, 3, 4, 5, 6, 7, 9, 201}) {
    for (const char* name : {"Cloud", "Alpha"})
      EXPECT_EQ(manager.CheckNameExist(name, 0, 0, kind), 0) << kind;
    EXPECT_EQ(manager.CheckIDandName("k", "Cloud", kind), 0) << kind;
    EXPECT_EQ(manager.CheckIDandName("a", "Alpha", kind), 0) << kind;
    EXPECT_EQ(manager.CheckSymbolListExist("k", kind), 0) << kind;
    EXPECT_EQ(manager.CheckListAndNameExist("k", "Cloud", kind), 0) << kind;
  }
}

TEST_F(ListTextCheckTest, ListsOfTradingAccountsAreAKindOfTheirOwn) {
  ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 1);
  ASSERT_EQ(manager.AddTSSymbolList("t", 6, "Held", "2330.TW", 0), 1);
  EXPECT_NE(manager.CheckNameExist("HELD", 0, 0, 6), 0);
  EXPECT_EQ(manager.CheckIDandName("T", "held", 6), 3);
  EXPECT_EQ(manager.CheckSymbolListExist("T", 6), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("T", "Held", 6), 1);
  for (int kind : {1, 8}) {
    EXPECT_EQ(manager.CheckNameExist("Held", 0, 0, kind), 0);
    EXPECT_EQ(manager.CheckIDandName("t", "Held", kind), 0);
  }
}

TEST_F(ListTextCheckTest, AnUntouchedWorkingCopyIsNotModified) {
  Start();
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  EXPECT_TRUE(manager.IsModifyList(&copies, 1));
  EXPECT_TRUE(manager.IsModifyList(nullptr, 0));
  DeleteCopies(copies);
}

TEST_F(ListTextCheckTest, AnotherNameContentOrNumberIsAModification) {
  Start();
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  CSymbolList* second = static_cast<CSymbolList*>(copies[1]);
  second->SetName("BETA");
  EXPECT_TRUE(manager.IsModifyList(&copies, 0));
  second->SetName("Beta");
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  second->Update1("2317.TW,NOSUCH.TW");
  EXPECT_TRUE(manager.IsModifyList(&copies, 0));
  second->Update1("2317.TW");
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  delete static_cast<CSymbolList*>(copies[3]);
  copies.RemoveAt(3);
  EXPECT_TRUE(manager.IsModifyList(&copies, 0));
  DeleteCopies(copies);
}

TEST_F(ListTextCheckTest, AnotherIdentifierAloneIsNone) {
  Start();
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  static_cast<CSymbolList*>(copies[1])->SetID("other");
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  DeleteCopies(copies);
}

TEST_F(ListTextCheckTest, CloudCopiesAreComparedWithTheCloudListsAlone) {
  Start();
  manager.SetDefaultIndex(3);
  CPtrArray copies;
  manager.GetSymbolList(copies, 8);
  ASSERT_EQ(copies.GetSize(), 1);
  EXPECT_FALSE(manager.IsModifyCountList(&copies));
  CSymbolList* copy = static_cast<CSymbolList*>(copies[0]);
  copy->SetName("cloud");
  EXPECT_TRUE(manager.IsModifyCountList(&copies));
  copy->SetName("Cloud");
  copy->Update1("2317.TW");
  EXPECT_TRUE(manager.IsModifyCountList(&copies));
  DeleteCopies(copies);
  EXPECT_TRUE(manager.IsModifyCountList(&copies));
  EXPECT_TRUE(manager.IsModifyCountList(nullptr));
}

} // namespace
