// Default exchanges, the order of exchanges, and the buffer of all symbols.
#include <string>
#include <vector>

#include "symboltable/SymbolTableMgr.h"
#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class ExchangesTest : public EditTest {
protected:
  std::string Defaults() {
    std::string ids;
    for (int i = 0; i < manager.GetDefaultExchangeCount(); ++i)
      ids += (i > 0 ? "," : "") + std::to_string(manager.GetDefaultExchange(i));
    return ids;
  }
  static void SetDefaults(const char* defaults) {
    standin::Market market = standin::CurrentMarket();
    market.defaults = defaults;
    standin::SetMarket(market);
  }
  // The distinct exchanges of the buffer of all symbols, in order.
  std::string Order() {
    SymbolInfo* all = nullptr;
    int count = 0;
    if (manager.GetAllSymbolInfos(&all, &count) == 0)
      return "none";
    std::string order;
    for (int i = 0; i < count; ++i) {
      if (i == 0 || all[i].exchId != all[i - 1].exchId)
        order += (order.empty() ? "" : ",") + std::to_string(all[i].exchId);
    }
    CTQSymbolListMgr::FreeSymbolInfos(all);
    return order;
  }
};

// A market of exchanges 1, 2, 3 ... named A, B, C ..., with one symbol each.
standin::Market LetterMarket(int exchanges, const char* defaults) {
  standin::Market market;
  for (int i = 0; i < exchanges; ++i) {
    market.exchanges.push_back({i + 1, std::string(1, static_cast<char>('A' + i)), "t", "t"});
    standin::Instrument instrument;
    instrument.exchId = i + 1;
    instrument.code = "X" + std::to_string(i);
    market.instruments.push_back(instrument);
  }
  market.entitled = "1";
  market.defaults = defaults;
  return market;
}

CUIntArray Ids(const std::vector<unsigned>& ids) {
  CUIntArray array;
  for (unsigned id : ids)
    array.Add(id);
  return array;
}

TEST_F(ExchangesTest, DefaultsComeFromTheLoginInformation) {
  StartWith({});
  EXPECT_EQ(Defaults(), "1,2");
  EXPECT_EQ(manager.IsDefaultExchange(2), 1);
  EXPECT_EQ(manager.IsDefaultExchange(3), 0);
  EXPECT_EQ(manager.IsDefaultExchange(-1), 0);
}

TEST_F(ExchangesTest, PiecesThatAreNoPositiveNumberArePassedOver) {
  SetDefaults(" 3,,x,0,-2,10");
  StartWith({});
  EXPECT_EQ(Defaults(), "3,10");
}

TEST_F(ExchangesTest, NoDefaultsIsLegalAndBareCodesNeverResolve) {
  SetDefaults("");
  StartWith({});
  EXPECT_EQ(Defaults(), "");
  CString value;
  EXPECT_EQ(manager.GetSymbolTableMgr()->LookUpSymbolGetString(2, "2330", "", value), 0);
}

TEST_F(ExchangesTest, StartHandsTheDefaultsToTheTables) {
  StartWith({});
  CString value;
  EXPECT_NE(manager.GetSymbolTableMgr()->LookUpSymbolGetString(1, "2330", "", value), 0);
  EXPECT_STREQ(value, "2330.TW");
}

TEST_F(ExchangesTest, LoginInformationOutOfReachGivesTheUsersOwn) {
  StartWith({});
  CUIntArray own = Ids({3});
  manager.UpdateDefaultExch(own);
  EXPECT_EQ(Defaults(), "1,2");
  standin::FailAlways("TQSGetUserInfo");
  CUIntArray ids;
  EXPECT_EQ(manager.LoadDefaultExchange(ids, 0, ""), 1);
  ASSERT_EQ(ids.GetSize(), 1);
  EXPECT_EQ(ids[0], 3u);
  EXPECT_EQ(CTQSymbolListMgr::DoLoadDefaultExchange(ids), 0);
  EXPECT_EQ(ids.GetSize(), 1);
}

TEST_F(ExchangesTest, UsersOwnExchangesAreUsedOnWishWithTheNextReload) {
  StartWith({});
  CUIntArray own = Ids({3, 1});
  manager.SetUseUserDefExch(1);
  EXPECT_EQ(manager.IsUseUserDefExch(), 1);
  EXPECT_EQ(Defaults(), "1,2");
  EXPECT_EQ(manager.UpdateDefaultExch(own), 1);
  EXPECT_EQ(Defaults(), "3,1");
  CString value;
  EXPECT_NE(manager.GetSymbolTableMgr()->LookUpSymbolGetString(1, "TXFL6", "", value), 0);
}

TEST_F(ExchangesTest, InitTakesTheWishToo) {
  EXPECT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 1, 0), 1);
  EXPECT_EQ(manager.IsUseUserDefExch(), 1);
  EXPECT_EQ(Defaults(), "");
}

TEST_F(ExchangesTest, ChangeIsAnotherLengthOrOrder) {
  StartWith({});
  EXPECT_EQ(manager.IsDefaultExchangeChange(), 0);
  for (const char* other : {"2,1", "1", "1,2,3", ""}) {
    SetDefaults(other);
    EXPECT_EQ(manager.IsDefaultExchangeChange(), 1) << other;
  }
  SetDefaults("1,2");
  standin::FailCall("TQSGetUserInfo", 1);
  EXPECT_EQ(manager.IsDefaultExchangeChange(), 0);
}

TEST_F(ExchangesTest, ReloadWithoutForceAndChangeBuildsOnlyAMissingBuffer) {
  StartWith({});
  standin::ClearCalls();
  manager.ReLoadDefaultExch(0);
  EXPECT_EQ(standin::CountCalls("VLGetExch"), 0);
  CTQSymbolListMgr fresh;
  SetDefaults("");
  standin::ClearCalls();
  fresh.ReLoadDefaultExch(0);
  EXPECT_EQ(standin::CountCalls("VLGetExch"), 1);
  EXPECT_EQ(fresh.CheckAllSymbolByExch(), 0);
}

TEST_F(ExchangesTest, ReloadTakesAChangeOverEverywhere) {
  StartWith({});
  SetDefaults("2,1");
  manager.ReLoadDefaultExch(0);
  EXPECT_EQ(Defaults(), "2,1");
  CString exchange;
  EXPECT_EQ(manager.GetSymbolTableMgr()->GetDefaultExchange("7777", exchange), 2);
  EXPECT_STREQ(exchange, "TW");
  standin::ClearCalls();
  manager.ReLoadDefaultExch(1);
  EXPECT_GT(standin::CountCalls("VLGetExch"), 0);
}

TEST_F(ExchangesTest, InitDefaultExchangeSaysWhetherTheExchangesCouldBeRead) {
  StartWith({});
  EXPECT_EQ(manager.InitDefaultExchange(), 1);
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(manager.InitDefaultExchange(), 0);
  EXPECT_EQ(Defaults(), "1,2");
  manager.ClearDefaultExchangeData();
  EXPECT_EQ(Defaults(), "");
}

TEST_F(ExchangesTest, AllSymbolsStandInTheOrderOfTheWalkWithItsSkip) {
  const struct {
    int exchanges;
    const char* defaults;
    const char* order;
  } rows[] = {
      {4, "4", "2,4,3,1"}, // A, B, C, D with D the default
      {4, "1", "1,3,2,4"}, {4, "", "2,4,3,1"}, {4, "1,2,3,4", "1,2,3,4"},
      {3, "3", "2,3,1"},   {2, "2", "2,1"},    {1, "", "1"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.exchanges << " with " << row.defaults);
    standin::SetMarket(LetterMarket(row.exchanges, row.defaults));
    StartWith({});
    EXPECT_EQ(Order(), row.order);
  }
}

TEST_F(ExchangesTest, FailingServiceLeavesTheBufferAsItWas) {
  StartWith({});
  const std::string order = Order();
  standin::FailCall("VLGetExch", 1);
  manager.SortAllSymbolByExch();
  EXPECT_EQ(Order(), order);
  standin::FailCall("VLGetSymbolInfos2", 2);
  manager.SortAllSymbolByExch();
  EXPECT_EQ(Order(), order);
}

TEST_F(ExchangesTest, AnExchangeThatFailsAtTheStartIsLeftOut) {
  standin::SetMarket(LetterMarket(3, "1,2,3"));
  standin::FailCall("VLGetSymbolInfos2", 2);
  StartWith({});
  EXPECT_EQ(Order(), "1,3");
}

// Symptom: an array that came with a failure, or with a count not above 0, was overwritten and
// leaked.
TEST_F(ExchangesTest, ArraysThatComeWithAFailureOrWithoutACountAreReleased) {
  standin::SetMarket(LetterMarket(5, "1,2,3,4,5"));
  const std::vector<SymbolInfo> records(2);
  standin::AnswerSymbols(1, records, 2, 0);
  standin::AnswerSymbols(2, records, 0, 1);
  standin::AnswerSymbols(3, records, -2, 1);
  StartWith({});
  EXPECT_EQ(standin::OutstandingArrays(), 1) << "the exchange records, which the manager keeps";
  EXPECT_EQ(Order(), "4,5");
}

TEST_F(ExchangesTest, EmptyMarketHasNoBuffer) {
  standin::SetMarket({});
  StartWith({});
  EXPECT_EQ(manager.CheckAllSymbolByExch(), 1);
}

TEST_F(ExchangesTest, ExchangeOrderIsKeptAsACopy) {
  CUIntArray order = Ids({3, 1});
  EXPECT_EQ(manager.LoadDefExchOrder(order), 1);
  order.RemoveAll();
  CUIntArray kept;
  manager.GetDefExchOrder(kept);
  ASSERT_EQ(kept.GetSize(), 2);
  EXPECT_EQ(kept[0], 3u);
  EXPECT_EQ(CTQSymbolListMgr::CheckExchOrder(kept), 1);
  EXPECT_EQ(kept.GetSize(), 2);
  EXPECT_EQ(manager.LoadDefExchOrder(order), 0);
}

TEST_F(ExchangesTest, IndexOutOfRangeStopsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  StartWith({});
#if GTEST_HAS_DEATH_TEST
  EXPECT_DEATH(manager.GetDefaultExchange(2), "");
  EXPECT_DEATH(manager.GetDefaultExchange(-1), "");
#endif
}

} // namespace
