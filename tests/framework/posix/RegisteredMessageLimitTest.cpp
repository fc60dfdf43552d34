// Using up all numbers, in a process of its own, because they are never released.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "platform/framework/window/RegisteredMessage.h"

namespace {

// 0 when the last number is 0xFFFF, further names get 0, and those that have a number keep it.
int UseUpAllNumbers() {
  const unsigned kept = tq::RegisterMessage("TQTEST_Kept");
  unsigned last = 0;
  for (int i = 0; i < 0x4000; ++i) {
    if (const unsigned number = tq::RegisterMessage(("TQTEST_" + std::to_string(i)).c_str()))
      last = number;
  }
  if (last != 0xFFFF)
    return 1;
  if (tq::RegisterMessage("TQTEST_TooMany") != 0)
    return 2;
  return tq::RegisterMessage("TQTEST_Kept") == kept ? 0 : 3;
}

TEST(RegisteredMessageLimit, WhenNoNumberIsLeftNewNamesGetNone) {
  EXPECT_EXIT(std::_Exit(UseUpAllNumbers()), testing::ExitedWithCode(0), "");
}

} // namespace
