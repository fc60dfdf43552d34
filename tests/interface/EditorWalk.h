// A user who does random things in an editor, beside a plain model of what they should do.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/User.h"
#include "tests/support/WindowCount.h"

// The states that an editor had in front of each step and behind it.
template <typename State> class StepJournal {
public:
  // A step was done: what was taken back cannot be done again.
  void Did(const State& before, const State& after) {
    steps_.resize(done_);
    steps_.push_back({before, after});
    ++done_;
  }
  bool CanGo(bool back) const { return back ? done_ > 0 : done_ < steps_.size(); }
  // The state that follows.
  const State& Go(bool back) { return back ? steps_[--done_].before : steps_[done_++].after; }

private:
  struct Step {
    State before;
    State after;
  };
  std::vector<Step> steps_;
  std::size_t done_ = 0;
};

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
  // Takes the latest step back, or does again what was taken back.
  static void PressStep(User& user, bool back) {
    EXPECT_TRUE(user.Press(back ? WindowKey::Z : WindowKey::Y, Modifier::Control));
  }
  // The recorded calls and messages would fill the memory in a long walk.
  static void Forget() { standin::ClearCalls(); }

private:
  std::mt19937 random_{20261122};
};
