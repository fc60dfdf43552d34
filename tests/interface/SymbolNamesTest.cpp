// The values behind the names: terminals store them, other programs compare them.
#include "platform/interface/TQSymbolNames.h"

#include <gtest/gtest.h>

#include "platform/framework/window/CDialog.h"
#include "symbolid/ListID.h"

namespace {

TEST(SymbolNames, KindsAndTypesAreThoseThatTerminalsStore) {
  EXPECT_EQ(TQListKindUser, 1);
  EXPECT_EQ(TQListKindTrading, 6);
  EXPECT_EQ(TQListKindCloud, 8);
  EXPECT_EQ(TQGroupTypeMarkets, 1);
  EXPECT_EQ(TQGroupTypeHoldings, 3);
  EXPECT_EQ(TQGroupTypeEditionMarkets, 101);
  EXPECT_EQ(TQGroupTypeCloud, 201);
  EXPECT_EQ(TQImportPellarPlus, 0);
  EXPECT_EQ(TQImportEOrvel, 1);
  EXPECT_EQ(TQImportETamsin, 2);
}

TEST(SymbolNames, ASelectionHasTheKindsOfAListId) {
  EXPECT_EQ(int{TQSelectUserList}, int{ListIDUserList});
  EXPECT_EQ(int{TQSelectGroup}, int{ListIDGroup});
  EXPECT_EQ(int{TQSelectHoldingsGroup}, int{ListIDGroup3});
  EXPECT_EQ(int{TQSelectAllSymbols}, int{ListIDAllSymbols});
  EXPECT_EQ(int{TQSelectTradingList}, int{ListIDHoldings});
  EXPECT_EQ(int{TQSelectEditionGroup}, int{ListIDGroup101});
  EXPECT_EQ(int{TQSelectCloudListOrGroup}, int{ListIDCloudGroup});
  EXPECT_EQ(TQSelectUserList, 1);
  EXPECT_EQ(TQSelectGroup, 2);
  EXPECT_EQ(TQSelectHoldingsGroup, 3);
  EXPECT_EQ(TQSelectAllSymbols, 4);
  EXPECT_EQ(TQSelectTradingList, 6);
  EXPECT_EQ(TQSelectEditionGroup, 7);
  EXPECT_EQ(TQSelectCloudListOrGroup, 8);
}

TEST(SymbolNames, DialogsEndAsTheFrameworksDo) {
  EXPECT_EQ(int{TQDialogFailed}, int{CDialog::Failed});
  EXPECT_EQ(int{TQDialogDone}, int{CDialog::Accepted});
  EXPECT_EQ(int{TQDialogCancelled}, int{CDialog::Cancelled});
  EXPECT_EQ(TQDialogFailed, -1);
  EXPECT_EQ(TQDialogDone, 1);
  EXPECT_EQ(TQDialogCancelled, 2);
}

TEST(SymbolNames, BitsAndLevelsStay) {
  EXPECT_EQ(TQIdExists, 1);
  EXPECT_EQ(TQNameMatches, 2);
  EXPECT_EQ(TQIdTaken, 1);
  EXPECT_EQ(TQIdTooLong, 2);
  EXPECT_EQ(TQIdUnloadable, 4);
  EXPECT_EQ(TQLogChange, 64);
  EXPECT_EQ(TQLogGeneral, 256);
  EXPECT_EQ(TQLogMistakes, 512);
}

TEST(SymbolNames, NotificationsAndTextsStay) {
  EXPECT_EQ(TQNotifySymbols, 4);
  EXPECT_EQ(TQNotifyUserLists, 40);
  EXPECT_EQ(TQNotifyCloudLists, 41);
  EXPECT_STREQ(TQReasonListCount, "ListCntChange");
  EXPECT_STREQ(TQReasonListNames, "ListNameChange");
  EXPECT_STREQ(TQReasonTradingLists, "TSSymbolList");
  EXPECT_STREQ(TQListIdAllHoldings, "ALLMYSTOCKLISTS");
  EXPECT_STREQ(TQExtraInfoEditionMarkets, "OTV01");
}

} // namespace
