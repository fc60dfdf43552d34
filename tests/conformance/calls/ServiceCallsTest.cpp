// Which services the library asks, and how often: what docs/services tells those who write them.
#include <fstream>
#include <map>
#include <sstream>

#include "platform/framework/CUIntArray.h"
#include "platform/services/tqCommon.h"
#include "platform/services/tqStockFields.h"
#include "symbolid/OptFutID.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"
#include "tests/support/User.h"
#include "tqSymbol.h"

namespace {

constexpr int kUserLists = 1;
constexpr int kGroupTypes = 23; // 1 to 21, 101 and 201
constexpr int kFieldsAsNumber = 8;
constexpr int kFieldsAsText = 8;
// Those that are kept from the start on, and those of trading data as text and as number.
constexpr int kHeldFields[] = {1,   2,   109, 110, 111, 112, 113,  155,
                               156, 157, 164, 172, 176, 184, 3006, 3007};
constexpr int kTextFields[] = {170, 171, 179, 188, 189, 190, 191, 192};
constexpr int kNumberFields[] = {169, 170, 171, 178, 186};

std::string BytesOf(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << stream.rdbuf();
  return bytes.str();
}

class ServiceCallsTest : public StandInTest {
protected:
  ServiceCallsTest() {
    standin::Market market;
    std::string error;
    EXPECT_TRUE(standin::LoadMarket("data/market", market, error)) << error;
    standin::SetMarket(market);
    const std::string language = IsTraditionChinese() != 0 ? "tw" : "cn";
    directory_.Write("SymbolList.xml", BytesOf("data/lists/" + language + "/SymbolList.xml"));
    standin::OnEachCall([this](std::string_view operation) { ++calls_[std::string(operation)]; });
  }

  // With symbol tables and lists from trading accounts.
  int Start(int tables = 1) {
    calls_.clear();
    return manager_.Init(directory_.Path().c_str(), 0, tables, 0, nullptr, 0, 1);
  }
  int Count(const char* operation) const {
    const auto found = calls_.find(operation);
    return found == calls_.end() ? 0 : found->second;
  }
  // The calls of `act`; VLFree and the language apart.
  template <class Act> std::map<std::string, int> CallsOf(Act act) {
    calls_.clear();
    act();
    std::map<std::string, int> calls = calls_;
    calls.erase("VLFree");
    calls.erase("TQSFree");
    return calls;
  }
  CSymbolTableMgr& Tables() { return *manager_.GetSymbolTableMgr(); }
  int Exchanges() const { return static_cast<int>(standin::CurrentMarket().exchanges.size()); }
  int Symbols() const { return static_cast<int>(standin::CurrentMarket().instruments.size()); }
  int GroupsWithSubGroups() const;
  int ListsWithSymbols();

  TempDir directory_;
  std::map<std::string, int> calls_;
  CTQSymbolListMgr manager_;
};

using Calls = std::map<std::string, int>;

int ServiceCallsTest::GroupsWithSubGroups() const {
  std::set<std::pair<int, std::string>> parents;
  for (const standin::Group& group : standin::CurrentMarket().groups)
    if (!group.parent.empty())
      parents.emplace(group.type, group.parent);
  return static_cast<int>(parents.size());
}

// Whether there is more than headings in the ids of a list.
bool HasSymbol(const std::string& ids) {
  std::istringstream pieces(ids);
  for (std::string piece; std::getline(pieces, piece, ',');)
    if (!piece.empty() && piece.back() != ':')
      return true;
  return false;
}

int ServiceCallsTest::ListsWithSymbols() {
  int count = 0;
  for (int i = 0; i < manager_.GetSymbolListCount(kUserLists); ++i) {
    CString id;
    CString name;
    CString symbols;
    manager_.GetSymbolListInfo(i, id, name, symbols, kUserLists);
    count += HasSymbol(symbols.GetString()) ? 1 : 0;
  }
  return count;
}

TEST_F(ServiceCallsTest, AStartReadsEachExchangeAndEachSymbolOnce) {
  ASSERT_EQ(Start(), 1);
  EXPECT_EQ(Count("VLGetExch"), 3);
  EXPECT_EQ(Count("VLGetBaseAttrs2"), Exchanges());
  EXPECT_EQ(Count("VLGetSymbolInfos2"), Exchanges());
  EXPECT_EQ(Count("CStaticKey::Setup"), Symbols());
  EXPECT_EQ(Count("CStockAttr::GetID"), Symbols());
  EXPECT_EQ(Count("CStaticKey::GetFieldInt"), kFieldsAsNumber * Symbols());
  EXPECT_EQ(Count("CStaticKey::GetFieldString"), kFieldsAsText * Symbols());
}

TEST_F(ServiceCallsTest, AStartReadsGroupsListsAndTheLogin) {
  ASSERT_EQ(Start(), 1);
  EXPECT_EQ(Count("VLGetSubGroup"), kGroupTypes + GroupsWithSubGroups());
  EXPECT_GT(ListsWithSymbols(), 0);
  EXPECT_EQ(Count("VLGetSymbolInfos"), ListsWithSymbols());
  EXPECT_EQ(Count("TQSGetUserInfo"), 2);
  EXPECT_EQ(Count("VLGetGroupSymbol"), 0);
  EXPECT_EQ(Count("TQSGetTSCount"), 0);
}

TEST_F(ServiceCallsTest, AStartWithoutTablesAsksForNoAttributes) {
  ASSERT_EQ(Start(0), 1);
  EXPECT_EQ(Count("VLGetExch"), 2);
  EXPECT_EQ(Count("VLGetBaseAttrs2"), 0);
  EXPECT_EQ(Count("CStaticKey::Setup"), 0);
  EXPECT_EQ(Count("TQSGetUserInfo"), 1);
}

TEST_F(ServiceCallsTest, AStartFailsWithThreeOperationsAndWithNoOther) {
  for (const char* operation : {"VLGetExch", "VLGetBaseAttrs2", "TQSGetUserInfo"}) {
    standin::FailAlways(operation);
    EXPECT_EQ(Start(), 0) << operation;
    EXPECT_EQ(manager_.GetSymbolListCount(kUserLists), 0) << operation;
    standin::FailCall(operation, 0);
  }
  for (const char* operation : {"VLGetSymbolInfos2", "VLGetSymbolInfos", "VLGetSubGroup",
                                "CStaticKey::Setup", "CStockAttr::GetID", "CStaticKey::GetFieldInt",
                                "CStaticKey::GetFieldString", "TQLog::storage", "TQLog::write"}) {
    standin::FailAlways(operation);
    EXPECT_EQ(Start(), 1) << operation;
    EXPECT_GT(manager_.GetSymbolListCount(kUserLists), 0) << operation;
    standin::FailCall(operation, 0);
  }
}

TEST_F(ServiceCallsTest, LookUpsOfWhatIsKeptAskNobody) {
  ASSERT_EQ(Start(), 1);
  for (const int field : kHeldFields) {
    CString text;
    int number = 0;
    EXPECT_EQ(CallsOf([&] {
                Tables().LookUpSymbolGetString(field, "2330.TW", "", text);
                Tables().LookUpSymbolGetInt(field, "2330.TW", "", number);
              }),
              Calls())
        << field;
  }
}

TEST_F(ServiceCallsTest, LookUpsOfTradingDataAskOnceEach) {
  ASSERT_EQ(Start(), 1);
  const Calls once = {{"tqStockGetFieldString", 1}};
  for (const int field : kTextFields) {
    CString text;
    EXPECT_EQ(CallsOf([&] { Tables().LookUpSymbolGetString(field, "2330.TW", "", text); }), once)
        << field;
  }
  for (const int field : kNumberFields) {
    int number = 0;
    EXPECT_EQ(CallsOf([&] { Tables().LookUpSymbolGetInt(field, "2330.TW", "", number); }), once)
        << field;
  }
  CString code;
  EXPECT_EQ(CallsOf([&] { Tables().LookUpSymbolGetString(FieldTradeCode, "2330.TW", "", code); }),
            (Calls{{"CStaticKey::SetUpTrade", 1}, {"CStaticKey::GetFieldString", 1}}));
}

TEST_F(ServiceCallsTest, MembersOfAGroupAreAskedForOnce) {
  ASSERT_EQ(Start(), 1);
  void* handle = nullptr;
  GroupInfo group = {};
  manager_.GetGroupInfo(1, nullptr, 0, &group);
  manager_.GetGroupHandle(1, group.szID, &handle, 0);
  manager_.GetGroupInfo(1, handle, 0, &group);
  manager_.GetGroupHandle(1, group.szID, &handle, 0);
  EXPECT_EQ(CallsOf([&] { manager_.GetGroupSymbolCount(handle); }),
            (Calls{{"VLGetGroupSymbol", 1}, {"TQLog::write", 1}}));
  EXPECT_EQ(CallsOf([&] { manager_.GetGroupSymbolCount(handle); }), Calls());
}

TEST_F(ServiceCallsTest, ALoginAsksForEachAccountOnce) {
  ASSERT_EQ(Start(), 1);
  const standin::TradingSystem& system = standin::CurrentMarket().tradingSystems.front();
  const int accounts = static_cast<int>(system.accounts.size());
  const Calls calls = CallsOf([&] { manager_.UpdateTSLogin(system.id.c_str()); });
  EXPECT_EQ(calls.at("TQSGetTSStatus"), 1);
  EXPECT_EQ(calls.at("TQSGetTSCount"), 1);
  EXPECT_EQ(calls.at("TQSGetTSInfo"), 1); // it is the first
  EXPECT_EQ(calls.at("TQSGetTSAccountCount"), 1);
  EXPECT_EQ(calls.at("TQSGetTSAccount"), accounts);
  EXPECT_EQ(calls.at("TQSGetTSAccountHolding"), accounts);
  EXPECT_EQ(calls.at("TQSCall"), 2);
}

TEST_F(ServiceCallsTest, QuestionsForOneSymbolAskOnce) {
  ASSERT_EQ(Start(), 1);
  SymbolInfo info = {};
  EXPECT_EQ(CallsOf([&] { manager_.IsValidSymbol("2330", &info); }), (Calls{{"VLFindSymbol", 1}}));
  EXPECT_EQ(CallsOf([&] { manager_.GetSymbolInfo("2330.TW", nullptr, 0, &info); }),
            (Calls{{"VLGetSymbolInfo", 1}}));
  // The second of the default exchanges lists it.
  EXPECT_EQ(CallsOf([&] { manager_.GetSymbolInfo("6488", nullptr, 0, &info); }),
            (Calls{{"VLGetSymbolInfo", 2}}));
  EXPECT_EQ(CallsOf([&] { Tables().MapExchIDsToExchName("1,2"); }), Calls());
  EXPECT_EQ(CallsOf([&] { Tables().MapExchIDsToExchName("1,10,11"); }),
            (Calls{{"TQSGetUserExtraValue", 1}}));
}

TEST_F(ServiceCallsTest, DescriptionsOfContractsAskOnceForEachLeg) {
  ASSERT_EQ(Start(), 1);
  COptFutID contracts;
  CString text;
  char side = 'B';
  const auto describe = [&] { contracts.MergeFuturID(text, side, "TXFL6", 'B', "TXFA7", 'S'); };
  const Calls calls = CallsOf(describe);
  EXPECT_EQ(calls.at("VLGetZUID"), 2);
  EXPECT_EQ(calls.at("VLGetExtendAttr"), 2);
}

class SearchCallsTest : public ServiceCallsTest {
protected:
  // What a search for the typed text asks, the dialog itself apart.
  Calls CallsOfSearch(const char* text) {
    WhenDialogOpens([text](User& user) {
      user.Fill(741, text);
      user.Press(WindowKey::Enter);
      if (user.IsUp())
        user.CloseByTitleBar();
    });
    Calls calls = CallsOf([&] {
      CTQSymbolListMgr::DoSearchUI(&manager_, &Tables(), nullptr, "", nullptr, 1, nullptr);
    });
    EXPECT_EQ(calls["tqDoModal"], 1);
    calls.erase("tqDoModal");
    return calls;
  }
};

TEST_F(SearchCallsTest, ASearchAsksOnceByTextExchangesOrOwnCode) {
  ASSERT_EQ(Start(), 1);
  EXPECT_EQ(CallsOfSearch("23"), (Calls{{"VLFindSymbol", 1}}));
  EXPECT_EQ(CallsOfSearch(".2330"), (Calls{{"VLEX2ZUID2", 1}}));
  CUIntArray order;
  order.Add(2);
  manager_.LoadDefExchOrder(order);
  EXPECT_EQ(CallsOfSearch("23"), (Calls{{"VLFindSymbol2", 1}}));
}

// What the pages must name: the name up to the parameters; of a destructor the last part.
std::string NameOf(std::string line) {
  line = line.substr(0, line.find('('));
  const std::size_t destructor = line.find("::~");
  if (destructor != std::string::npos)
    return line.substr(destructor + 2);
  return line.rfind("typeinfo for ", 0) == 0 ? "type information" : line;
}

TEST(ServicePagesTest, NameEveryOperationThatTheLibraryNeeds) {
  std::string pages;
  for (const char* page :
       {"VLProxy", "TQSProxy", "TQSObj", "tqStock", "tqCommon", "tqUI", "tqUtil", "TQLog"})
    pages += BytesOf(std::string("docs/services/") + page + ".md");
  std::istringstream needs(BytesOf("tests/exports/needs.linux.txt"));
  int count = 0;
  for (std::string line; std::getline(needs, line); ++count)
    EXPECT_NE(pages.find(NameOf(line)), std::string::npos) << line;
  EXPECT_GT(count, 0);
}

} // namespace
