// A manager whose lists a test gives as "id/name/symbols" and reads back in the same form.
#pragma once

#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/ManagerTest.h"

class EditTest : public ManagerTest {
protected:
  // Starts with symbol tables and discards the notifications of the start.
  void StartWith(const std::vector<std::string>& lists) {
    std::string file = std::string("<?xml version='1.0' encoding='") +
                       (IsTraditionChinese() ? "big5" : "gb2312") +
                       "' ?><Result><SymbolList DefaultIdx='0'>";
    for (const std::string& list : lists) {
      const size_t name = list.find('/');
      const size_t symbols = list.find('/', name + 1);
      file += "<List ID='" + list.substr(0, name) + "' Name='" +
              list.substr(name + 1, symbols - name - 1) + "' Value='" + list.substr(symbols + 1) +
              "'/>";
    }
    WriteWorking(file + "</SymbolList></Result>");
    ASSERT_EQ(StartWithTables(), 1);
    notified_ = standin::Notifications().size();
  }

  std::string Shape() {
    std::string shape;
    for (int i = 0; i < manager.GetSymbolListCount(1); ++i) {
      CString id;
      CString name;
      CString symbols;
      EXPECT_EQ(manager.GetSymbolListInfo(i, id, name, symbols, 1), 1);
      shape +=
          (i > 0 ? "|" : "") + std::string(id) + "/" + name.GetString() + "/" + symbols.GetString();
    }
    return shape;
  }

  std::string IdAt(int index) {
    TQSymbolListInfo info = {};
    manager.GetTQSymbolListInfo(index, &info, 1);
    return info.ID;
  }
  std::string NameAt(int index) {
    TQSymbolListInfo info = {};
    manager.GetTQSymbolListInfo(index, &info, 1);
    return info.Name;
  }
  int DefaultIndex() {
    int index = -99;
    manager.GetDefaultListIdx(index);
    return index;
  }

  // The ids of a list's rows, joined by blanks.
  std::string Rows(const char* id) {
    std::string rows;
    for (int i = 0; i < manager.GetTQSymbolCount(id, 1); ++i) {
      SymbolInfo record = {};
      EXPECT_EQ(manager.GetTQSymbolInfo(id, i, &record, 1), 1);
      rows += (i > 0 ? " " : "") + std::string(record.id);
    }
    return rows;
  }

  void ExpectNotNotified() { EXPECT_EQ(standin::Notifications().size(), notified_); }

  // Expects that many notifications since the start, the last one as given.
  void ExpectNotified(size_t count, long code, const char* reason) {
    ASSERT_EQ(standin::Notifications().size(), notified_ + count);
    EXPECT_EQ(standin::Notifications().back().target, "");
    EXPECT_EQ(standin::Notifications().back().reserved, -1);
    EXPECT_EQ(standin::Notifications().back().code, code);
    EXPECT_EQ(standin::Notifications().back().reason, reason);
  }

  static void DeleteCopies(CPtrArray& copies) {
    for (int i = 0; i < copies.GetSize(); ++i)
      delete static_cast<CSymbolList*>(copies[i]);
    copies.RemoveAll();
  }

private:
  size_t notified_ = 0;
};
