#include "symbolid/SymbolRecords.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace {

std::string Packed(std::initializer_list<std::string> symbols) {
  std::string bytes;
  for (std::string symbol : symbols) {
    symbol.resize(tq::kSymbolRecordSize, '\0');
    bytes += symbol;
  }
  return bytes;
}

TEST(SymbolRecords, EndAtTheirNulOrFillTheRecord) {
  const std::string bytes = Packed({"2330", "1234567890123456789", "X"});
  const tq::SymbolRecords records(bytes.data(), 3);
  ASSERT_EQ(records.Count(), 3);
  EXPECT_EQ(records.At(0), "2330");
  EXPECT_EQ(records.At(1), "1234567890123456789");
  EXPECT_EQ(records.At(2), "X");
}

TEST(SymbolRecords, LoseBlanksOnBothSidesOnly) {
  const std::string bytes = Packed({"  A B \t", "                   ", ""});
  const tq::SymbolRecords records(bytes.data(), 3);
  EXPECT_EQ(records.At(0), "A B");
  EXPECT_EQ(records.At(1), "");
  EXPECT_EQ(records.At(2), "");
}

TEST(SymbolRecords, HalfACharacterAtTheEndIsLeftOut) {
  const std::string bytes = Packed({"123456789012345678\xa4", "12345678901234567\xa4\xa4"});
  const tq::SymbolRecords records(bytes.data(), 2);
  EXPECT_EQ(records.At(0), "123456789012345678");
  EXPECT_EQ(records.At(1), "12345678901234567\xa4\xa4");
}

TEST(SymbolRecords, JoinKeepsEmptyOnesButForOneCommaAtTheEnd) {
  const std::string bytes = Packed({"A", "", "B", ""});
  EXPECT_STREQ(tq::SymbolRecords(bytes.data(), 1).Joined(), "A");
  EXPECT_STREQ(tq::SymbolRecords(bytes.data(), 3).Joined(), "A,,B");
  EXPECT_STREQ(tq::SymbolRecords(bytes.data(), 4).Joined(), "A,,B,");
  EXPECT_STREQ(tq::SymbolRecords(bytes.data(), 0).Joined(), "");
}

TEST(SymbolRecords, NullAndNegativeCountAreNoRecords) {
  EXPECT_EQ(tq::SymbolRecords(nullptr, 5).Count(), 0);
  EXPECT_EQ(tq::SymbolRecords("A", -1).Count(), 0);
}

} // namespace
