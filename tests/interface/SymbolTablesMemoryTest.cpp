// Look-ups allocate no memory.
#include "platform/framework/Storage.h"
#include "tests/interface/SymbolTablesTest.h"

#include <vector>

#if defined(TQ_SANITIZE)
// The sanitizer calls these for each block that malloc or operator new returns and that is freed.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void*, size_t),
                                                         void (*)(const volatile void*));
#endif

namespace {

int allocations = 0;

// Storage of strings, arrays and maps is observed in every build, all other memory only under the
// sanitizer.
#if defined(TQ_SANITIZE)
void CountBlock(const volatile void*, size_t) {
  ++allocations;
}
void IgnoreBlock(const volatile void*) {}
const bool countsAll = __sanitizer_install_malloc_and_free_hooks(&CountBlock, &IgnoreBlock) != 0;
#else
const bool countsAll = false;
#endif

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

// Symptom: what operator new handed out was not seen by these tests.
TEST_F(SymbolTablesMemoryTest, AllocationsAreCounted) {
  EXPECT_GT(AllocationsOf([] { CString("a text of its own"); }), 0);
  if (countsAll) {
    EXPECT_GT(AllocationsOf([] { std::vector<int>(100); }), 0);
  }
}

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
