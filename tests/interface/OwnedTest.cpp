// The owners of what the manager hands out. The fixture counts what the service gets back; copies
// of lists that nobody deletes are found by the sanitizer.
#include "manager/TQSymbolOwned.h"

#include <string>
#include <utility>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class OwnedTest : public EditTest {};

TEST_F(OwnedTest, RecordsOfAnExchangeGoBackToTheService) {
  StartWith({"a/A/2330.TW"});
  const int before = standin::OutstandingArrays(); // the manager's own
  {
    const auto symbols = TQGetSymbolInfos(manager, 1);
    EXPECT_TRUE(symbols);
    EXPECT_EQ(standin::OutstandingArrays(), before + 1);
    ASSERT_GT(symbols.Count(), 0);
    int count = 0;
    for (const SymbolInfo& symbol : symbols)
      count += symbol.exchId == 1 ? 1 : 0;
    EXPECT_EQ(count, symbols.Count());
    EXPECT_EQ(&symbols[0], symbols.begin());
  }
  EXPECT_EQ(standin::OutstandingArrays(), before);
}

TEST_F(OwnedTest, AttributesGoBackToTheService) {
  StartWith({"a/A/2330.TW"});
  const auto attributes = TQGetBaseAttrs(manager, "2330.TW,2317.TW");
  EXPECT_TRUE(attributes);
  ASSERT_EQ(attributes.Count(), 2);
  EXPECT_STREQ(attributes[1].code, "2317");
}

TEST_F(OwnedTest, AFailureHasNoRecords) {
  StartWith({"a/A/2330.TW"});
  const auto symbols = TQGetSymbolInfos(manager, 99);
  EXPECT_FALSE(symbols);
  EXPECT_EQ(symbols.Count(), 0);
  EXPECT_EQ(symbols.begin(), symbols.end());
}

TEST_F(OwnedTest, NothingFoundIsASuccess) {
  StartWith({"a/A/2330.TW"});
  const auto attributes = TQGetBaseAttrs(manager, "gone.TW");
  EXPECT_TRUE(attributes);
  EXPECT_EQ(attributes.Count(), 0);
}

TEST_F(OwnedTest, AMovedOwnerHasNothingLeft) {
  StartWith({"a/A/2330.TW"});
  const int before = standin::OutstandingArrays();
  auto first = TQGetBaseAttrs(manager, "2330.TW");
  auto second = TQGetBaseAttrs(manager, "2330.TW,2317.TW");
  first = std::move(second);
  EXPECT_EQ(standin::OutstandingArrays(), before + 1);
  EXPECT_EQ(first.Count(), 2);
  EXPECT_EQ(second.Count(), 0); // NOLINT(bugprone-use-after-move): it is empty by its word
  EXPECT_FALSE(second);
}

TEST_F(OwnedTest, AllSymbolsAreThoseOfTheBuffer) {
  StartWith({"a/A/2330.TW"});
  manager.SortAllSymbolByExch();
  int count = 0;
  const auto shared = manager.ShareAllSymbolInfos(&count);
  const TQManagerRecords all = TQGetAllSymbolInfos(manager);
  EXPECT_TRUE(all);
  ASSERT_EQ(all.Count(), count);
  ASSERT_GT(count, 0);
  EXPECT_NE(all.begin(), shared.get()); // a copy
  EXPECT_STREQ(all[0].id, shared[0].id);
  CTQSymbolListMgr fresh;
  EXPECT_FALSE(TQGetAllSymbolInfos(fresh));
}

TEST_F(OwnedTest, ListsAreCopies) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  const TQOwnedLists lists = TQGetSymbolLists(manager, TQListKindUser);
  ASSERT_EQ(lists.Count(), 2);
  lists[1].SetName("Other");
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
  EXPECT_EQ(TQGetSymbolLists(manager, 5).Count(), 0);
}

TEST_F(OwnedTest, ListsCanBeEditedAndHandedBack) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  TQOwnedLists lists = TQGetSymbolLists(manager, TQListKindUser);
  auto first = lists.Take(0);
  EXPECT_EQ(lists.Count(), 1);
  EXPECT_STREQ(first->GetID(), "a");
  lists.Add(std::move(first));
  lists.Add(nullptr);
  EXPECT_EQ(manager.SetSymbolList(&lists.Array()), 1);
  EXPECT_EQ(Shape(), "b/B/2317.TW|a/A/2330.TW");
  EXPECT_EQ(lists.Count(), 2);
}

TEST_F(OwnedTest, ListsMoveWithTheirOwner) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  TQOwnedLists lists = TQGetSymbolLists(manager, TQListKindUser);
  TQOwnedLists others = TQGetSymbolLists(manager, TQListKindUser);
  delete others.Take(0).release();
  lists = std::move(others);
  ASSERT_EQ(lists.Count(), 1);
  EXPECT_STREQ(lists[0].GetID(), "b");
  EXPECT_EQ(others.Count(), 0); // NOLINT(bugprone-use-after-move): it is empty by its word
}

} // namespace
