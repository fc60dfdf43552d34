// Dialogs with a table of two columns and three rows.
#pragma once

#include "platform/framework/window/CListCtrl.h"
#include "tests/window/WindowTest.h"

class ListCtrlTest : public WindowTest {
protected:
  // A table of two columns with rows A, B, C and data 10, 20, 30.
  void InTable(const std::function<void(User&, TestDialog&, CListCtrl)>& script) {
    InDialog([&](User& user, TestDialog& dialog) {
      CListCtrl table(dialog, kTable);
      table.AddColumn("Code", 60);
      table.AddColumn("Name", 0);
      int data = 0;
      for (const char* text : {"A", "B", "C"})
        table.SetItemData(table.AddRow(text), data += 10);
      script(user, dialog, table);
    });
  }
};
