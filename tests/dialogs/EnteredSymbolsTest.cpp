// A content editor that is opened with symbols to be entered.
#include "dialogs/editors/ContentEditor.h"

#include "dialogs/resources/DialogTable.h"
#include "idlist/ListKind.h"
#include "tests/interface/EditTest.h"
#include "tests/support/User.h"

namespace {

class EnteredSymbols : public EditTest {
protected:
  EnteredSymbols() { StartWith({"A/one/2330.TW"}); }
  ~EnteredSymbols() override { EXPECT_EQ(TakeUnusedScripts(), 0u); }

  // Opens the editor of a list with these ids.
  void Edit(const char* ids, const char* entered, UserScript script) {
    const tq::ResourceContext context(tq::LibraryResources());
    CSymbolList list;
    list.SetName("edited");
    list.Update1(ids);
    WhenDialogOpens(std::move(script));
    tq::RunContentEditor(tq::kUserLists, {manager, manager.GetSymbolTableMgr()}, nullptr,
                         {list, tq::ContentEditor::Mode::Edit, nullptr, entered});
    result = list.GetIDs();
  }
  static void Done(User& user) { EXPECT_TRUE(user.Click(1)); }
  // The only message, without what stands around the ids; "-" for none.
  static std::string Told() {
    if (standin::Messages().empty())
      return "-";
    EXPECT_EQ(standin::Messages().size(), 1u);
    const std::string text = standin::FromAnsi(standin::Messages().back().text);
    const std::size_t start = text.find(":\n") + 2;
    return text.substr(start, text.rfind(",\n") - start);
  }
  static std::string Named(const char* id) {
    SymbolInfo record = {};
    return VLGetSymbolInfo(id, &record) == 0
               ? id
               : std::string(id) + " " + standin::FromAnsi(record.name);
  }

  std::string result;
};

TEST_F(EnteredSymbols, StandBehindTheOthersAndNothingIsTold) {
  Edit("2330.TW", "1101.TW,2317.TW", Done);
  EXPECT_EQ(result, "2330.TW,1101.TW,2317.TW");
  EXPECT_EQ(Told(), "-");
}

TEST_F(EnteredSymbols, ThatTheListHasAreToldAndSelected) {
  Edit("2330.TW,1101.TW,2317.TW", "2317.TW,2454.TW,2330.tw", [](User& user) {
    EXPECT_EQ(user.SelectedRows(781), (std::vector<int>{0, 2}));
    EXPECT_TRUE(user.IsInSight(781, 0));
    EXPECT_EQ(user.Rows(781).size(), 5u);
    Done(user);
  });
  EXPECT_EQ(Told(), Named("2317.TW") + ", " + Named("2330.tw"));
  EXPECT_EQ(result, "2330.TW,1101.TW,2317.TW,2454.TW");
}

TEST_F(EnteredSymbols, OfWhichFiveAreThereAreAllTold) {
  const char* const ids = "2330.TW,1101.TW,2317.TW,2454.TW,6488.TE";
  Edit(ids, ids, Done);
  EXPECT_EQ(Told(), Named("2330.TW") + ", " + Named("1101.TW") + ", " + Named("2317.TW") + ", " +
                        Named("2454.TW") + ", " + Named("6488.TE"));
}

TEST_F(EnteredSymbols, OfWhichMoreThanFiveAreThereAreToldWithDots) {
  const char* const ids = "2330.TW,1101.TW,2317.TW,2454.TW,6488.TE,5483.TE,8069.TE";
  Edit(ids, ids, Done);
  EXPECT_EQ(Told(), Named("2330.TW") + ", " + Named("1101.TW") + ", " + Named("2317.TW") + ", " +
                        Named("2454.TW") + ", " + Named("6488.TE") + "...");
}

TEST_F(EnteredSymbols, ThatTheServiceDoesNotKnowAreToldWithoutANameAndNotEntered) {
  Edit("2330.TW,gone.TW", "gone.TW,none.TW", [](User& user) {
    EXPECT_TRUE(user.SelectedRows(781).empty()); // it has no row
    Done(user);
  });
  EXPECT_EQ(Told(), "gone.TW");
  EXPECT_EQ(result, "2330.TW,gone.TW");
}

TEST_F(EnteredSymbols, ThatAreNamedTwiceAreEnteredOnce) {
  Edit("", "2330.TW,2330.TW,,2330.tw", Done);
  EXPECT_EQ(result, "2330.TW");
  EXPECT_EQ(Told(), "-");
}

} // namespace
