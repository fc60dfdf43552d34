// A user who does random things in an editor, beside a plain model of what they should do.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/User.h"
#include "tests/support/WindowCount.h"

class EditorWalk : public EditTest {
protected:
  static constexpr int kUserLists = 1;
  static constexpr int kCloudLists = 8;
  using Texts = std::vector<std::string>;

  EditorWalk() { standin::SetMarket(GroupMarket()); }
  ~EditorWalk() override { EXPECT_EQ(TakeUnusedScripts(), 0u) << "a dialog did not open"; }

  int Draw(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  template <typename Value> const Value& DrawOf(const std::vector<Value>& values) {
    return values[static_cast<std::size_t>(Draw(static_cast<int>(values.size())))];
  }
  // 6 is Yes, 7 is No.
  bool DrawAnswer() {
    const bool yes = Draw(2) == 0;
    standin::AnswerMessages(yes ? 6 : 7);
    return yes;
  }
  // Another walk than that of the other tests.
  void Seed(unsigned seed) { random_.seed(seed); }
  // The recorded calls and messages would fill the memory in a long walk.
  static void Forget() { standin::ClearCalls(); }

private:
  std::mt19937 random_{20261122};
};
