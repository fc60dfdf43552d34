// The terminal calls the tables again while they ask its services.
#include <functional>
#include <memory>
#include <string>
#include <tuple>

#include "tests/interface/SymbolTablesTest.h"

namespace {

struct Inner {
  const char* name;
  std::function<void(OpenTables&)> run;
};

void AddOne(OpenTables& tables, int exchId, const char* symbol) {
  char record[19] = {};
  std::strncpy(record, symbol, sizeof record);
  tables.AddSymbols(exchId, record, 1);
}

const Inner kInner[] = {
    {"Clean", [](OpenTables& tables) { tables.CleanALL(); }},
    {"InitAll", [](OpenTables& tables) { tables.InitAllSymbolTable(); }},
    {"CleanAndInitAll",
     [](OpenTables& tables) {
       tables.CleanALL();
       tables.Init();
       tables.InitAllSymbolTable();
     }},
    {"Rebuild", [](OpenTables& tables) { tables.RebuildSymbolTable(); }},
    {"RebuildOne", [](OpenTables& tables) { tables.RebuildSymbolTable("TW", 1); }},
    {"Add", [](OpenTables& tables) { AddOne(tables, 1, "2330.TW"); }},
    {"AddExchange", [](OpenTables& tables) { AddOne(tables, 3, "TXFL6.TF"); }},
    {"Authorize", [](OpenTables& tables) { tables.InitAuthorizedExch(); }},
    {"Defaults", [](OpenTables& tables) { tables.SetDefaults({2}); }},
};

// A service operation, and what the terminal does within each of its calls.
class SymbolTablesReentryTest : public SymbolTablesTest,
                                public testing::WithParamInterface<std::tuple<const char*, Inner>> {
protected:
  void Arm() {
    standin::OnCall(std::get<0>(GetParam()), [this] { std::get<1>(GetParam()).run(tables); });
  }
  void Disarm() { standin::OnCall(std::get<0>(GetParam()), nullptr); }
};

// Symptom: freed tables were written to, and symbols of one of two loads leaked.
TEST_P(SymbolTablesReentryTest, NothingFreedIsUsedAndNothingLeaks) {
  const std::function<void()> outer[] = {
      [this] { tables.InitAllSymbolTable(); },
      [this] { tables.InitAuthorizedExch(); },
      [this] { tables.RebuildSymbolTable(); },
      [this] { tables.RebuildSymbolTable("TW", 1); },
      [this] { tables.RebuildSymbolTable("EXTRA", 3); },
      [this] { Add(1, {"2330.TW", "2317.TW"}); },
      [this] { Update(1, {"2330.TW", "2317.TW"}); },
      [this] { Add(10, {"DIS.NYSE"}); },
      [this] { tables.MapExchIDsToExchName("1,10,2"); },
      [this] { tables.IsSupportUJKExch(); },
  };
  for (const auto& operation : outer) {
    for (const bool empty : {false, true}) {
      Start();
      if (empty)
        tables.CleanALL();
      Arm();
      operation();
      Disarm();
      EXPECT_EQ(standin::OutstandingArrays(), 0);
    }
  }
  Start();
  EXPECT_EQ(tables.Id("2330", ""), "2330.TW");
  tables.CleanALL();
}

std::string NameOf(const testing::TestParamInfo<std::tuple<const char*, Inner>>& info) {
  return std::string(std::get<0>(info.param)) + "_" + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(EachService, SymbolTablesReentryTest,
                         testing::Combine(testing::Values("VLGetExch", "VLGetBaseAttrs2",
                                                          "VLGetBaseAttrs", "TQSGetUserInfo",
                                                          "TQSGetUserExtraValue"),
                                          testing::ValuesIn(kInner)),
                         NameOf);

class SymbolTablesReentry : public SymbolTablesTest {};

TEST_F(SymbolTablesReentry, TheTableOfTheInnerLoadingIsNotDoubled) {
  Start();
  int asked = 0;
  standin::OnCall("VLGetBaseAttrs2", [&] {
    if (asked++ == 0)
      tables.RebuildSymbolTable("TW", 1);
  });
  EXPECT_EQ(tables.RebuildSymbolTable("TW", 1), 1);
  EXPECT_EQ(Remove(1, {"2330"}), 1);
  EXPECT_EQ(tables.Id("2330", "TW"), "") << "it was held twice";
}

TEST_F(SymbolTablesReentry, AnExchangeThatTwoCallsAddHasOneTable) {
  Start();
  tables.CleanALL();
  standin::OnCall("VLGetBaseAttrs2", [&] { tables.RebuildSymbolTable(); });
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  int count = 0;
  for (int slot = 0; slot < 128; ++slot)
    count += tables.TableAt(slot) != nullptr ? 1 : 0;
  EXPECT_EQ(count, static_cast<int>(market.exchanges.size()));
  EXPECT_EQ(tables.Id("2330", ""), "2330.TW");
  tables.CleanALL();
}

// Symptom: the terminal started the library again, which makes new tables, while the old ones were
// asking.
TEST_F(SymbolTablesReentry, TablesMayBeDeletedWhileTheyAsk) {
  for (const char* operation : {"VLGetExch", "VLGetBaseAttrs2", "TQSGetUserInfo"}) {
    auto own = std::make_unique<OpenTables>();
    OpenTables* const asking = own.get();
    standin::OnCall(operation, [&] { own.reset(); });
    asking->InitAllSymbolTable();
    if (own != nullptr)
      asking->InitAuthorizedExch();
    standin::OnCall(operation, nullptr);
    EXPECT_EQ(own, nullptr) << operation;
  }
}

} // namespace
