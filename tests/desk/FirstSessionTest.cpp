// What somebody does who sits at the window for the first time, and what is in the list file then.
#include "tests/desk/DeskTest.h"

namespace {

using desk::DeskDialog;
using namespace standin::controls;

class FirstSession : public DeskTest {
protected:
  static void MakeList(User& user) {
    Open(user, DeskDialog::kNewList, [](User& editor) {
      editor.Fill(kName, "mine");
      editor.Fill(kCode, "2330");
      editor.Press(WindowKey::Enter);
      editor.Click(kDone);
    });
  }
  // By a search that means one symbol, which is answered at once.
  static void AddBySearch(User& user, const std::string& text) {
    user.Fill(DeskDialog::kInput, text);
    Open(user, DeskDialog::kFind, [](User& search) {
      EXPECT_FALSE(search.WaitFor([] { return false; })); // until it has closed by itself
    });
    Open(user, DeskDialog::kAddSelected, [](User& add) {
      EXPECT_TRUE(add.Select(kLists, "mine"));
      add.Click(kAddSymbol);
    });
  }
  static void Rename(User& user) {
    Open(user, DeskDialog::kEditLists, [](User& lists) {
      lists.Select(kLists, "mine");
      lists.Click(kRename);
      lists.Type("yours");
      lists.Press(WindowKey::Enter);
      lists.Click(kListsDone);
    });
  }
  static void Delete(User& user) {
    Open(user, DeskDialog::kEditLists, [](User& lists) {
      lists.Select(kLists, "yours");
      lists.Click(kDeleteList);
      lists.Click(kListsDone);
    });
  }

  static Texts ListsOf(CTQSymbolListMgr& lists) {
    Texts texts;
    for (int i = 0; i < lists.GetSymbolListCount(1); ++i) {
      CString id;
      CString name;
      CString symbols;
      lists.GetSymbolListInfo(i, id, name, symbols, 1);
      texts.push_back(Utf8(name + "=" + symbols));
    }
    return texts;
  }
  // As another start reads it.
  Texts InFile() {
    CTQSymbolListMgr reader;
    EXPECT_EQ(reader.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 0), 1);
    return ListsOf(reader);
  }
};

TEST_F(FirstSession, AListThatIsMadeAndFilledBySearchIsInTheFile) {
  Texts expected = ListsOf(manager);
  InDesk([](User& user) {
    MakeList(user);
    AddBySearch(user, "1101");
    AddBySearch(user, Said("鴻海", "鸿海"));
  });
  expected.emplace_back("mine=2330.TW,1101.TW,2317.TW");
  EXPECT_EQ(InFile(), expected);
}

TEST_F(FirstSession, AListThatIsRenamedIsInTheFileUnderItsNewName) {
  Texts expected = ListsOf(manager);
  InDesk([](User& user) {
    MakeList(user);
    Rename(user);
    EXPECT_EQ(user.Text(DeskDialog::kList), "yours");
  });
  expected.emplace_back("yours=2330.TW");
  EXPECT_EQ(InFile(), expected);
}

TEST_F(FirstSession, BehindAListThatIsDeletedTheFileIsAsItWas) {
  standin::AnswerMessages(6);
  const Texts expected = ListsOf(manager);
  InDesk([](User& user) {
    MakeList(user);
    Rename(user);
    Delete(user);
  });
  EXPECT_EQ(InFile(), expected);
}

} // namespace
