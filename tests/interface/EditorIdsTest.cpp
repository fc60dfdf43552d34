// Ids that no list file can carry, and ids that the service does not know, in the editors.
#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/User.h"

namespace {

// NYSE lists "A&B". A list file is not escaped: one with that id would cost every list at the next
// load.
class EditorIds : public EditTest {
protected:
  static constexpr int kRows = 781;
  static constexpr int kCode = 741;
  static constexpr unsigned kUnloadable = 48204;

  EditorIds() {
    standin::Market market = GroupMarket();
    standin::Instrument instrument = market.instruments.front();
    instrument.exchId = 10;
    instrument.code = "A&B";
    instrument.nameTw = instrument.nameCn = "A and B";
    market.instruments.push_back(instrument);
    market.groups.push_back({1, "", "MIX", "mix", "mix", {}});
    market.groups.push_back({1, "MIX", "MIX1", "m", "m", {"2330.TW", "A&B.NYSE", "1101.TW"}});
    standin::SetMarket(market);
    StartWith({"A/one/2317.TW"});
  }
  ~EditorIds() override { EXPECT_EQ(TakeUnusedScripts(), 0u); }

  void EditA(UserScript script) {
    WhenDialogOpens(std::move(script));
    CSymbolList* list = nullptr;
    manager.GetSymbolList("A", &list, 1);
    CTQSymbolListMgr::DoGroupListUI(&manager, manager.GetSymbolTableMgr(), list, 1, nullptr, 0);
  }
  static void ChooseMix(User& user) {
    EXPECT_TRUE(user.Select(761, "mix"));
    EXPECT_EQ(user.Rows(782).size(), 3u);
  }
  void ExpectTheFileLoads() {
    const std::string before = Shape();
    manager.LoadSymbolList();
    EXPECT_EQ(Shape(), before);
    EXPECT_NE(before, "");
  }
};

TEST_F(EditorIds, OneThatNoFileCarriesIsNotAddedWhenItIsTyped) {
  EditA([](User& user) {
    EXPECT_TRUE(user.Fill(kCode, "A&B.NYSE"));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_EQ(standin::Messages().back().id, kUnloadable);
    EXPECT_TRUE(user.HasFocus(kCode));
    EXPECT_EQ(user.Rows(kRows).size(), 2u);
    EXPECT_TRUE(user.Click(1));
  });
  ExpectTheFileLoads();
}

TEST_F(EditorIds, OneThatNoFileCarriesIsNotAddedWhenItIsPicked) {
  EditA([](User& user) {
    ChooseMix(user);
    EXPECT_TRUE(user.DoubleClick(782, 1));
    EXPECT_EQ(standin::Messages().back().id, kUnloadable);
    EXPECT_EQ(user.Rows(kRows).size(), 2u);
    EXPECT_TRUE(user.Click(1));
  });
  ExpectTheFileLoads();
}

TEST_F(EditorIds, OthersAreAddedWithoutTheOneThatNoFileCarries) {
  EditA([](User& user) {
    ChooseMix(user);
    EXPECT_TRUE(user.Click(807));
    EXPECT_EQ(user.Rows(kRows).size(), 4u);
    EXPECT_TRUE(user.Click(1));
  });
  EXPECT_EQ(Shape(), "A/one/2317.TW,2330.TW,1101.TW");
  ExpectTheFileLoads();
}

TEST_F(EditorIds, OneThatNoFileCarriesIsNotAddedToAnyList) {
  WhenDialogOpens([](User& user) {
    EXPECT_TRUE(user.Click(803));
    EXPECT_EQ(standin::Messages().back().id, kUnloadable);
    WhenDialogOpens([](User& editor) {
      EXPECT_EQ(editor.Rows(kRows).size(), 2u);
      EXPECT_TRUE(editor.Click(1));
    });
    EXPECT_TRUE(user.Click(802));
    EXPECT_TRUE(user.Click(1));
  });
  CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr, "A&B.NYSE");
  EXPECT_EQ(Shape(), "A/one/2317.TW");
  ExpectTheFileLoads();
}

TEST_F(EditorIds, OneThatTheServiceDoesNotKnowIsAddedToAListAsItIs) {
  WhenDialogOpens([](User& user) {
    EXPECT_TRUE(user.Click(803));
    EXPECT_TRUE(user.Click(1));
  });
  CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr, "new.TW");
  EXPECT_EQ(Shape(), "A/one/2317.TW,new.TW");
}

TEST_F(EditorIds, OneThatIsNoneIsAddedToNothing) {
  for (const char* symbol : {"", " ", "a,b", static_cast<const char*>(nullptr)}) {
    WhenDialogOpens([](User& user) {
      EXPECT_FALSE(user.IsEnabled(803));
      EXPECT_TRUE(user.Click(1));
    });
    CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr, symbol);
    EXPECT_EQ(Shape(), "A/one/2317.TW");
  }
}

// How rows look.
class EditorLooks : public EditorIds {
protected:
  static std::string BoldRows(const User& user, int id) {
    CDialog* const dialog = CDialog::FromHandle(user.Dialog().GetSafeHwnd());
    std::string bold;
    for (int row = 0; row < static_cast<int>(user.Rows(id).size()); ++row)
      bold += tq::DialogAccess::Look(*dialog, id, row).bold ? 'b' : '-';
    return bold;
  }
};

TEST_F(EditorLooks, HeadingsAreBold) {
  StartWith({"A/one/Head:,2317.TW,gone.TW,Tail:", "B/two/2330.TW"});
  EditA([](User& user) {
    EXPECT_EQ(BoldRows(user, kRows), "b-b-");
    EXPECT_TRUE(user.ClickRow(kRows, 2));
    EXPECT_TRUE(user.Click(801));
    EXPECT_EQ(BoldRows(user, kRows), "bb--");
    EXPECT_TRUE(user.Click(2));
  });
  WhenDialogOpens([](User& user) {
    EXPECT_EQ(BoldRows(user, 782), "b-b");
    EXPECT_TRUE(user.ClickRow(781, 1));
    EXPECT_EQ(BoldRows(user, 782), "-");
    EXPECT_TRUE(user.Click(806));
  });
  CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr);
}

TEST_F(EditorLooks, TheDefaultListIsBoldWhereASymbolIsAddedToo) {
  StartWith({"A/one/Head:,2317.TW", "B/two/2330.TW"});
  manager.SetDefaultIndex(1);
  WhenDialogOpens([](User& user) {
    EXPECT_EQ(BoldRows(user, 781), "-b");
    EXPECT_EQ(user.SelectedRows(781), std::vector<int>{1});
    EXPECT_TRUE(user.ClickRow(781, 0));
    EXPECT_EQ(BoldRows(user, 782), "b-");
    EXPECT_TRUE(user.Click(1));
  });
  CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr, "1101.TW");
}

// Keys of the content editor.
TEST_F(EditorIds, F2OnASubTitleTakesItsTextToTheField) {
  StartWith({"A/one/Head:,2317.TW"});
  EditA([](User& user) {
    EXPECT_TRUE(user.ClickRow(kRows, 0));
    EXPECT_TRUE(user.Press(WindowKey::F2));
    EXPECT_TRUE(user.HasFocus(743));
    EXPECT_EQ(user.Text(743), "Head");
    EXPECT_TRUE(user.Type("Tail"));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_EQ(user.Rows(kRows)[0], "Tail");
    EXPECT_TRUE(user.Click(1));
  });
  EXPECT_EQ(Shape(), "A/one/Tail:,2317.TW");
}

TEST_F(EditorIds, DeleteTakesAllThatControlASelects) {
  StartWith({"A/one/Head:,2317.TW,gone.TW,1101.TW"});
  EditA([](User& user) {
    EXPECT_TRUE(user.ClickRow(kRows, 1));
    EXPECT_TRUE(user.Press(WindowKey::A, Modifier::Control));
    EXPECT_TRUE(user.Press(WindowKey::Delete));
    EXPECT_EQ(user.Rows(kRows), std::vector<std::string>{""});
    EXPECT_TRUE(standin::Messages().empty());
    EXPECT_TRUE(user.Click(1));
  });
  EXPECT_EQ(Shape(), "A/one/gone.TW"); // what the user did not see
}

TEST_F(EditorIds, TheRowInThePlaceOfARemovedOneIsSelected) {
  StartWith({"A/one/2317.TW,1101.TW,2330.TW"});
  EditA([](User& user) {
    EXPECT_TRUE(user.ClickRow(kRows, 1));
    EXPECT_TRUE(user.Press(WindowKey::Delete));
    EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{1});
    EXPECT_TRUE(user.Press(WindowKey::Delete));
    EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{1}); // the empty row
    EXPECT_TRUE(user.Press(WindowKey::Delete));
    EXPECT_EQ(user.Rows(kRows).size(), 2u);
    EXPECT_TRUE(user.Click(2));
  });
}

TEST_F(EditorIds, EnterOnResultsAddsThemAndInTheNameIsDone) {
  EditA([](User& user) {
    ChooseMix(user);
    EXPECT_TRUE(user.ClickRow(782, 0));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_EQ(user.Rows(kRows).size(), 3u);
    EXPECT_TRUE(user.SelectedRows(782).empty());
    EXPECT_TRUE(user.Fill(742, "two"));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_FALSE(user.IsUp());
  });
  EXPECT_EQ(Shape(), "A/two/2317.TW,2330.TW");
}

TEST_F(EditorIds, EscapeChangesNothing) {
  EditA([](User& user) {
    EXPECT_TRUE(user.Fill(kCode, "2330"));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_TRUE(user.Fill(742, "two"));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    EXPECT_FALSE(user.IsUp());
  });
  EXPECT_EQ(Shape(), "A/one/2317.TW");
}

} // namespace
