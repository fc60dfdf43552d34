#include "tests/support/StandInTest.h"

StandInTest::StandInTest() {
  standin::Reset();
  standin::SetMarket(SmallMarket());
}

StandInTest::~StandInTest() {
  EXPECT_EQ(standin::OutstandingArrays(), 0) << "service arrays were not released";
  EXPECT_EQ(standin::BadReleases(), 0) << "something was released that is no service array";
}
