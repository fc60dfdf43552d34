// Which versions of headers and libraries fit together.
#include <gtest/gtest.h>

#include "platform/diagnostics/Versions.h"

namespace {

TEST(Versions, TheSameOneFits) {
  EXPECT_TRUE(tq::VersionFits(20000, 20000));
}

TEST(Versions, ALaterLibraryRunsWhatWasMadeForAnEarlierMinorOne) {
  EXPECT_TRUE(tq::VersionFits(20100, 20300));
  EXPECT_FALSE(tq::VersionFits(20300, 20100));
}

TEST(Versions, ThePatchDoesNotMatter) {
  EXPECT_TRUE(tq::VersionFits(20109, 20101));
}

TEST(Versions, AnotherMajorOneNeverFits) {
  EXPECT_FALSE(tq::VersionFits(10900, 20000));
  EXPECT_FALSE(tq::VersionFits(30000, 20000));
}

TEST(Versions, WhatIsNoVersionDoesNotFit) {
  EXPECT_FALSE(tq::VersionFits(0, 0));
  EXPECT_FALSE(tq::VersionFits(-20000, -20000));
}

} // namespace
