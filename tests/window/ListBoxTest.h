// Dialogs with a list box of three rows.
#pragma once

#include "platform/framework/window/CListBox.h"
#include "tests/window/WindowTest.h"

constexpr int kBox = 781;

class ListBoxTest : public WindowTest {
protected:
  // A box with rows A, B, C and data 10, 20, 30.
  void InBox(const std::function<void(User&, TestDialog&, CListBox)>& script) {
    InDialog([&](User& user, TestDialog& dialog) {
      CListBox box(dialog, kBox);
      int data = 0;
      for (const char* text : {"A", "B", "C"})
        box.SetItemData(box.AddString(text), data += 10);
      script(user, dialog, box);
    });
  }
};
