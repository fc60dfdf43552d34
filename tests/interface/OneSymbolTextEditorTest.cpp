// One symbol to the user's lists by way of the editor of a list's contents.
#include "tests/interface/ContentEditorText.h"

namespace {

class OneSymbolEditorText : public ContentEditorText {
protected:
  enum OwnControl { kLists = 781, kContents = 782, kNew = 801, kModify = 802 };

  void SetUp() override { Start({"A/one/2330.TW", "B/two/1101.TW,2317.TW"}); }

  // In the dialog selects a list (-1: none), opens the editor by a button, does this there, and
  // then `after` in the dialog, which is closed with Done.
  void Do(int list, int button, const Action& inEditor, const Action& after = {},
          const char* symbol = "2881.TW") {
    WhenDialogOpens([&](User& user) {
      EXPECT_EQ(list == -1 || user.Select(kLists, list), true);
      WhenDialogOpens(inEditor);
      EXPECT_TRUE(user.Click(button));
      if (after)
        after(user);
      EXPECT_TRUE(user.Click(kDone));
    });
    EXPECT_EQ(
        CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr, symbol),
        1);
  }
  void Modify(int list, const Action& inEditor, const char* symbol = "2881.TW") {
    Do(list, kModify, inEditor, {}, symbol);
  }
  static void Accept(User& user) { EXPECT_TRUE(user.Click(kDone)); }
  static void Cancel(User& user) { EXPECT_TRUE(user.Click(kCancel)); }
  static void AcceptAs(User& user, const char* name) {
    EXPECT_TRUE(user.Fill(kName, name));
    Accept(user);
  }
  static Lines ContentsOf(const Lines& ids) {
    Lines rows = RowsOf(ids);
    rows.pop_back();
    return rows;
  }
  // What is shown when these texts stand in the list already.
  static std::string Duplicates(const std::string& texts) {
    return "[" +
           Text("商品組合內不允許有重複的商品。\n以下的商品已經存在:\n",
                "商品组合内不允许有重复的商品。\n以下的商品已经存在:\n") +
           texts + Text(",\n請按確定按鈕繼續修改。", ",\n请按确定按钮继续修改。") + "]/0";
  }
  static bool HasRow(const User& user, const std::string& id) {
    for (const std::string& row : user.Rows(kRows)) {
      if (row == id + " " + SymbolName(id))
        return true;
    }
    return false;
  }
  const std::string untouched = "A/one/2330.TW|B/two/1101.TW,2317.TW";
};

// --- Add and modify ------------------------------------------------------------------------------

TEST_F(OneSymbolEditorText, TheEditorOpensOnTheSelectedListWithTheSymbol) {
  Modify(1, [](User& user) {
    EXPECT_EQ(user.Title(), Text("修改自選商品組合", "修改自选商品组合"));
    EXPECT_EQ(user.Text(kName), "two");
    EXPECT_TRUE(HasRow(user, "1101.TW"));
    EXPECT_TRUE(HasRow(user, "2317.TW"));
    EXPECT_TRUE(HasRow(user, "2881.TW"));
    EXPECT_EQ(user.Rows(kRows).size(), 4U);
    EXPECT_EQ(user.Rows(kRows).back(), "");
    Cancel(user);
  });
}

TEST_F(OneSymbolEditorText, AnEditedListTakesTheOnesPlace) {
  Do(1, kModify, Accept, [](User& user) {
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two"}));
    EXPECT_EQ(user.Rows(kContents), ContentsOf({"1101.TW", "2317.TW", "2881.TW"}));
  });
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW,2881.TW");
}

TEST_F(OneSymbolEditorText, AnEditedListReplacesItsRow) {
  Do(
      0, kModify, [](User& user) { AcceptAs(user, "uno"); },
      [](User& user) {
        EXPECT_EQ(user.Rows(kLists), (Lines{"uno", "two"}));
        EXPECT_EQ(user.SelectedRows(kLists), std::vector<int>{0});
      });
  EXPECT_EQ(All(), "A/uno/2330.TW,2881.TW|B/two/1101.TW,2317.TW");
}

TEST_F(OneSymbolEditorText, AnEditThatIsCancelledChangesNothing) {
  Do(1, kModify, Cancel, [](User& user) {
    EXPECT_EQ(user.Rows(kContents), ContentsOf({"1101.TW", "2317.TW"}));
  });
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(OneSymbolEditorText, AnEditedListIsSavedLoggedAndTold) {
  Modify(0, Accept);
  EXPECT_EQ(Happened(), "saved; log DoGroupSymbolAdd \xA7\xF3\xB0\xCA SymbolList!!; told 40:");
}

TEST_F(OneSymbolEditorText, NothingIsStoredBeforeTheDialogCloses) {
  Do(0, kModify, Accept, [this](User&) { EXPECT_EQ(All(), untouched); });
}

TEST_F(OneSymbolEditorText, AnEditedListCannotTakeTheNameOfAnotherOne) {
  Modify(1, [this](User& user) {
    AcceptAs(user, "one");
    EXPECT_EQ(Shown(), "48011/0");
    EXPECT_TRUE(user.HasFocus(kName));
    Cancel(user);
  });
  EXPECT_EQ(All(), untouched);
}

// --- A symbol that the list holds ----------------------------------------------------------------

TEST_F(OneSymbolEditorText, ASymbolThatTheListHoldsIsReportedWithItsName) {
  Modify(
      1,
      [this](User& user) {
        EXPECT_EQ(Shown(), Duplicates("2317.TW " + SymbolName("2317.TW")));
        Cancel(user);
      },
      "2317.TW");
}

TEST_F(OneSymbolEditorText, ASymbolThatTheServiceDoesNotKnowIsReportedAlone) {
  Start({"A/one/2330.TW,GONE.TW"});
  Modify(
      0,
      [this](User& user) {
        EXPECT_EQ(Shown(), Duplicates("GONE.TW"));
        Cancel(user);
      },
      "GONE.TW");
}

TEST_F(OneSymbolEditorText, TheRowOfASymbolThatTheListHoldsIsSelected) {
  Modify(
      1,
      [](User& user) {
        EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{1});
        EXPECT_TRUE(user.IsInSight(kRows, 1));
        Cancel(user);
      },
      "2317.TW");
}

TEST_F(OneSymbolEditorText, ASymbolThatALongListHoldsIsScrolledIntoSight) {
  std::string symbols;
  standin::Market market = standin::CurrentMarket();
  for (int code = 3000; code < 3200; ++code) {
    standin::Instrument instrument = market.instruments.front();
    instrument.code = std::to_string(code);
    market.instruments.push_back(instrument);
    symbols += (symbols.empty() ? "" : ",") + instrument.code + ".TW";
  }
  standin::SetMarket(market);
  Start({"A/one/" + symbols});
  Modify(
      0,
      [](User& user) {
        EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{150});
        EXPECT_TRUE(user.IsInSight(kRows, 150));
        Cancel(user);
      },
      "3150.TW");
}

TEST_F(OneSymbolEditorText, ASymbolThatTheListHoldsIsNotAddedAgain) {
  Modify(
      1,
      [](User& user) {
        EXPECT_EQ(user.Rows(kRows), RowsOf({"1101.TW", "2317.TW"}));
        Accept(user);
      },
      "2317.TW");
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(OneSymbolEditorText, ASymbolInSmallLettersIsTheSameSymbol) {
  Modify(
      1,
      [this](User& user) {
        EXPECT_NE(Shown(), "");
        EXPECT_EQ(user.Rows(kRows), RowsOf({"1101.TW", "2317.TW"}));
        Cancel(user);
      },
      "2317.tw");
}

TEST_F(OneSymbolEditorText, ASymbolThatTheListDoesNotHoldIsNotReported) {
  Modify(1, Cancel);
  EXPECT_EQ(Shown(), "");
}

// --- A new list ----------------------------------------------------------------------------------

TEST_F(OneSymbolEditorText, TheEditorOfANewListOpensWithTheSymbol) {
  Do(0, kNew, [](User& user) {
    EXPECT_EQ(user.Title(), Text("新增自選商品組合", "新增自选商品组合"));
    EXPECT_EQ(user.Text(kName), "");
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2881.TW"}));
    Cancel(user);
  });
}

TEST_F(OneSymbolEditorText, ANewListIsAppendedAndSelected) {
  Do(
      0, kNew, [](User& user) { AcceptAs(user, "three"); },
      [](User& user) {
        EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
        EXPECT_EQ(user.SelectedRows(kLists), std::vector<int>{2});
        EXPECT_EQ(user.Rows(kContents), ContentsOf({"2881.TW"}));
      });
  EXPECT_EQ(manager.GetSymbolListCount(1), 3);
  EXPECT_EQ(NameAt(2), "three");
  EXPECT_EQ(Symbols(IdAt(2).c_str()), "2881.TW");
}

TEST_F(OneSymbolEditorText, ANewListHasANewIdentifier) {
  Do(0, kNew, [](User& user) { AcceptAs(user, "three"); });
  EXPECT_EQ(IdAt(2).size(), 36U);
}

TEST_F(OneSymbolEditorText, ANewListIsSavedLoggedAndTold) {
  Do(0, kNew, [](User& user) { AcceptAs(user, "three"); });
  EXPECT_EQ(Happened(), "saved; log DoGroupSymbolAdd \xA7\xF3\xB0\xCA SymbolList!!; told 40:");
}

TEST_F(OneSymbolEditorText, ANewListThatIsCancelledIsNotThere) {
  Do(0, kNew, Cancel, [](User& user) { EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two"})); });
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(OneSymbolEditorText, ANewListNeedsANameOfItsOwn) {
  Do(0, kNew, [this](User& user) {
    AcceptAs(user, "two");
    EXPECT_EQ(Shown(), "48011/0");
    EXPECT_TRUE(user.HasFocus(kName));
    Cancel(user);
  });
}

TEST_F(OneSymbolEditorText, TwoNewListsCannotHaveOneName) {
  Do(
      0, kNew, [](User& user) { AcceptAs(user, "three"); },
      [this](User& user) {
        WhenDialogOpens([this](User& second) {
          AcceptAs(second, "three");
          EXPECT_EQ(Shown(), "48011/0");
          Cancel(second);
        });
        user.Click(kNew);
      });
  EXPECT_EQ(manager.GetSymbolListCount(1), 3);
}

TEST_F(OneSymbolEditorText, TheOnlyListIsTheDefault) {
  Start({});
  Do(-1, kNew, [](User& user) { AcceptAs(user, "three"); });
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
  EXPECT_EQ(DefaultIndex(), 0);
}

TEST_F(OneSymbolEditorText, ANewListBesideOthersIsNotTheDefault) {
  manager.SetDefaultIndex(1);
  Do(0, kNew, [](User& user) { AcceptAs(user, "three"); });
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(OneSymbolEditorText, ANewListIsInTheFile) {
  Do(0, kNew, [](User& user) { AcceptAs(user, "three"); });
  EXPECT_EQ(ReadBack(), untouched + "|" + IdAt(2) + "/three/2881.TW");
}

} // namespace
