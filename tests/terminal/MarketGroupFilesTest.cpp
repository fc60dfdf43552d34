// LoadMarket: groups and accounts.
#include <algorithm>

#include "platform/services/VLProxy.h"
#include "tests/terminal/MarketFilesTest.h"

namespace {

TEST_F(MarketFiles, ReadsGroups) {
  directory.Write("groups.tsv", kGroups + "1\t-\tTSE\t上市\t上市\t-\n"
                                          "1\ttse\tCHIP\t半導體\t半导体\t2330.TW,2317.TW\n"
                                          "2\t-\tTSE\t\t\t1101.TW\n");
  ASSERT_TRUE(Load()) << error;
  ASSERT_EQ(market.groups.size(), 3u);
  EXPECT_EQ(market.groups[0].type, 1);
  EXPECT_EQ(market.groups[0].parent, "");
  EXPECT_EQ(market.groups[0].id, "TSE");
  EXPECT_TRUE(market.groups[0].members.empty());
  EXPECT_EQ(market.groups[1].parent, "tse");
  EXPECT_EQ(market.groups[1].nameTw, "半導體");
  EXPECT_EQ(market.groups[1].nameCn, "半导体");
  EXPECT_EQ(market.groups[1].members, (std::vector<std::string>{"2330.TW", "2317.TW"}));
  EXPECT_EQ(market.groups[2].type, 2);
}

TEST_F(MarketFiles, ReadsAccountsOfEachSystem) {
  directory.Write("accounts.tsv", kAccounts + "S1\t示範\t示范\t1\tA1\tA-*1\t2330.TW,2317.TW\n"
                                              "S2\t\t\t1\tA1\t主帳\t-\n"
                                              "S1\t示範\t示范\t2\tA1\tA-*2\tTXFL6.TF\n");
  ASSERT_TRUE(Load()) << error;
  ASSERT_EQ(market.tradingSystems.size(), 2u);
  const standin::TradingSystem& system = market.tradingSystems[0];
  EXPECT_EQ(system.id, "S1");
  EXPECT_EQ(system.nameTw, "示範");
  EXPECT_EQ(system.nameCn, "示范");
  EXPECT_TRUE(system.available);
  ASSERT_EQ(system.accounts.size(), 2u);
  EXPECT_EQ(system.accounts[0].type, 1);
  EXPECT_EQ(system.accounts[0].id, "A1");
  EXPECT_EQ(system.accounts[0].displayId, "A-*1");
  EXPECT_EQ(system.accounts[0].holdings, "2330.TW,2317.TW");
  EXPECT_EQ(system.accounts[1].type, 2);
  EXPECT_EQ(market.tradingSystems[1].accounts[0].holdings, "");
}

// Otherwise a member or holding that the sample market does not list would be left out silently.
TEST_F(MarketFiles, TheSampleMarketListsWhatItsGroupsAndAccountsName) {
  standin::Reset();
  ASSERT_TRUE(standin::LoadMarket("data/market", market, error)) << error;
  standin::SetMarket(market);
  const auto check = [](const std::string& ids) {
    SymbolInfo* infos = nullptr;
    int count = 0;
    EXPECT_NE(VLGetSymbolInfos(ids.c_str(), &infos, &count), 0);
    EXPECT_EQ(count, ids.empty() ? 0 : 1 + std::count(ids.begin(), ids.end(), ',')) << ids;
    VLFree(infos);
  };
  for (const standin::Group& group : market.groups)
    for (const std::string& member : group.members)
      check(member);
  for (const standin::TradingSystem& system : market.tradingSystems)
    for (const standin::TradingAccount& account : system.accounts)
      check(account.holdings);
}

// A group and an account with the fields that matter to a case.
std::string Group(const std::string& place, const std::string& members = "-") {
  return kGroups + place + "\tn\tn\t" + members + "\n";
}

std::string Account(const std::string& system, const std::string& account = "1\tA\ta\t-") {
  return kAccounts + system + "\tn\tn\t" + account + "\n";
}

const BadFile kBadGroups[] = {
    {"old group header", "groups.tsv", "type\tid\tname_tw\tname_cn\tmembers\n",
     "groups.tsv:1: the header"},
    {"group type 0", "groups.tsv", Group("0\t-\tA"), "groups.tsv:2: the type"},
    {"group type 202", "groups.tsv", Group("202\t-\tA"), "groups.tsv:2: the type"},
    {"no group id", "groups.tsv", Group("1\t-\t"), "groups.tsv:2: the id"},
    {"group id -", "groups.tsv", Group("1\t-\t-"), "groups.tsv:2: the id"},
    {"long group id", "groups.tsv", Group("1\t-\t12345678901234567"), "groups.tsv:2: the id"},
    {"blank in a group id", "groups.tsv", Group("1\t-\tA B"), "groups.tsv:2: the id"},
    {"no parent", "groups.tsv", Group("1\t\tA"), "groups.tsv:2: the parent is neither"},
    {"long parent", "groups.tsv", Group("1\t12345678901234567\tA"),
     "groups.tsv:2: the parent is neither"},
    {"unknown parent", "groups.tsv", Group("1\tA\tB"), "groups.tsv:2: the parent is no group"},
    {"parent of another type", "groups.tsv", Group("1\t-\tA") + "2\tA\tB\t\t\t-\n",
     "groups.tsv:3: the parent is no group"},
    {"parent on a line below", "groups.tsv", Group("1\tA\tB") + "1\t-\tA\t\t\t-\n",
     "groups.tsv:2: the parent is no group"},
    {"third level", "groups.tsv", Group("1\t-\tA") + "1\tA\tB\t\t\t-\n" + "1\tB\tC\t\t\t-\n",
     "groups.tsv:4: the parent is no group"},
    {"group twice", "groups.tsv", Group("1\t-\tA") + "1\t-\ta\t\t\t-\n",
     "groups.tsv:3: the id stands twice"},
    {"sub-group twice", "groups.tsv", Group("1\t-\tA") + "1\tA\tB\t\t\t-\n" + "1\ta\tb\t\t\t-\n",
     "groups.tsv:4: the id stands twice"},
    {"sub-group of itself", "groups.tsv", Group("1\t-\tA") + "1\tA\tA\t\t\t-\n",
     "groups.tsv:3: a group of the first level"},
    {"group with the id of a sub-group", "groups.tsv",
     Group("1\t-\tA") + "1\tA\tB\t\t\t-\n" + "1\t-\tB\t\t\t-\n",
     "groups.tsv:4: a group of the first level"},
    {"long group name", "groups.tsv", kGroups + "1\t-\tA\t" + std::string(49, 'n') + "\t\t-\n",
     "groups.tsv:2: a name"},
    {"empty member", "groups.tsv", Group("1\t-\tA", "1.TW,,2.TW"), "groups.tsv:2: a member"},
    {"comma behind the members", "groups.tsv", Group("1\t-\tA", "1.TW,"), "groups.tsv:2: a member"},
    {"blank in front of a member", "groups.tsv", Group("1\t-\tA", "1.TW, 2.TW"),
     "groups.tsv:2: a member"},
    {"long member", "groups.tsv", Group("1\t-\tA", std::string(20, '1')), "groups.tsv:2: a member"},
    {"no system", "accounts.tsv", Account(""), "accounts.tsv:2: the system is"},
    {"long system", "accounts.tsv", Account(std::string(32, 'S')), "accounts.tsv:2: the system is"},
    {"long system name", "accounts.tsv",
     kAccounts + "S\t" + std::string(256, 'n') + "\t\t1\tA\ta\t-\n", "accounts.tsv:2: a name"},
    {"another system name", "accounts.tsv", Account("S") + "s\tm\tn\t1\tB\tb\t-\n",
     "accounts.tsv:3: the system has another name"},
    {"account type", "accounts.tsv", Account("S", "stock\tA\ta\t-"), "accounts.tsv:2: the type"},
    {"negative account type", "accounts.tsv", Account("S", "-1\tA\ta\t-"),
     "accounts.tsv:2: the type"},
    {"no account id", "accounts.tsv", Account("S", "1\t\ta\t-"), "accounts.tsv:2: the id"},
    {"long account id", "accounts.tsv", Account("S", "1\t" + std::string(32, 'A') + "\ta\t-"),
     "accounts.tsv:2: the id"},
    {"no display id", "accounts.tsv", Account("S", "1\tA\t\t-"), "accounts.tsv:2: the display id"},
    {"long display id", "accounts.tsv", Account("S", "1\tA\t" + std::string(768, 'a') + "\t-"),
     "accounts.tsv:2: the display id"},
    {"account twice", "accounts.tsv", Account("S") + "S\tn\tn\t1\ta\tb\t-\n",
     "accounts.tsv:3: the account stands twice"},
    {"empty holding", "accounts.tsv", Account("S", "1\tA\ta\t,1.TW"), "accounts.tsv:2: a holding"},
};

TEST(MarketDirectory, RefusesABadGroupOrAccountWithItsLine) {
  for (const BadFile& bad : kBadGroups)
    ExpectRefusal(bad);
}

TEST_F(MarketFiles, TakesGroupsAndAccountsThatJustFit) {
  const std::string id = "0123456789ABCDEF";
  directory.Write("groups.tsv", kGroups + "201\t-\t" + id + "\t" + kFifteen + kFifteen.substr(18) +
                                    "\t\t" + std::string(19, '1') + "\n201\t" + id +
                                    "\tX\t\t\t-\n" + "201\t-\tY\t\t\t-\n201\tY\tX\t\t\t-\n");
  directory.Write("accounts.tsv",
                  Account(std::string(31, 'S'),
                          "0\t" + std::string(31, 'A') + "\t" + std::string(767, 'a') + "\t-"));
  ASSERT_TRUE(Load()) << error;
  EXPECT_EQ(market.groups.size(), 4u);
  EXPECT_EQ(market.tradingSystems.size(), 1u);
}

} // namespace
