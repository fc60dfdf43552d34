// Default exchanges with the records that go with them, made without a manager.
#include "exchanges/DefaultExchanges.h"

#include <string>

#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"

namespace {

CUIntArray Ids(std::initializer_list<unsigned> ids) {
  CUIntArray array;
  for (const unsigned id : ids)
    array.Add(id);
  return array;
}

std::string Text(const CUIntArray& ids) {
  std::string text;
  for (const unsigned id : ids)
    text += (text.empty() ? "" : ",") + std::to_string(id);
  return text;
}

class DefaultExchangesTest : public StandInTest {
protected:
  std::string NameAt(int index) const {
    const ExchInfo* const record = defaults.RecordAt(index);
    return record == nullptr ? "(none)" : record->name;
  }

  tq::DefaultExchanges defaults;
};

TEST_F(DefaultExchangesTest, BeginEmptyAndAskNothing) {
  EXPECT_TRUE(defaults.Ids().IsEmpty());
  EXPECT_EQ(NameAt(0), "(none)");
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(DefaultExchangesTest, AreThoseOfTheLogin) {
  EXPECT_EQ(defaults.Init(), 1);
  EXPECT_EQ(Text(defaults.Ids()), "1,2");
  EXPECT_EQ(NameAt(0) + NameAt(1) + NameAt(2) + NameAt(-1), "TWTE(none)(none)");
  EXPECT_TRUE(defaults.Contains(2));
  EXPECT_FALSE(defaults.Contains(3));
}

TEST_F(DefaultExchangesTest, AreTheUsersWhereTheyAreUsedOrTheLoginIsOutOfReach) {
  defaults.SetUsers(Ids({11, 99}));
  defaults.UseUsers(1);
  EXPECT_EQ(defaults.Init(), 1);
  EXPECT_EQ(Text(defaults.Ids()), "11,99");
  EXPECT_EQ(NameAt(0) + NameAt(1), "NASD(none)") << "the service lists no exchange 99";
  defaults.UseUsers(0);
  standin::FailAlways("TQSGetUserInfo");
  defaults.Init();
  EXPECT_EQ(Text(defaults.Ids()), "11,99");
}

TEST_F(DefaultExchangesTest, WithoutTheServicesListTheyHaveNoRecords) {
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(defaults.Init(), 0);
  EXPECT_EQ(Text(defaults.Ids()), "1,2");
  EXPECT_EQ(NameAt(0), "(none)");
}

TEST_F(DefaultExchangesTest, HaveChangedWithTheLoginsOrder) {
  defaults.Init();
  EXPECT_FALSE(defaults.HaveChanged());
  standin::Market market = standin::CurrentMarket();
  market.defaults = "2,1";
  standin::SetMarket(market);
  EXPECT_TRUE(defaults.HaveChanged());
  standin::FailCall("TQSGetUserInfo", 1);
  EXPECT_FALSE(defaults.HaveChanged()) << "nobody knows";
}

TEST_F(DefaultExchangesTest, AreGoneWhenCleared) {
  defaults.Init();
  defaults.Clear();
  EXPECT_TRUE(defaults.Ids().IsEmpty());
  EXPECT_EQ(NameAt(0), "(none)");
  EXPECT_EQ(standin::OutstandingArrays(), 0);
}

TEST_F(DefaultExchangesTest, TheTerminalMayStartThemAnewWhileTheServiceIsAsked) {
  standin::OnCall("VLGetExch", [this] { defaults.Init(); });
  EXPECT_EQ(defaults.Init(), 1);
  standin::OnCall("VLGetExch", {});
  EXPECT_EQ(NameAt(0) + NameAt(1), "TWTE");
}

TEST(MoveDefaultsForward, PassesOverTheIdThatSlidesIntoAFreedPlace) {
  CUIntArray ids = Ids({1, 2, 3, 4, 5});
  tq::MoveDefaultsForward(ids, Ids({4}));
  EXPECT_EQ(Text(ids), "2,4,1,5,3");
}

} // namespace
