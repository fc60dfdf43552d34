// Single symbols: typed texts, lots, changes, and symbols that move to another exchange.
#include <cstring>
#include <initializer_list>
#include <string>

#include "symboltable/SymbolTableMgr.h"
#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class SymbolsTest : public EditTest {
protected:
  std::string Valid(const char* text) {
    SymbolInfo info = {};
    return manager.IsValidSymbol(text, &info) != 0 ? info.id : "";
  }
  std::string Info(const char* symbol) {
    SymbolInfo info = {};
    return manager.GetSymbolInfo(symbol, nullptr, 0, &info) != 0 ? info.id : "";
  }
  int Lot(const char* id, int kind) {
    return CTQSymbolListMgr::GetTradeLotSize(id, manager.GetSymbolTableMgr(),
                                             static_cast<JT_DEAL>(kind));
  }
  std::string Moved(const char* ids) {
    CString text = ids;
    manager.ReplaceSymbolListExchID(text, "TW", "TE");
    return text.GetString();
  }
  // Reloads the lists, saves them, and expects the ids of list a in the file to be unchanged.
  void ExpectKeptInTheFile(const char* ids) {
    ASSERT_EQ(manager.LoadSymbolList(), 1);
    EXPECT_EQ(Shape(), std::string("a/A/") + ids);
    ASSERT_EQ(manager.AddSymbolList("b", 0, "B", ids, 1, 0), 1);
    const std::string file = ReadWorking();
    const std::string value = std::string("Value='") + ids + "'";
    const size_t first = file.find(value);
    ASSERT_NE(first, std::string::npos) << file;
    EXPECT_NE(file.find(value, first + 1), std::string::npos) << file;
    EXPECT_EQ(file.find(".TE"), std::string::npos) << file;
  }
  // Removes the symbols of an exchange, or the exchange itself, from the market.
  static void Drop(int exchId, bool exchangeToo) {
    standin::Market market = standin::CurrentMarket();
    std::erase_if(market.instruments,
                  [=](const standin::Instrument& each) { return each.exchId == exchId; });
    std::erase_if(market.exchanges,
                  [=](const standin::Exchange& each) { return exchangeToo && each.id == exchId; });
    standin::SetMarket(market);
  }
  static constexpr int kTw = 1;
};

// Packed records of 19 bytes.
std::string Packed(std::initializer_list<const char*> symbols) {
  std::string records;
  for (const char* symbol : symbols) {
    std::string record(symbol);
    record.resize(19, '\0');
    records += record;
  }
  return records;
}

TEST_F(SymbolsTest, ASingleResultOfTheSearchIsTheSymbol) {
  StartWith({});
  EXPECT_EQ(Valid("233"), "2330.TW");
  EXPECT_EQ(Valid("nosuch"), "");
  EXPECT_EQ(manager.IsValidSymbol("233", nullptr), 0);
}

TEST_F(SymbolsTest, OfSeveralResultsTheFirstThatIsTheTextIsTheSymbol) {
  StartWith({});
  EXPECT_EQ(Valid("7777"), "7777.TW");
  EXPECT_EQ(Valid("7777.te"), "7777.TE");
  EXPECT_EQ(Valid("77"), "");
}

TEST_F(SymbolsTest, SearchGetsTheManagersSwitch) {
  StartWith({});
  manager.SetbCN(7);
  standin::ClearCalls();
  Valid("2330");
  ASSERT_EQ(standin::CountCalls("VLFindSymbol"), 1);
  EXPECT_EQ(standin::Calls().back().arguments, "2330,0,7,-1");
}

TEST_F(SymbolsTest, FailingSearchFindsNothing) {
  StartWith({});
  standin::FailCall("VLFindSymbol", 1);
  EXPECT_EQ(Valid("2330"), "");
}

TEST_F(SymbolsTest, SymbolWithAnExchangeIsLookedUpAsItIs) {
  StartWith({});
  EXPECT_EQ(Info("6488.TE"), "6488.TE");
  EXPECT_EQ(Info("DIS.NYSE"), "DIS.NYSE");
  EXPECT_EQ(Info("6488.TW"), "");
}

TEST_F(SymbolsTest, BareSymbolIsTriedOnTheDefaultExchangesInOrder) {
  StartWith({});
  EXPECT_EQ(Info("2330"), "2330.TW");
  EXPECT_EQ(Info("6488"), "6488.TE");
  EXPECT_EQ(Info("7777"), "7777.TW");
  EXPECT_EQ(Info("DIS"), "");
  EXPECT_EQ(Info(""), "");
  EXPECT_EQ(Info(nullptr), "");
}

TEST_F(SymbolsTest, CallersExchangeRecordsNameTheExchanges) {
  StartWith({});
  ExchInfo records[2] = {};
  records[0].id = 2;
  std::strcpy(records[0].name, "NYSE");
  records[1].id = 5;
  SymbolInfo info = {};
  EXPECT_EQ(manager.GetSymbolInfo("DIS", records, 2, &info), 1);
  EXPECT_STREQ(info.id, "DIS.NYSE");
  EXPECT_EQ(manager.GetSymbolInfo("DIS", records, 2, nullptr), 0);
}

// Symptom: the symbol was found on an exchange that the caller's records left out.
TEST_F(SymbolsTest, CallersExchangeRecordsAreTheOnlyOnes) {
  StartWith({});
  ExchInfo records[2] = {};
  records[0].id = 2;
  std::strcpy(records[0].name, "TE");
  records[1].id = 5;
  SymbolInfo info = {};
  EXPECT_EQ(manager.GetSymbolInfo("2330", records, 2, &info), 0);
  EXPECT_STREQ(info.id, "");
  EXPECT_EQ(manager.GetSymbolInfo("7777", records, 2, &info), 1);
  EXPECT_STREQ(info.id, "7777.TE");
  EXPECT_EQ(manager.GetSymbolInfo("2330", records, 0, &info), 1) << "none were given";
  EXPECT_STREQ(info.id, "2330.TW");
  EXPECT_EQ(manager.GetSymbolInfo("2330", nullptr, 2, &info), 1);
}

TEST_F(SymbolsTest, LotOfStocksIsLookedForOnTwThenOnTe) {
  StartWith({});
  EXPECT_EQ(Lot("2330", 0), 1000);
  EXPECT_EQ(Lot("6488", 0), 1000);
  standin::Market market = standin::CurrentMarket();
  for (standin::Instrument& instrument : market.instruments)
    instrument.lot = instrument.exchId == 1 ? 100 : instrument.exchId == 2 ? 200 : 3;
  standin::SetMarket(market);
  StartWith({});
  EXPECT_EQ(Lot("7777", 0), 100);
  EXPECT_EQ(Lot("6488", 0), 200);
  for (int kind : {1, 2, 3, 6}) {
    EXPECT_EQ(Lot("TXFL6", kind), 3) << kind;
    EXPECT_EQ(Lot("2330", kind), 1000) << kind;
  }
  for (int kind : {4, 5, 7, -1}) {
    EXPECT_EQ(Lot("DIS.NYSE", kind), 3) << kind;
    EXPECT_EQ(Lot("6488", kind), 200) << kind;
  }
}

TEST_F(SymbolsTest, UnknownLotIsAThousand) {
  StartWith({});
  EXPECT_EQ(CTQSymbolListMgr::GetTradeLotSize("2330", nullptr, JT_DEAL_STOCK), 1000);
  EXPECT_EQ(Lot("NOSUCH", 0), 1000);
  EXPECT_EQ(Lot("NOSUCH", 4), 1000);
}

TEST_F(SymbolsTest, ElevenChangedSymbolsGiveOneLogLineAndTheFirstTenCount) {
  StartWith({"a/A/NEW0.TW", "b/B/NEW10.TW"});
  std::string records;
  standin::Market market = standin::CurrentMarket();
  for (int i = 0; i < 11; ++i) {
    standin::Instrument added;
    added.exchId = 1;
    added.code = "NEW" + std::to_string(i);
    records += Packed({added.code.c_str()});
    market.instruments.push_back(added);
  }
  standin::SetMarket(market);
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(manager.UpdateExchSymbolChange(11, records.c_str(), 1, ExchSymbolsAdded), 1);
  ASSERT_EQ(standin::LogLines().size(), lines + 1);
  EXPECT_EQ(standin::LogLines().back().level, 256);
  EXPECT_EQ(standin::LogLines().back().text,
            "CTQSymbolListMgr::UpdateExchSymbolChange Count = 11, MaxSymbolChangeItems = 10");
  EXPECT_EQ(Rows("a"), "NEW0.TW");
  EXPECT_EQ(Rows("b"), "");
}

TEST_F(SymbolsTest, OnlyListsThatHoldAChangedSymbolAskAgain) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW", "c/C/23300.TW"});
  standin::ClearCalls();
  EXPECT_EQ(manager.UpdateExchSymbolChange(1, Packed({" 2330 "}).c_str(), 99,
                                           static_cast<ExchSymbolUpdateType>(1)),
            1);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
  EXPECT_EQ(manager.UpdateExchSymbolChange(0, nullptr, 1, ExchSymbolsAdded), 1);
  EXPECT_EQ(manager.UpdateExchSymbolChange(-5, "x", 1, ExchSymbolsAdded), 1);
  EXPECT_EQ(manager.UpdateExchSymbolChange(3, nullptr, 1, ExchSymbolsAdded), 1);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
}

TEST_F(SymbolsTest, SymbolThatWentOverIsRenamedOnlyWhenItIsOnTheNewExchangeAlone) {
  StartWith({});
  EXPECT_EQ(Moved("6488.TW"), "6488.TE");
  EXPECT_EQ(Moved("2330.TW"), "2330.TW");     // still there
  EXPECT_EQ(Moved("7777.TW"), "7777.TW");     // on both
  EXPECT_EQ(Moved("GONE.TW"), "GONE.TW");     // on neither
  EXPECT_EQ(Moved("6488"), "6488");           // no exchange
  EXPECT_EQ(Moved("6488.TE"), "6488.TE");     // there already
  EXPECT_EQ(Moved("DIS.NYSE"), "DIS.NYSE");   // another exchange
  EXPECT_EQ(Moved("x:6488.TW"), "x:6488.TW"); // a heading
  EXPECT_EQ(Moved(".TW"), ".TW");
  EXPECT_EQ(Moved(""), "");
}

TEST_F(SymbolsTest, RenamingTouchesNothingElseOfTheString) {
  StartWith({});
  EXPECT_EQ(Moved(",2330.tw,,6488.tw,H:,5483.TW,GONE.TW,"),
            ",2330.tw,,6488.TE,H:,5483.TE,GONE.TW,");
}

// Symptom: "7777.TW" of a saved list became "7777.TE", another instrument, at the next load, and
// the next save wrote it. Every symbol of a table of TW that failed to load counted as moved.
TEST_F(SymbolsTest, ATableThatFailedToLoadIsNoProofThatASymbolMoved) {
  StartWith({"a/A/7777.TW,2330.TW"});
  standin::FailCall("VLGetBaseAttrs2", 1);
  EXPECT_EQ(manager.GetSymbolTableMgr()->RebuildSymbolTable("TW", kTw), 0);
  ExpectKeptInTheFile("7777.TW,2330.TW");
}

// Symptom: the same once the terminal announced a new symbol of the exchange whose table had
// failed.
TEST_F(SymbolsTest, NorIsOneThatHasOnlyWhatWasAddedAfterTheFailure) {
  StartWith({"a/A/7777.TW,6488.TW"});
  standin::FailCall("VLGetBaseAttrs2", 1);
  EXPECT_EQ(manager.GetSymbolTableMgr()->RebuildSymbolTable("TW", kTw), 0);
  EXPECT_EQ(manager.GetSymbolTableMgr()->AddSymbols(kTw, Packed({"2330.TW"}).c_str(), 1), 1);
  ExpectKeptInTheFile("7777.TW,6488.TW");
  // After a complete load it again tells what has moved.
  EXPECT_EQ(manager.GetSymbolTableMgr()->RebuildSymbolTable("TW", kTw), 1);
  EXPECT_EQ(Moved("7777.TW,6488.TW"), "7777.TW,6488.TE");
}

// Symptom: the same when the service lists the exchange without symbols, as before the trading day.
TEST_F(SymbolsTest, NorIsATableThatCameEmpty) {
  Drop(kTw, false);
  StartWith({"a/A/7777.TW,6488.TW"});
  ExpectKeptInTheFile("7777.TW,6488.TW");
}

// Symptom: the same when the service does not list the exchange at all.
TEST_F(SymbolsTest, NorIsAMissingTable) {
  Drop(kTw, true);
  StartWith({"a/A/7777.TW,6488.TW"});
  ExpectKeptInTheFile("7777.TW,6488.TW");
}

// Symptom: the same after the last symbol of the exchange was removed.
TEST_F(SymbolsTest, NorIsATableThatHasLostAllItsSymbols) {
  StartWith({"a/A/7777.TW,6488.TE"});
  standin::Market market = standin::CurrentMarket();
  for (const standin::Instrument& each : market.instruments)
    if (each.exchId == kTw)
      manager.GetSymbolTableMgr()->RemoveSymbols(kTw, Packed({each.code.c_str()}).c_str(), 1);
  EXPECT_EQ(Moved("7777.TW"), "7777.TW");
}

TEST_F(SymbolsTest, ASymbolMovesToAnExchangeThatHasItHoweverThatWasLoaded) {
  StartWith({});
  standin::FailCall("VLGetBaseAttrs2", 1);
  EXPECT_EQ(manager.GetSymbolTableMgr()->RebuildSymbolTable("TE", 2), 0);
  EXPECT_EQ(Moved("6488.TW"), "6488.TW");
  EXPECT_EQ(manager.GetSymbolTableMgr()->AddSymbols(2, Packed({"6488.TE"}).c_str(), 1), 1);
  EXPECT_EQ(Moved("6488.TW"), "6488.TE");
}

TEST_F(SymbolsTest, ASymbolWithBlanksAroundItMovesAndKeepsThem) {
  StartWith({});
  EXPECT_EQ(Moved("2330.TW, 6488.TW ,\t5483.tw"), "2330.TW, 6488.TE ,\t5483.TE");
}

// Symptom: three renamed ids returned 3.
TEST_F(SymbolsTest, RenamingATextSaysOnlyWhetherItChanged) {
  StartWith({});
  CString ids = "6488.TW,5483.TW,8069.TW";
  EXPECT_EQ(manager.ReplaceSymbolListExchID(ids, "TW", "TE"), 1);
  EXPECT_STREQ(ids, "6488.TE,5483.TE,8069.TE");
  EXPECT_EQ(manager.ReplaceSymbolListExchID(ids, "TW", "TE"), 0);
}

TEST_F(SymbolsTest, LoadedAndAddedListsAreRenamed) {
  StartWith({"a/A/6488.TW,2330.TW"});
  EXPECT_EQ(Shape(), "a/A/6488.TE,2330.TW");
  EXPECT_EQ(Rows("a"), "6488.TE 2330.TW");
  manager.AddSymbolList("b", 0, "B", "5483.TW", 1, 0);
  EXPECT_EQ(Rows("b"), "5483.TE");
}

TEST_F(SymbolsTest, SourceOfAnAddedCopyIsRenamedToo) {
  StartWith({"a/A/2330.TW"});
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  auto* source = static_cast<CSymbolList*>(copies[0]);
  source->Update1("6488.TW");
  manager.AddTQSymbolList(source, 1);
  EXPECT_STREQ(source->GetIDs(), "6488.TE");
  EXPECT_EQ(Shape(), "a/A/2330.TW|a/A/6488.TE");
  DeleteCopies(copies);
}

TEST_F(SymbolsTest, RenamingAListSaysWhetherItChanged) {
  StartWith({"a/A/2330.TW"});
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("a", &list, 1), 1);
  EXPECT_EQ(manager.ReplaceSymbolListExchID(list, "TW", "TE"), 0);
  list->Update1("6488.TW");
  EXPECT_EQ(manager.ReplaceSymbolListExchID(list, "tw", "TE"), 1);
  EXPECT_EQ(Rows("a"), "6488.TE");
  EXPECT_EQ(manager.ReplaceSymbolListExchID(static_cast<CSymbolList*>(nullptr), "TW", "TE"), 0);
}

TEST_F(SymbolsTest, WithoutTablesNothingIsRenamed) {
  WriteWorking("<Result><SymbolList DefaultIdx='0'><List ID='a' Name='A' Value='6488.TW'/>"
               "</SymbolList></Result>");
  StartWithoutTables();
  EXPECT_EQ(Shape(), "a/A/6488.TW");
  CTQSymbolListMgr fresh;
  CString ids = "6488.TW";
  EXPECT_EQ(fresh.ReplaceSymbolListExchID(ids, "TW", "TE"), 0);
}

} // namespace
