// How tables are found by the names of their exchanges.
#include "symboltable/ExchangeTables.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "symbolid/UpperId.h"

namespace {

using tq::ExchangeTables;

void Put(ExchangeTables& tables, int slot, const std::string& name, int exchId = 1) {
  tables.Put(slot, std::make_unique<CSymbolTable>(CString(name.c_str()), exchId));
}

int FindInTail(const ExchangeTables& tables, const char* id, std::size_t size) {
  CString text(id);
  tq::UpperBuffer buffer;
  return tables.FindNameInTail(tq::UpperCased(text, buffer).tail, size);
}

TEST(ExchangeTables, ANameIsFoundWhateverItsLength) {
  ExchangeTables tables;
  std::string name;
  for (int slot = 0; slot < 20; ++slot)
    Put(tables, slot, name += static_cast<char>('A' + slot));
  for (int slot = 0; slot < 20; ++slot)
    EXPECT_EQ(tables.FindName(name.substr(0, static_cast<std::size_t>(slot) + 1)), slot);
  EXPECT_EQ(tables.FindName(name + "X"), ExchangeTables::kNone);
  EXPECT_EQ(tables.FindName("X"), ExchangeTables::kNone);
  EXPECT_EQ(tables.FindName(""), ExchangeTables::kNone);
}

TEST(ExchangeTables, EachOfAsManyNamesAsThereAreSlotsIsFound) {
  ExchangeTables tables;
  for (int slot = 0; slot < ExchangeTables::kCount; ++slot)
    Put(tables, slot, "E" + std::to_string(slot));
  for (int slot = 0; slot < ExchangeTables::kCount; ++slot)
    EXPECT_EQ(tables.FindName("E" + std::to_string(slot)), slot);
  EXPECT_EQ(tables.FindName("E128"), ExchangeTables::kNone);
}

TEST(ExchangeTables, TheSuffixOfAnIdIsFoundInItsTail) {
  ExchangeTables tables;
  Put(tables, 3, "TW");
  Put(tables, 4, "EIGHTCHR");
  EXPECT_EQ(FindInTail(tables, "2330.TW", 2), 3);
  EXPECT_EQ(FindInTail(tables, "A.TW", 2), 3);
  EXPECT_EQ(FindInTail(tables, "1234567.EIGHTCHR", 8), 4);
  EXPECT_EQ(FindInTail(tables, "2330.TW", 1), ExchangeTables::kNone);
  EXPECT_EQ(FindInTail(tables, "2330.TW", 3), ExchangeTables::kNone);
}

TEST(ExchangeTables, OfOneNameTheLowestSlotAnswersWhicheverCameFirst) {
  for (const char* name : {"TW", "A LONG NAME"}) {
    ExchangeTables tables;
    Put(tables, 9, name, 1);
    Put(tables, 4, name, 2);
    EXPECT_EQ(tables.FindName(name), 4) << name;
    EXPECT_FALSE(tables.IsFirstOfName(*tables.At(9))) << name;
    tables.Remove(4);
    EXPECT_EQ(tables.FindName(name), 9) << name;
    EXPECT_TRUE(tables.IsFirstOfName(*tables.At(9))) << name;
    tables.Clear();
    EXPECT_EQ(tables.FindName(name), ExchangeTables::kNone) << name;
  }
}

TEST(ExchangeTables, LetterCaseCountsForNamesAndNotForUpperNames) {
  ExchangeTables tables;
  Put(tables, 0, "tw");
  EXPECT_EQ(tables.FindName("TW"), ExchangeTables::kNone);
  EXPECT_TRUE(tables.HasUpperName("TW"));
  EXPECT_FALSE(tables.HasUpperName("T"));
  tables.Remove(0);
  EXPECT_FALSE(tables.HasUpperName("TW"));
}

} // namespace
