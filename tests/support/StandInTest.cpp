#include "tests/support/StandInTest.h"

#include "tests/support/HeldObjects.h"

StandInTest::StandInTest() {
  standin::Reset();
  standin::SetMarket(SmallMarket());
  held_ = HeldObjects();
}

StandInTest::~StandInTest() {
  EXPECT_EQ(standin::OutstandingArrays(), 0) << "service arrays were not released";
  EXPECT_EQ(standin::BadReleases(), 0) << "something was released that is no service array";
  EXPECT_EQ(HeldObjects(), held_) << "something of the operating system was left open";
}
