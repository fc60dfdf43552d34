// A manager whose whole lists are added, replaced and deleted.
#pragma once

#include <string>

#include "tests/interface/ListText.h"

using namespace listtext;

class WholeListsTest : public EditTest {
protected:
  // Expects one line and one notification, and nothing else.
  void ExpectTold(size_t lines, const char* line) {
    ASSERT_EQ(standin::LogLines().size(), lines + 1);
    EXPECT_EQ(standin::LogLines().back().level, 64);
    EXPECT_EQ(standin::LogLines().back().text, line);
    ExpectNotified(1, 40, "");
  }
  int Add(const char* id, const char* name, const char* symbols, int append = 1,
          int overwrite = 0) {
    return manager.AddSymbolList(id, 0, name, symbols, append, overwrite);
  }
  std::string Given(const CPtrArray& lists) {
    return static_cast<CSymbolList*>(lists.GetAt(0))->GetIDs().GetString();
  }
};
