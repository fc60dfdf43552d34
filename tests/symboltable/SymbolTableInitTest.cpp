// What Init does with existing tables; tested from inside, because afterwards nobody owns them.
#include <memory>

#include "platform/framework/CUIntArray.h"
#include "symboltable/SymbolTable.h"
#include "symboltable/SymbolTableMgr.h"
#include "tests/support/StandInTest.h"

namespace {

struct Tables : CSymbolTableMgr {
  using CSymbolTableMgr::TableAt;
};

class SymbolTableInitTest : public StandInTest {};

TEST_F(SymbolTableInitTest, TablesAreForgottenNotDeleted) {
  Tables tables;
  ASSERT_EQ(tables.InitAllSymbolTable(), 1);
  std::vector<std::unique_ptr<CSymbolTable>> kept;
  for (int slot = 0; slot < 128; ++slot)
    kept.emplace_back(tables.TableAt(slot));
  EXPECT_EQ(tables.Init(), 1);
  for (int slot = 0; slot < 128; ++slot)
    EXPECT_EQ(tables.TableAt(slot), nullptr);
  EXPECT_NE(kept[0]->FindId("2330"), nullptr);
}

TEST_F(SymbolTableInitTest, DefaultExchangesAreForgotten) {
  Tables tables;
  CUIntArray defaults;
  defaults.Add(1);
  tables.InitDefaultExchList(defaults);
  ASSERT_EQ(tables.Init(), 1);
  ASSERT_EQ(tables.InitAllSymbolTable(), 1);
  CString name;
  EXPECT_EQ(tables.GetDefaultExchange("2330", name), 0);
}

} // namespace
