// Cloud lists and the cloud map, made without a manager.
#include "cloud/CloudLists.h"

#include <string>

#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"

namespace {

class CloudListsTest : public StandInTest {
protected:
  CloudListsTest() : cloud([](CString& ids) { return ids.Replace(".OLD", ".NEW") > 0; }) {}

  std::string SymbolsOf(const char* id) const {
    CSymbolList* const list = cloud.Lists().Find(id);
    return list == nullptr ? "(none)" : list->GetIDs().GetString();
  }

  tq::CloudLists cloud;
};

TEST_F(CloudListsTest, ASetListIsInTheMapAndAmongTheLists) {
  cloud.Set("a", "One", "2330.TW");
  EXPECT_EQ(SymbolsOf("a"), "2330.TW");
  EXPECT_NE(std::string(cloud.MapText()).find("ID='a' Name='One' Value='2330.TW'"),
            std::string::npos);
  EXPECT_TRUE(standin::Notifications().empty()) << "it was not there";
  cloud.Set("a", "One", "2317.TW");
  EXPECT_EQ(SymbolsOf("a"), "2317.TW");
  EXPECT_EQ(standin::Notifications().size(), 1u);
}

TEST_F(CloudListsTest, TheMapAloneHasNoList) {
  cloud.SetInMap("a", "One", "2330.TW");
  EXPECT_TRUE(cloud.Lists().IsEmpty());
  EXPECT_NE(std::string(cloud.MapText()).find("2330.TW"), std::string::npos);
}

TEST_F(CloudListsTest, ClearingLeavesTheMap) {
  cloud.Set("a", "One", "2330.TW");
  cloud.Clear();
  EXPECT_TRUE(cloud.Lists().IsEmpty());
  EXPECT_NE(std::string(cloud.MapText()).find("2330.TW"), std::string::npos);
}

TEST_F(CloudListsTest, ReplacingRenamesMovedSymbolsInBoth) {
  cloud.Add("a", "One", "2330.TW", false);
  CSymbolList mine;
  mine.SetID("b");
  mine.Update1("5.OLD");
  CPtrArray lists;
  lists.Add(&mine);
  lists.Add(nullptr);
  cloud.Replace(lists);
  EXPECT_EQ(SymbolsOf("a"), "(none)");
  EXPECT_EQ(SymbolsOf("b"), "5.NEW");
  EXPECT_STREQ(mine.GetIDs(), "5.NEW");
}

TEST_F(CloudListsTest, WhatTheTerminalAddsMeanwhileIsNotAddedTwice) {
  standin::OnCall("VLGetSymbolInfos", [this] { cloud.Add("a", "Inner", "2317.TW", false); });
  EXPECT_EQ(cloud.Add("a", "Outer", "2330.TW", false), 0);
  EXPECT_EQ(cloud.Lists().GetSize(), 1);
  EXPECT_EQ(SymbolsOf("a"), "2317.TW");
}

TEST_F(CloudListsTest, NoGroupIsNoFailure) {
  cloud.Set("a", "One", "2330.TW");
  const size_t lines = standin::LogLines().size();
  standin::ClearCalls();
  cloud.UpdateGroup(nullptr);
  EXPECT_EQ(standin::LogLines().size(), lines);
  EXPECT_TRUE(standin::Calls().empty());
}

} // namespace
