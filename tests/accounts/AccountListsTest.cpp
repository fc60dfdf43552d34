// Lists of trading accounts, made without a manager.
#include "accounts/AccountLists.h"

#include <string>

#include "idlist/ListKind.h"
#include "platform/Log.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"
#include "tests/support/TradingMarket.h"

namespace {

constexpr char kAll[] = "ALLMYSTOCKLISTS";

class AccountListsTest : public StandInTest {
protected:
  // Lines are looked at here, and a log once opened stays for the process.
  static void SetUpTestSuite() { tq::OpenLog(); }

  AccountListsTest()
      : accounts([this](int kind) -> const tq::OwnedLists& {
          return kind == tq::kTradingLists ? accounts.Lists() : others;
        }) {
    standin::SetMarket(TradingMarket());
  }

  void Start() {
    accounts.Want(true);
    accounts.Start(directory.Joined("TSList.xml").c_str());
  }
  std::string SymbolsOf(const char* id) const {
    CSymbolList* const list = accounts.Lists().Find(id);
    return list == nullptr ? "(none)" : list->GetIDs().GetString();
  }

  TempDir directory;
  tq::OwnedLists others;
  tq::AccountLists accounts;
};

TEST_F(AccountListsTest, DoNothingWhileTheyAreNotWanted) {
  accounts.Start(directory.Joined("TSList.xml").c_str());
  EXPECT_EQ(accounts.AddAllHoldings(), 0);
  accounts.UpdateLogin("VTS01");
  EXPECT_EQ(accounts.Add("a", 1, "A", "2330.TW", false), 0);
  EXPECT_TRUE(accounts.Lists().IsEmpty());
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(AccountListsTest, ALoginMakesAListForEachAccountAndOneForAll) {
  Start();
  accounts.UpdateLogin("VTS01");
  EXPECT_EQ(SymbolsOf(kAll), "2330.TW,2317.TW,0050.TW,TXFL6.TF");
  EXPECT_EQ(SymbolsOf("198011"), "2330.TW,2317.TW,0050.TW");
  EXPECT_EQ(SymbolsOf("2F0211"), "TXFL6.TF");
  EXPECT_NE(directory.Read("TSList.xml").find("VTS01"), std::string::npos);
  CString symbols;
  EXPECT_EQ(accounts.HoldingsOf("VTS01", "F0211", symbols), 1);
  EXPECT_STREQ(symbols, "TXFL6.TF");
  EXPECT_EQ(accounts.HoldingsOf("VTS02", "70061", symbols), 0) << "not logged in to";
}

TEST_F(AccountListsTest, AChangeOfHoldingsReachesTheAccountAndAll) {
  Start();
  accounts.UpdateLogin("VTS01");
  standin::SetHoldings("VTS01", "F0211", 2, "MXFL6.TF");
  accounts.UpdateHoldings("VTS01", "F0211", static_cast<TqsAccType>(2));
  EXPECT_EQ(SymbolsOf("2F0211"), "MXFL6.TF");
  EXPECT_EQ(SymbolsOf(kAll), "2330.TW,2317.TW,0050.TW,MXFL6.TF");
}

TEST_F(AccountListsTest, OutliveAStartAndRestWhileNotWanted) {
  Start();
  accounts.UpdateLogin("VTS01");
  accounts.Want(false);
  accounts.Clear();
  EXPECT_EQ(accounts.Delete(kAll), 0);
  CString symbols;
  EXPECT_EQ(accounts.HoldingsOf("VTS01", "F0211", symbols), 0);
  Start();
  EXPECT_EQ(SymbolsOf("2F0211"), "TXFL6.TF");
  EXPECT_EQ(accounts.HoldingsOf("VTS01", "F0211", symbols), 1);
}

TEST_F(AccountListsTest, ATakenNameGetsASuffix) {
  Start();
  auto list = std::make_unique<CSymbolList>();
  list->SetName("Name");
  others.AddLast(std::move(list));
  EXPECT_EQ(accounts.Add("a", tq::kTradingLists, "Name", "2330.TW", false), 1);
  EXPECT_EQ(accounts.Add("b", tq::kUserLists, "Name", "2330.TW", false), 1);
  EXPECT_STREQ(accounts.Lists().At(0)->GetName(), "Name") << "another kind's names are free";
  EXPECT_NE(accounts.Lists().At(1)->GetName(), CString("Name"));
}

TEST_F(AccountListsTest, OfSystemsThereIsOneEach) {
  Start();
  accounts.UpdateLogin("VTS01");
  accounts.UpdateLogin("VTS02");
  accounts.BuildOfSystems();
  EXPECT_EQ(accounts.Lists().GetSize(), 2);
  EXPECT_EQ(SymbolsOf("VTS02"), "2330.TW,6488.TE");
}

TEST_F(AccountListsTest, AFileOfSomebodyElseIsCopiedAsideOnce) {
  directory.Write("TSList.xml", "notes of the user");
  Start();
  accounts.UpdateLogin("VTS01");
  EXPECT_EQ(directory.Read("TSList_Kept.xml"), "notes of the user");
  EXPECT_NE(directory.Read("TSList.xml").find("VTS01"), std::string::npos);
  accounts.UpdateLogin("VTS01");
  EXPECT_EQ(directory.Names(), (std::vector<std::string>{"TSList.xml", "TSList_Kept.xml"}));
  ASSERT_FALSE(standin::LogLines().empty());
  EXPECT_EQ(standin::LogLines().front().text,
            "List file " + directory.Joined("TSList.xml") + " is kept as " +
                directory.Joined("TSList_Kept.xml") + ": the lists in memory do not come from it");
}

TEST_F(AccountListsTest, AFileOfAnEarlierStartIsWrittenOver) {
  Start();
  accounts.UpdateLogin("VTS01");
  tq::AccountLists later([this](int) -> const tq::OwnedLists& { return others; });
  later.Want(true);
  later.Start(directory.Joined("TSList.xml").c_str());
  later.UpdateLogin("VTS01");
  EXPECT_EQ(directory.Names(), std::vector<std::string>{"TSList.xml"});
}

} // namespace
