// The selection with every source that there is.
#pragma once

#include "tests/interface/EditorText.h"

class SelectionText : public SelectionTextTest {
protected:
  // User lists, holdings, and groups of all four kinds that are sources. Groups of kind 101 are
  // there with or without the broker's edition that is asked for elsewhere.
  void StartWithAllSources() {
    AddGroups({{3, "", "G3", "三類", "三类", {}},
               {3, "G3", "G31", "三之一", "三之一", {"2330.TW"}},
               {101, "", "G101", "百類", "百类", {}},
               {101, "G101", "G1011", "百之一", "百之一", {"2317.TW"}}});
    AddTradingSystem();
    WriteWorking("<Result><SymbolList DefaultIdx='0'><List ID='A' Name='one' Value='2330.TW'/>"
                 "<List ID='B' Name='two' Value='2317.TW'/></SymbolList></Result>");
    ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 1);
    manager.AddExtraTQInfo("OTV01");
    manager.UpdateTSLogin("T1");
    manager.AddCloudSymbolList("C1", "cloud one", "2330.TW", 0);
    manager.AddCloudSymbolList("C2", "cloud two", "2317.TW", 0);
    Mark();
  }
  // A source of that name, and a row of what it shows; then OK.
  static void Pick(User& user, const std::string& source, int row) {
    EXPECT_TRUE(user.Select(kSources, source));
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kOk));
  }
  static Lines CloudRows() { return {"cloud one", "cloud two"}; }
  static bool Has(const Lines& rows, const std::string& row) {
    return std::find(rows.begin(), rows.end(), row) != rows.end();
  }
  static std::ptrdiff_t PlaceOf(const User& user, const std::string& source) {
    const Lines rows = user.Rows(kSources);
    return std::find(rows.begin(), rows.end(), source) - rows.begin();
  }

private:
  static void AddGroups(const std::vector<standin::Group>& groups) {
    standin::Market market = standin::CurrentMarket();
    market.groups.insert(market.groups.end(), groups.begin(), groups.end());
    standin::SetMarket(market);
  }
  static void AddTradingSystem() {
    standin::Market market = standin::CurrentMarket();
    market.tradingSystems = {
        {"T1", "甲證券", "甲证券", true, {{1, "9801", "9801-*", "2330.TW,2317.TW"}}}};
    standin::SetMarket(market);
  }
};
