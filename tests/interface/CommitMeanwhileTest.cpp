// What a terminal does from a service that is called while the lists of a dialog are being stored.
#include <string>

#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/User.h"

namespace {

class CommitMeanwhile : public EditTest {
protected:
  CommitMeanwhile() { standin::SetMarket(GroupMarket()); }

  void RenameTheFirst() {
    WhenDialogOpens([this](User& user) {
      AddFromTerminal("first", "2317.TW");
      EXPECT_TRUE(user.ClickRow(781, 0));
      EXPECT_TRUE(user.Press(WindowKey::F2));
      EXPECT_TRUE(user.Type("renamed"));
      EXPECT_TRUE(user.Press(WindowKey::Enter));
      EXPECT_TRUE(user.Click(806));
      isClosed = true;
    });
    EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), 1);
  }
  void AddFromTerminal(const char* id, const char* symbols) {
    EXPECT_EQ(manager.AddSymbolList(id, 0, id, symbols, 1, 0), 1);
  }
  // Once, when the dialog has closed.
  void AddOnceWithin(const char* operation) {
    standin::OnCall(operation, [this] {
      if (isClosed && !hasAdded) {
        hasAdded = true;
        AddFromTerminal("second", "2881.TW");
      }
    });
  }

  bool isClosed = false;
  bool hasAdded = false;
};

// A list that the terminal added while the line about another one was written was gone from the
// lists and from the file.
TEST_F(CommitMeanwhile, AListThatIsAddedWhileALineIsWrittenIsKept) {
  StartWith({"A/one/2330.TW"});
  AddOnceWithin("TQLog::write");
  RenameTheFirst();
  ASSERT_TRUE(hasAdded);
  EXPECT_NE(Shape().find("second/second/2881.TW"), std::string::npos) << Shape();
  EXPECT_NE(ReadWorking().find("second"), std::string::npos);
}

// Symptom: a list that the terminal added from within that question was gone. The service would be
// asked again for the symbols of a list that it gave no answer for.
TEST_F(CommitMeanwhile, WhileAnEditedListIsStoredTheServiceIsNotAsked) {
  StartWith({"A/one/2330.TW"});
  standin::FailAlways("VLGetSymbolInfos");
  AddOnceWithin("VLGetSymbolInfos");
  WhenDialogOpens([this](User& user) {
    EXPECT_TRUE(user.Fill(742, "renamed"));
    CSymbolList* list = nullptr;
    EXPECT_EQ(manager.GetSymbolList("A", &list, 1), 1);
    list->Update1("2330.TW,2317.TW"); // has no rows now
    EXPECT_TRUE(user.Click(1));
    isClosed = true;
  });
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("A", &list, 1), 1);
  EXPECT_TRUE(
      CTQSymbolListMgr::DoGroupListUI(&manager, manager.GetSymbolTableMgr(), list, 1, nullptr, 0));
  EXPECT_FALSE(hasAdded);
  EXPECT_EQ(Shape(), "A/renamed/2330.TW");
}

} // namespace
