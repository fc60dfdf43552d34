// Look-ups allocate no memory.
#include "platform/framework/Storage.h"
#include "tests/interface/SymbolTablesTest.h"

namespace {

int allocations = 0;

class SymbolTablesMemoryTest : public SymbolTablesTest {
protected:
  void SetUp() override { Start(); }

  template <typename LookUp> int AllocationsOf(LookUp lookUp) {
    allocations = 0;
    const tq::StorageObserver before = tq::SetStorageObserver([](size_t) { ++allocations; });
    lookUp();
    tq::SetStorageObserver(before);
    return allocations;
  }

  const CString none;
};

TEST_F(SymbolTablesMemoryTest, HitsAllocateNothingHoweverTheIdIsWritten) {
  for (const char* text : {"6488.TE", "6488.te", "6488", "brk.b.nyse", "TXO21000L6.tf"}) {
    const CString id(text);
    const int count = AllocationsOf([&] {
      CString value;
      int number = 0;
      long longNumber = 0;
      EXPECT_EQ(tables.LookUpSymbolGetString(FieldSymbolId, id, none, value), 1);
      EXPECT_EQ(tables.LookUpSymbolGetString(FieldSymbolName, id, none, value), 1);
      EXPECT_EQ(tables.LookUpSymbolGetInt(FieldTradeLot, id, none, number), 1);
      EXPECT_EQ(tables.LookUpSymbolGetValue(FieldTradeLot, id, none, longNumber), 1);
      EXPECT_EQ(tables.LookUpSymbolGetExAttr(FieldDecimals, id, none, longNumber), 1);
    });
    EXPECT_EQ(count, 0) << text;
  }
}

TEST_F(SymbolTablesMemoryTest, HitsOnAGivenExchangeAllocateNothing) {
  const CString id("6488");
  for (const char* text : {"TE", "te"}) {
    const CString exchName(text);
    CString value;
    EXPECT_EQ(AllocationsOf([&] {
                EXPECT_EQ(tables.LookUpSymbolGetString(FieldSymbolId, id, exchName, value), 1);
              }),
              0)
        << text;
  }
}

TEST_F(SymbolTablesMemoryTest, ExchangeNameOfAnIdAllocatesNothing) {
  const CString id("6488.TE");
  CString value;
  EXPECT_EQ(AllocationsOf([&] {
              EXPECT_EQ(tables.LookUpSymbolGetString(FieldExchangeName, id, none, value), 1);
            }),
            0);
}

TEST_F(SymbolTablesMemoryTest, MissesAllocateNothing) {
  for (const char* text : {"9999.TW", "9999.tw", "9999", "9999.XX"}) {
    const CString id(text);
    CString value;
    EXPECT_EQ(AllocationsOf([&] {
                EXPECT_EQ(tables.LookUpSymbolGetString(FieldSymbolId, id, none, value), 0);
              }),
              0)
        << text;
  }
}

} // namespace
