// Dialogs whose lists of every kind have the same rows.
#pragma once

#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "tests/window/WindowTest.h"

constexpr int kSingle = 781;
constexpr int kMulti = 782;
constexpr int kCombo = 761;

using Picked = std::vector<int>;

class ListsTest : public WindowTest {
protected:
  // Each list has the rows 0 to `rows` - 1.
  void InLists(int rows, const std::function<void(User&, TestDialog&)>& script) {
    InDialog([&](User& user, TestDialog& dialog) {
      CListCtrl table(dialog, kTable);
      table.AddColumn("x", 0);
      for (int i = 0; i < rows; ++i) {
        const std::string text = std::to_string(i);
        for (const int id : {kSingle, kMulti})
          CListBox(dialog, id).AddString(text.c_str());
        CComboBox(dialog, kCombo).AddString(text.c_str());
        table.AddRow(text.c_str());
      }
      script(user, dialog);
    });
  }
  static std::string Told(int id) { return std::to_string(id) + " selection"; }
};
