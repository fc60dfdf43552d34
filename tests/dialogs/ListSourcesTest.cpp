// What the selection of a list offers, and how a terminal is told of a choice.
#include "dialogs/editors/ListSources.h"

#include <algorithm>

#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"

namespace {

using tq::SourceCode;

class ListSourcesTest : public EditTest {
protected:
  ListSourcesTest() {
    standin::Market market = GroupMarket();
    market.groups.push_back({3, "", "HOLD", "H", "H", {}});
    market.groups.push_back({3, "HOLD", "H1", "one", "one", {"2330.TW"}});
    market.groups.push_back({101, "", "ED", "E", "E", {}});
    market.groups.push_back({101, "ED", "E1", "two", "two", {"2330.TW"}});
    standin::SetMarket(market);
    StartWith({"A/one/2330.TW"});
  }
  // Codes and group types: "0 1 3 4 g1 ...".
  std::string Offered(bool holdings) {
    std::string text;
    for (const tq::ListSource& source : tq::ListSources(manager, holdings)) {
      text += text.empty() ? "" : " ";
      text += source.code == SourceCode::Group ? "g" + std::to_string(source.group.nType)
                                               : std::to_string(static_cast<int>(source.code));
    }
    return text;
  }
  tq::ListSource GroupSource(int type) {
    const auto sources = tq::ListSources(manager, true);
    return *std::find_if(sources.begin(), sources.end(),
                         [type](const tq::ListSource& s) { return s.group.nType == type; });
  }
  static std::string Text(const tq::ListChoice& choice) {
    return std::to_string(choice.kind) + "/" + standin::FromAnsi(choice.text.GetString());
  }
  const tq::SourceItem item = {"name", "ID"};
};

TEST_F(ListSourcesTest, GroupsOfHoldingsAreOfferedOnRequest) {
  EXPECT_EQ(Offered(false), "0 1 3 4 g1 g1 g1 g101 g201 g201");
  EXPECT_EQ(Offered(true), "0 1 3 4 g1 g1 g1 g3 g101 g201 g201");
}

TEST_F(ListSourcesTest, AllSymbolsAreOneItem) {
  const auto items = tq::ItemsOf(manager, {SourceCode::AllSymbols, ""});
  ASSERT_EQ(items.size(), 1u);
  EXPECT_EQ(standin::FromAnsi(items[0].name.GetString()), "全部商品");
}

TEST_F(ListSourcesTest, AGroupsItemsAreItsSubGroups) {
  const auto items = tq::ItemsOf(manager, GroupSource(1));
  ASSERT_EQ(items.size(), 2u);
  EXPECT_STREQ(items[1].id, "CEM");
  EXPECT_EQ(standin::FromAnsi(items[1].name.GetString()), "水泥");
}

TEST_F(ListSourcesTest, HoldingsAreTheListsOfKind6) {
  EXPECT_TRUE(tq::ItemsOf(manager, {SourceCode::Holdings, ""}).empty());
  ASSERT_EQ(manager.AddTSSymbolList("T1", 6, "mine", "2330.TW", 0), 0); // not wanted by this start
  ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 1);
  ASSERT_EQ(manager.AddTSSymbolList("T1", 6, "mine", "2330.TW", 0), 1);
  const auto items = tq::ItemsOf(manager, {SourceCode::Holdings, ""});
  ASSERT_FALSE(items.empty());
  EXPECT_STREQ(items.back().id, "T1");
}

TEST_F(ListSourcesTest, AChoiceOfAListIsItsKindAndIdentifier) {
  EXPECT_EQ(Text(tq::ChoiceOf({SourceCode::UserLists, "x"}, &item)), "1/ID");
  EXPECT_EQ(Text(tq::ChoiceOf({SourceCode::Holdings, "x"}, &item)), "6/ID");
  EXPECT_EQ(Text(tq::ChoiceOf({SourceCode::Cloud, "x"}, &item)), "8/ID");
}

TEST_F(ListSourcesTest, AChoiceOfAGroupIsItsKindAndBothNames) {
  EXPECT_EQ(Text(tq::ChoiceOf(GroupSource(1), &item)), "2/上市,name");
  EXPECT_EQ(Text(tq::ChoiceOf(GroupSource(3), &item)), "3/H,name");
  EXPECT_EQ(Text(tq::ChoiceOf(GroupSource(101), &item)), "7/E,name");
  const tq::ListSource other = {SourceCode::Group, "G", {9, "g", "G", 0}};
  EXPECT_EQ(Text(tq::ChoiceOf(other, &item)), "2/G,name");
}

TEST_F(ListSourcesTest, AChoiceOfAllSymbolsIsKind4AndTheItemsName) {
  EXPECT_EQ(Text(tq::ChoiceOf({SourceCode::AllSymbols, "x"}, &item)), "4/name");
}

TEST_F(ListSourcesTest, AChoiceWithoutAnItemHasNoneInItsText) {
  EXPECT_EQ(Text(tq::ChoiceOf({SourceCode::UserLists, "x"}, nullptr)), "1/");
  EXPECT_EQ(Text(tq::ChoiceOf(GroupSource(1), nullptr)), "2/上市,");
}

TEST_F(ListSourcesTest, AChoiceOfBeforeIsKnownAgain) {
  EXPECT_TRUE(tq::IsChoice({1, "id"}, {SourceCode::UserLists, "x"}, item)); // letter case ignored
  EXPECT_FALSE(tq::IsChoice({6, "ID"}, {SourceCode::UserLists, "x"}, item));
  EXPECT_FALSE(tq::IsChoice({1, "ID2"}, {SourceCode::UserLists, "x"}, item));
  EXPECT_TRUE(tq::IsChoice({3, "H,name"}, GroupSource(3), item));
}

} // namespace
