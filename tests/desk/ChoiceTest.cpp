// What is offered above the page.
#include "terminal/desk/Choice.h"

#include "tests/desk/DeskTest.h"

namespace {

using desk::Choice;
using desk::From;

class ChoiceTest : public DeskTest {
protected:
  template <class ENTRIES> static Texts Names(const ENTRIES& entries) {
    Texts names;
    for (const auto& entry : entries)
      names.push_back(Utf8(entry.name));
    return names;
  }
  static int PositionOf(const Choice& choice, const std::string& source) {
    const Texts names = Names(choice.Sources());
    return static_cast<int>(std::find(names.begin(), names.end(), source) - names.begin());
  }
};

TEST_F(ChoiceTest, BeginsWithTheListThatIsShownFirst) {
  manager.SetDefaultIndex(1);
  const Choice choice(manager);
  EXPECT_EQ(choice.SourceIndex(), 0);
  EXPECT_EQ(choice.ListIndex(), 1);
  EXPECT_EQ(choice.Chosen().list, "B");
}

TEST_F(ChoiceTest, BeginsWithTheFirstListWhenTheIndexLiesBehindTheLast) {
  manager.SetDefaultIndex(99);
  EXPECT_EQ(Choice(manager).Chosen().list, "A");
}

TEST_F(ChoiceTest, HasNoListWhenThereIsNone) {
  manager.ClearSymbolList();
  const Choice choice(manager);
  EXPECT_EQ(choice.SourceIndex(), 0);
  EXPECT_EQ(choice.ListIndex(), -1);
}

TEST_F(ChoiceTest, OffersTheGroupsOfEveryTypeThatTheServiceHas) {
  const Texts names = Names(Choice(manager).Sources());
  EXPECT_EQ(Texts(names.begin() + 4, names.end()),
            (Texts{"上市", Said("上櫃", "上柜"), "基金", Said("臺灣概念", "台湾概念"),
                   Said("臺指選", "台指选"), Said("雲自選", "云自选"), Said("推薦", "推荐")}));
}

TEST_F(ChoiceTest, ASourceIsShownFromItsFirstList) {
  Choice choice(manager);
  choice.ChooseSource(PositionOf(choice, "上市"));
  EXPECT_EQ(Names(choice.Lists()), (Texts{Said("半導體", "半导体"), "水泥"}));
  EXPECT_EQ(choice.Chosen(), (desk::Place{{From::Group, 1, "TSE"}, "CHIP"}));
}

TEST_F(ChoiceTest, AGroupWithoutSubGroupsIsOneEntry) {
  Choice choice(manager);
  choice.ChooseSource(PositionOf(choice, "基金"));
  EXPECT_EQ(Names(choice.Lists()), (Texts{Said("全部商品", "全部商品")}));
  EXPECT_EQ(choice.ListIndex(), 0);
}

TEST_F(ChoiceTest, AListStaysChosenWhenOthersComeAndGo) {
  Choice choice(manager);
  choice.ChooseList(1);
  ASSERT_EQ(manager.DeleteSymbolList("A"), 1);
  choice.Reload();
  EXPECT_EQ(choice.Chosen().list, "B");
  EXPECT_EQ(choice.ListIndex(), 0);
}

TEST_F(ChoiceTest, AListThatIsGoneMakesWayForTheFirst) {
  Choice choice(manager);
  choice.ChooseList(1);
  ASSERT_EQ(manager.DeleteSymbolList("B"), 1);
  choice.Reload();
  EXPECT_EQ(choice.Chosen().list, "A");
}

TEST_F(ChoiceTest, AGroupThatIsGoneMakesWayForTheUsersLists) {
  Choice choice(manager);
  choice.ChooseSource(PositionOf(choice, Said("臺指選", "台指选")));
  ASSERT_EQ(manager.RemoveGroupList(7), 1);
  ASSERT_EQ(manager.LoadGroupList(), 1);
  standin::Market market = standin::CurrentMarket();
  std::erase_if(market.groups, [](const standin::Group& group) { return group.type == 7; });
  standin::SetMarket(market);
  manager.LoadGroupList();
  choice.Reload();
  EXPECT_EQ(choice.Chosen(), (desk::Place{{From::UserLists}, "A"}));
}

TEST_F(ChoiceTest, WhatIsNotOfferedCannotBeChosen) {
  Choice choice(manager);
  for (const int index : {-1, 99}) {
    choice.ChooseSource(index);
    choice.ChooseList(index);
    EXPECT_EQ(choice.Chosen(), (desk::Place{{From::UserLists}, "A"}));
  }
}

} // namespace
