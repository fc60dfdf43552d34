// A user who makes, edits and deletes lists from the selection.
#pragma once

#include "tests/interface/EditorText.h"

class SelectionTextEdit : public SelectionTextTest {
protected:
  static void ShowMyLists(User& user) { EXPECT_TRUE(user.Select(kSources, MyLists())); }
  static void New(User& user, UserScript script) {
    ShowMyLists(user);
    WhenDialogOpens(std::move(script));
    EXPECT_TRUE(user.Click(kNew));
  }
  static void Edit(User& user, int row, UserScript script) {
    ShowMyLists(user);
    EXPECT_TRUE(user.Select(kLists, row));
    WhenDialogOpens(std::move(script));
    EXPECT_TRUE(user.Click(kEdit));
  }
  static void Delete(User& user, int row, int answer = kYes) {
    standin::AnswerMessages(answer);
    ShowMyLists(user);
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kDelete));
  }
  static std::string Told() { return "; told 40:" + Logged("DoSelectUI"); }
  // What was there before, with another name of the second list.
  static std::string Renamed() { return "A/one/2330.TW|B/zwei/2317.TW|C/three/1101.TW,2454.TW"; }
};
