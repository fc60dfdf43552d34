// When a file was last written.
#include "platform/FileAccess.h"
#include "tests/platform/TestSystem.h"

#include <chrono>
#include <thread>

#include <gtest/gtest.h>

namespace {

using tqtest::TestDirectory;

std::int64_t TimeOf(const TestDirectory& directory, const char* name) {
  return tq::Files().LastWriteTime(directory.File(name).c_str());
}

TEST(LastWriteTime, AMissingFileHasNone) {
  const TestDirectory directory("data");
  EXPECT_EQ(TimeOf(directory, "None.xml"), 0);
  EXPECT_EQ(tq::Files().LastWriteTime(""), 0);
}

TEST(LastWriteTime, WritingAgainChangesItAndLookingDoesNot) {
  const TestDirectory directory("data");
  directory.Write("Old.xml", "bytes");
  const std::int64_t first = TimeOf(directory, "Old.xml");
  EXPECT_NE(first, 0);
  EXPECT_EQ(directory.Read("Old.xml"), "bytes");
  EXPECT_EQ(TimeOf(directory, "Old.xml"), first);
  std::this_thread::sleep_for(std::chrono::milliseconds(50)); // above the clocks of file systems
  directory.Write("Old.xml", "bytes");
  EXPECT_GT(TimeOf(directory, "Old.xml"), first);
}

TEST(LastWriteTime, AnotherNameDoesNotChangeIt) {
  const TestDirectory directory("data");
  directory.Write("Old.xml", "bytes");
  const std::int64_t before = TimeOf(directory, "Old.xml");
  ASSERT_TRUE(tq::Files().RenameFile(directory.File("Old.xml").c_str(),
                                     directory.File("Added.xml").c_str()));
  EXPECT_EQ(TimeOf(directory, "Added.xml"), before);
}

} // namespace
