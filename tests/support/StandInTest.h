// The fixture of every test that reaches the terminal's services.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/SmallMarket.h"

// Starts with a stand-in terminal that is fresh but for SmallMarket(). Ends by holding the test to
// what it borrowed: every service array released, and once only. Both happen in the constructor and
// the destructor, so that objects under test may be members of the derived fixture. Nothing of the
// operating system may stay open either.
class StandInTest : public testing::Test {
protected:
  StandInTest();
  ~StandInTest() override;

private:
  long held_;
};
