// A step in an editor, as its user takes it back and does it again with the keyboard.
#pragma once

#include <functional>

#include <gtest/gtest.h>

#include "tests/support/User.h"

inline void Undo(User& user) {
  EXPECT_TRUE(user.Press(WindowKey::Z, Modifier::Control));
}

inline void Redo(User& user) {
  EXPECT_TRUE(user.Press(WindowKey::Y, Modifier::Control));
}

// What the user does in `action` is one step: back, forth, and back and forth again, with no key
// going further. `viewOf` is what he sees each time. The step is done at the end.
template <typename View>
void ExpectOneStep(User& user, View (*viewOf)(const User&),
                   const std::function<void(User&)>& action) {
  const View before = viewOf(user);
  action(user);
  const View after = viewOf(user);
  EXPECT_NE(before, after);
  for (int i = 0; i < 2; ++i) {
    Undo(user);
    EXPECT_EQ(viewOf(user), before);
    Undo(user); // nothing more
    EXPECT_EQ(viewOf(user), before);
    Redo(user);
    EXPECT_EQ(viewOf(user), after);
    Redo(user); // nothing more
    EXPECT_EQ(viewOf(user), after);
  }
}
