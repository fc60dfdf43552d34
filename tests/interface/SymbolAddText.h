// Symbols to one of the user's lists, opened as a terminal does.
#pragma once

#include <string>
#include <utility>

#include "tests/interface/ContentEditorText.h"

class SymbolAddText : public ContentEditorText {
protected:
  enum AddControl {
    kClose = 1,
    kSymbols = 741,
    kLists = 781,
    kContents = 782,
    kModify = 801,
    kNewList = 802,
    kAddHere = 803,
  };
  enum EndCode { kNotCreated = -1, kClosed = 1, kCancelled = 2 };

  void SetUp() override { Start({"A/one/2330.TW", "B/two/1101.TW,2317.TW", "C/three/2454.TW"}); }

  // Symbols and the identifier of the list to be selected are UTF-8.
  int Run(UserScript script, const std::string& symbols = "2881.TW", const char* list = "B") {
    WhenDialogOpens(std::move(script));
    return CTQSymbolListMgr::DoSymbolAddUI(&manager, manager.GetSymbolTableMgr(), nullptr,
                                           standin::ToAnsi(symbols).c_str(), list);
  }
  // Does this and closes with Done.
  void Do(const Action& action, const std::string& symbols = "2881.TW", const char* list = "B") {
    EXPECT_EQ(Run(
                  [&action](User& user) {
                    action(user);
                    EXPECT_TRUE(user.Click(kClose));
                  },
                  symbols, list),
              kClosed);
  }
  // Adds the symbols to the list that is selected.
  int Add(const std::string& symbols, const char* list = "B") {
    return Run(AddThem, symbols, list);
  }
  static void AddThem(User& user) {
    EXPECT_TRUE(user.Click(kAddHere));
    EXPECT_FALSE(user.IsUp());
  }
  // Where it depends on the symbols whether there is anything to click.
  static void AddThemIfPossible(User& user) {
    user.Click(kAddHere);
    if (user.IsUp())
      user.Click(kClose);
  }

  // One row for each, which begins with the id and has the name.
  static void ExpectContents(const User& user, const Lines& ids) {
    const Lines rows = user.Rows(kContents);
    ASSERT_EQ(rows.size(), ids.size());
    for (size_t i = 0; i < ids.size(); ++i) {
      EXPECT_EQ(rows[i].rfind(ids[i], 0), 0U) << rows[i];
      EXPECT_NE(rows[i].find(SymbolName(ids[i])), std::string::npos) << rows[i];
    }
  }
  static std::string Selected(const User& user) {
    const std::vector<int> rows = user.SelectedRows(kLists);
    return rows.size() == 1 ? user.Rows(kLists)[static_cast<size_t>(rows[0])] : "not one";
  }
  // What is shown of these that the list has already.
  static std::string Duplicates(const std::string& symbols) {
    return "[" + Text("以下的商品重複加入:\n", "以下的商品重复加入:\n") + symbols + "]/0";
  }
  static std::string WithName(const std::string& id) { return id + "(" + SymbolName(id) + ")"; }

  // The commit of a change, and what happens without one.
  static std::string Committed() {
    return "saved; log DoSymbolAddUI \xA7\xF3\xB0\xCA SymbolList!!; told 4:; told 40:"; // Big5
  }
  static std::string NothingCommitted() { return "not saved; told 40:"; }

  const std::string untouched = "A/one/2330.TW|B/two/1101.TW,2317.TW|C/three/2454.TW";
};
