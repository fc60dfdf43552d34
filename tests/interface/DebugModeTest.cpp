// The debug mode: each kind of mistake is named in the log, and nothing is when it is off.
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "symboltable/SymbolTableMgr.h"
#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

constexpr int kMisuse = 512;

class DebugModeTest : public EditTest {
protected:
  DebugModeTest() { CTQSymbolListMgr::SetDebugMode(TQDebugOff); }
  ~DebugModeTest() override { CTQSymbolListMgr::SetDebugMode(TQDebugOff); }

  static void Watch() { CTQSymbolListMgr::SetDebugMode(TQDebugLog); }
  static std::vector<std::string> Mistakes() {
    std::vector<std::string> texts;
    for (const standin::LogLine& line : standin::LogLines())
      if (line.level == kMisuse)
        texts.push_back(line.text);
    return texts;
  }
  void ExpectMistake(const std::string& text) {
    const std::vector<std::string> mistakes = Mistakes();
    ASSERT_EQ(mistakes.size(), 1u) << text;
    EXPECT_EQ(mistakes[0], text);
  }
  static std::string CodePage() { return IsTraditionChinese() ? "950" : "936"; }
  void* Handle(const char* id) {
    void* handle = nullptr;
    EXPECT_EQ(manager.GetGroupHandle(1, id, &handle, 0), 1);
    return handle;
  }
  void StartWithGroups() {
    standin::Market market = SmallMarket();
    market.groups = {{1, "", "TOP", "上", "上", {"2330.TW"}},
                     {1, "TOP", "SUB", "下", "下", {"2317.TW"}}};
    standin::SetMarket(market);
    ASSERT_EQ(StartWithTables(), 1);
  }
};

TEST_F(DebugModeTest, NothingIsFoundInACorrectSession) {
  Watch();
  StartWithGroups();
  const std::string name = standin::ToAnsi("自選");
  ASSERT_EQ(manager.AddSymbolList("a", 0, name.c_str(), "2330.TW,2317.TW", 1, 0), 1);
  CString ids;
  EXPECT_EQ(manager.GetGroupListIDs(Handle("SUB"), ids), 1);
  EXPECT_EQ(manager.GetGroupCount(1, Handle("TOP")), 1);
  SymbolInfo* all = nullptr;
  int count = 0;
  ASSERT_EQ(manager.GetAllSymbolInfos(&all, &count), 1);
  CTQSymbolListMgr::FreeSymbolInfos(all);
  EXPECT_TRUE(Mistakes().empty()) << Mistakes()[0];
}

TEST_F(DebugModeTest, ACallOnAnotherThreadIsNamedAtTheNextCall) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  manager.GetSymbolListCount(1);
  std::thread([this] { manager.GetTQSymbolCount("a", 1); }).join();
  EXPECT_TRUE(Mistakes().empty());
  manager.GetSymbolListCount(1);
  ExpectMistake("GetTQSymbolCount was called on another thread than the first");
}

TEST_F(DebugModeTest, ALookUpOnAnotherThreadIsNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  CSymbolTableMgr* const tables = manager.GetSymbolTableMgr();
  std::thread([tables] {
    CString value;
    tables->LookUpSymbolGetString(1, "2330", "TW", value);
  }).join();
  manager.GetSymbolListCount(1);
  ExpectMistake("LookUpSymbolGetString was called on another thread than the first");
}

TEST_F(DebugModeTest, HalfACharacterIsNamedWithItsPlace) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  EXPECT_EQ(manager.AddSymbolList("a", 0, "AB\xA4", "2330.TW", 1, 0), 1);
  ExpectMistake("AddSymbolList: name is not text of code page " + CodePage() +
                ": byte 2 (A4) begins no character");
}

TEST_F(DebugModeTest, TextInUtf8IsNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  // Eighteen bytes, which are nine characters of either code page too.
  manager.CheckIDandName("a", "\xE8\x87\xAA\xE9\x81\xB8\xE8\x87\xAA\xE9\x81\xB8", 1);
  ASSERT_EQ(Mistakes().size(), 1u);
  EXPECT_NE(Mistakes()[0].find("CheckIDandName: name "), std::string::npos) << Mistakes()[0];
}

TEST_F(DebugModeTest, AHandleThatIsGoneIsNamedAndNotUsed) {
  StartWithGroups();
  Watch();
  void* const gone = Handle("SUB");
  ASSERT_EQ(manager.LoadGroupList(1), 1);
  CString ids = "as it was";
  CString name;
  SymbolInfo record;
  GroupInfo group;
  EXPECT_EQ(manager.GetGroupListIDs(gone, ids), 0);
  EXPECT_EQ(manager.GetGroupName(1, gone, name), 0);
  EXPECT_EQ(manager.GetGroupCount(1, gone), 0);
  EXPECT_EQ(manager.GetGroupInfo(1, gone, 0, &group), 0);
  EXPECT_EQ(manager.GetGroupSymbolCount(gone), 0);
  EXPECT_EQ(manager.GetGroupSymbolInfo(gone, 0, &record), 0);
  manager.UpdateCloudGroup(gone);
  const std::vector<std::string> mistakes = Mistakes();
  ASSERT_EQ(mistakes.size(), 7u);
  EXPECT_EQ(mistakes[0], "GetGroupListIDs: handle is of no group that there is now");
  EXPECT_EQ(mistakes[6], "UpdateCloudGroup: handle is of no group that there is now");
}

TEST_F(DebugModeTest, TablesThatAreGoneAreNamedAndNotUsed) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  auto own = std::make_unique<CSymbolTableMgr>();
  const auto address = reinterpret_cast<std::uintptr_t>(own.get());
  own.reset();
  auto* const gone = reinterpret_cast<CSymbolTableMgr*>(address);
  manager.GetTradeLotSize("2330.TW", gone, JT_DEAL_STOCK);
  ExpectMistake("GetTradeLotSize: tables are gone");
}

// Symptom: the line about the name let the terminal start anew, and the look-up went on in tables
// that were gone.
TEST_F(DebugModeTest, TablesThatGoWhileAMistakeIsWrittenAreNotUsed) {
  StartWith({});
  Watch();
  CSymbolTableMgr* const tables = manager.GetSymbolTableMgr();
  int starts = 0;
  standin::OnCall("TQLog::write", [&] { starts += starts == 0 ? StartWithTables() : 0; });
  CString id = "as it was";
  EXPECT_EQ(tables->LookUpNameGetSymbolID("\xB3", id), 0);
  standin::OnCall("TQLog::write", {});
  EXPECT_EQ(starts, 1);
  EXPECT_STREQ(id, "as it was");
}

TEST_F(DebugModeTest, TablesOfTheTerminalsOwnAreAsGood) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  {
    CSymbolTableMgr own;
    manager.GetTradeLotSize("2330.TW", &own, JT_DEAL_STOCK);
    EXPECT_TRUE(Mistakes().empty());
  }
}

TEST_F(DebugModeTest, AnArrayThatIsReleasedTwiceIsNamedAndLeftAlone) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  SymbolInfo* all = nullptr;
  int count = 0;
  ASSERT_EQ(manager.GetAllSymbolInfos(&all, &count), 1);
  CTQSymbolListMgr::FreeSymbolInfos(all);
  CTQSymbolListMgr::FreeSymbolInfos(all);
  ExpectMistake("FreeSymbolInfos: infos was released before, or is of another operation");
}

TEST_F(DebugModeTest, AnArrayOfBeforeTheDebugModeIsReleased) {
  ASSERT_EQ(StartWithTables(), 1);
  SymbolInfo* all = nullptr;
  int count = 0;
  ASSERT_EQ(manager.GetAllSymbolInfos(&all, &count), 1);
  Watch();
  CTQSymbolListMgr::FreeSymbolInfos(all);
  EXPECT_TRUE(Mistakes().empty());
}

SymbolInfo Record(const char* id) {
  SymbolInfo record = {};
  record.exchId = 1;
  std::strncpy(record.id, id, sizeof record.id - 1);
  return record;
}

TEST_F(DebugModeTest, RecordsOfAServiceThatBreakTheirContractAreNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  SymbolInfo open = Record("2330.TW");
  std::memset(open.name, 'x', sizeof open.name);
  standin::AnswerSymbols(1, {Record("2330.TW"), open}, 2, 1);
  manager.SortAllSymbolByExch();
  ExpectMistake("VLGetSymbolInfos2: record 1: its name has no NUL");
}

TEST_F(DebugModeTest, AnIdWithoutAnExchangeIsNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  standin::AnswerSymbols(1, {Record("2330")}, 1, 1);
  manager.SortAllSymbolByExch();
  ExpectMistake("VLGetSymbolInfos2: record 0: its id has no exchange behind a \".\"");
}

TEST_F(DebugModeTest, ANegativeCountIsNamed) {
  StartWithGroups();
  Watch();
  standin::AnswerMembers(1, "SUB", {}, -1);
  CString ids;
  manager.GetGroupListIDs(Handle("SUB"), ids);
  ExpectMistake("VLGetGroupSymbol: the array: its count is negative");
}

TEST_F(DebugModeTest, AGroupWithoutAnIdIsNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  standin::AnswerGroups(2, "", {GroupInfo{2, "", "x", 0}}, 1);
  manager.LoadGroupList(2);
  ExpectMistake("VLGetSubGroup: record 0: its id is empty");
}

TEST_F(DebugModeTest, ATradingSystemWithoutANulIsNamed) {
  ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 1);
  TQS_TSINFO info = {};
  std::memset(info.name, 'x', sizeof info.name);
  std::strcpy(info.id, "T");
  standin::AnswerTradingSystems({info});
  Watch();
  manager.UpdateTSLogin("T");
  ExpectMistake("TQSGetTSInfo: record 0: its name has no NUL");
}

TEST_F(DebugModeTest, AMistakeIsTheProblemOfItsOperation) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  manager.SetCloudeList("c", "AB\xA4", "2330.TW");
  CString text;
  EXPECT_EQ(CTQSymbolListMgr::GetLastProblem(text), TQProblemLeftOut) << "which came later";
  EXPECT_EQ(manager.AddSymbolList("a", 0, "", "2330.TW\xA4", 1, 0), 0);
  EXPECT_EQ(CTQSymbolListMgr::GetLastProblem(text), TQProblemName) << "the reason";
}

TEST_F(DebugModeTest, AListThatItsFileCannotBeLoadedWithIsNamed) {
  ASSERT_EQ(StartWithTables(), 1);
  Watch();
  ASSERT_EQ(manager.AddSymbolList("a", 0, "R&D", "2330.TW", 1, 0), 1);
  ExpectMistake("the list 'R&D' has an apostrophe, & or <: its file does not load again");
}

void MakeTheNextMistake(void* context, int, const char*) {
  static_cast<CTQSymbolListMgr*>(context)->CheckIDandName("a", "AB\xA4", 1);
}

TEST_F(DebugModeTest, WhoeverTakesTheLineMayMakeAMistake) {
  ASSERT_EQ(StartWithTables(), 1);
  CTQSymbolListMgr::SetLog(nullptr, 0, MakeTheNextMistake, &manager);
  Watch();
  EXPECT_EQ(manager.CheckIDandName("a", "AB\xA4", 1), 0);
  CTQSymbolListMgr::SetLog(nullptr, 0, nullptr, nullptr);
}

TEST_F(DebugModeTest, OffItFindsNothing) {
  ASSERT_EQ(StartWithTables(), 1);
  standin::AnswerSymbols(1, {Record("2330")}, 1, 1);
  manager.SortAllSymbolByExch();
  manager.CheckIDandName("a", "AB\xA4", 1);
  EXPECT_TRUE(Mistakes().empty());
}

} // namespace
