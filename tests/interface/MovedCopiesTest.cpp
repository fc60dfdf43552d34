// Lists that are copied into the manager while their symbols move to another exchange.
#include <memory>

#include "tests/interface/ManagerTest.h"

namespace {

constexpr int kUserLists = 1;
constexpr char kMoved[] = "6488.TE,2330.TW"; // 6488 has moved from TW to TE

class MovedCopiesTest : public ManagerTest {
protected:
  void SetUp() override {
    ASSERT_EQ(StartWithTables(), 1);
    source.SetID("a");
    source.SetName("A");
    source.Update1("6488.TW,2330.TW");
    standin::ClearCalls();
  }

  CSymbolList* Stored() {
    CSymbolList* list = nullptr;
    EXPECT_EQ(manager.GetSymbolList("a", &list, kUserLists), 1);
    return list;
  }

  CSymbolList source;
};

TEST_F(MovedCopiesTest, TheServiceIsAskedOnceForBoth) {
  ASSERT_EQ(manager.AddTQSymbolList(&source, 1), 1);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
  EXPECT_STREQ(source.GetIDs(), kMoved);
  EXPECT_STREQ(Stored()->GetIDs(), kMoved);
  EXPECT_EQ(source.GetCount(), 2);
  EXPECT_EQ(Stored()->GetCount(), 2);
  EXPECT_EQ(Stored()->IsModified(), 1);
  EXPECT_EQ(Stored()->GetTokens().GetSize(), 2);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
}

TEST_F(MovedCopiesTest, RowsOfTheCopyAreItsOwn) {
  ASSERT_EQ(manager.AddTQSymbolList(&source, 1), 1);
  ASSERT_EQ(source.RemoveEntry(0), 1);
  SymbolInfo row = {};
  EXPECT_TRUE(Stored()->GetAt(0, &row));
  EXPECT_STREQ(row.id, "6488.TE");
}

TEST_F(MovedCopiesTest, AFailedQuestionIsTriedAgainByEach) {
  standin::FailCall("VLGetSymbolInfos", 1);
  ASSERT_EQ(manager.AddTQSymbolList(&source, 1), 1);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
  EXPECT_EQ(source.GetCount(), 2);
  EXPECT_EQ(Stored()->GetCount(), 2);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 3);
}

// The source may be the manager's own list, which the terminal deletes within a service call.
TEST_F(MovedCopiesTest, TheCopyOutlivesItsSource) {
  auto gone = std::make_unique<CSymbolList>(source);
  standin::OnCall("VLGetSymbolInfos", [&] { gone.reset(); });
  ASSERT_EQ(manager.AddTQSymbolList(gone.get(), 1), 1);
  EXPECT_STREQ(Stored()->GetIDs(), kMoved);
  EXPECT_EQ(Stored()->GetCount(), 2);
}

TEST_F(MovedCopiesTest, WhatTheTerminalMakesOfTheSourceIsNotCopied) {
  standin::OnCall("VLGetSymbolInfos", [&] { source.Update1("2317.TW"); });
  ASSERT_EQ(manager.AddTQSymbolList(&source, 1), 1);
  EXPECT_STREQ(source.GetIDs(), "2317.TW");
  EXPECT_STREQ(Stored()->GetIDs(), kMoved);
  EXPECT_EQ(Stored()->GetCount(), 2);
}

} // namespace
