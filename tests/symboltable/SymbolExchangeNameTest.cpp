#include <gtest/gtest.h>

#include <cstring>

#include "symboltable/ExchangeService.h"

namespace {

TEST(ExchangeName, EndsAtItsNul) {
  ExchInfo exchange = {};
  std::memcpy(exchange.name, "TW\0rest", 7);
  EXPECT_EQ(tq::NameOf(exchange), "TW");
}

TEST(ExchangeName, NameWithoutNulEndsWithItsField) {
  ExchInfo exchange = {};
  std::memset(exchange.name, 'N', sizeof exchange.name);
  std::memset(exchange.rest, 'R', sizeof exchange.rest);
  EXPECT_EQ(tq::NameOf(exchange), std::string_view("NNNNNNNNNNNNNNNNNNNN"));
}

} // namespace
