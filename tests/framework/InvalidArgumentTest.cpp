// What stops the program, and how. Each of these runs in a process of its own.
#include "platform/framework/InvalidArgument.h"

#include <cstdio>
#include <cstdlib>

#include "tests/framework/FrameworkTest.h"

namespace {

constexpr int kHandlerExit = 7;

void ExitWithMessage(const char* message) {
  std::fprintf(stderr, "handler got: %s\n", message);
  std::_Exit(kHandlerExit);
}

void Return(const char*) {}

class InvalidArgumentDeathTest : public testing::Test {
protected:
  void SetUp() override {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    m_array.SetSize(3);
  }
  CUIntArray m_array;
};

TEST_F(InvalidArgumentDeathTest, StandardHandlerWritesALineAndStops) {
  EXPECT_DEATH(m_array.GetAt(3), "tqFramework: CArray::GetAt: index 3 of 3 elements");
}

TEST_F(InvalidArgumentDeathTest, HandlerOfTheHostGetsTheMessage) {
  EXPECT_EXIT(
      {
        tq::SetInvalidArgumentHandler(&ExitWithMessage);
        m_array[-1] = 1;
      },
      testing::ExitedWithCode(kHandlerExit), "handler got: CArray::operator.*: index -1 of 3");
}

TEST_F(InvalidArgumentDeathTest, HandlerThatReturnsStopsAllTheSame) {
  EXPECT_DEATH(
      {
        tq::SetInvalidArgumentHandler(&Return);
        m_array.SetAt(5, 1);
      },
      "");
}

TEST_F(InvalidArgumentDeathTest, EveryOperationOutsideOfTheArrayStops) {
  tq::SetInvalidArgumentHandler(&ExitWithMessage);
  const auto stopped = testing::ExitedWithCode(kHandlerExit);
  EXPECT_EXIT(m_array.ElementAt(3), stopped, "ElementAt: index 3");
  EXPECT_EXIT(m_array.RemoveAt(2, 2), stopped, "RemoveAt: index 2");
  EXPECT_EXIT(m_array.RemoveAt(-1), stopped, "RemoveAt: index -1");
  EXPECT_EXIT(m_array.RemoveAt(0, -1), stopped, "RemoveAt");
  EXPECT_EXIT(m_array.InsertAt(-1, 1u), stopped, "InsertAt");
  EXPECT_EXIT(m_array.SetAtGrow(-1, 1u), stopped, "InsertAt");
  EXPECT_EXIT(m_array.SetSize(-1), stopped, "SetSize");
  tq::SetInvalidArgumentHandler(nullptr);
}

TEST_F(InvalidArgumentDeathTest, WalkingAMapBeyondItsEndStops) {
  const CMapStringToString map;
  POSITION position = map.GetStartPosition();
  CString key, value;
  EXPECT_DEATH(map.GetNextAssoc(position, key, value), "CMap::GetNextAssoc");
}

TEST_F(InvalidArgumentDeathTest, SettingAHandlerReturnsTheOneBefore) {
  const tq::InvalidArgumentHandler standard = tq::SetInvalidArgumentHandler(&Return);
  EXPECT_EQ(tq::SetInvalidArgumentHandler(nullptr), &Return);
  EXPECT_EQ(tq::SetInvalidArgumentHandler(nullptr), standard);
}

} // namespace
