// A user who renames a list in its row of the lists editor.
#pragma once

#include "tests/interface/EditorText.h"

class ListsEditorTextRename : public EditorTextTest {
protected:
  // Opens the editor over a row.
  static void Rename(User& user, int row) {
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.HasFocus(kNameEditor));
  }
  // Types a name over the row's own and presses Enter.
  static void RenameTo(User& user, int row, const std::string& name) {
    Rename(user, row);
    EXPECT_TRUE(user.Type(name));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
  }
  // The editor has stayed open for another try.
  static void ExpectStillEditing(User& user) {
    EXPECT_TRUE(user.IsUp());
    EXPECT_TRUE(user.IsVisible(kNameEditor));
    EXPECT_TRUE(user.HasFocus(kNameEditor));
  }
  static void GiveUp(User& user) {
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    EXPECT_TRUE(user.Click(kDone));
  }
  static std::string Reserved() {
    return Text("(系統) 此字串為系統所用，請勿使用", "(系统) 此字串为系统所用，请勿使用");
  }
  static std::vector<standin::Call> NameTests() {
    std::vector<standin::Call> calls;
    for (const standin::Call& call : standin::Calls())
      if (call.operation == "CCheckFileName::IsValidName")
        calls.push_back(call);
    return calls;
  }
};
