// The editors of lists at their edges: no lists, many lists, lists that are odd already, and a
// terminal that does something meanwhile.
#include "platform/framework/window/CDialog.h"
#include "tests/interface/EditorText.h"

namespace {

class ListsEditorTextEdges : public EditorTextTest {
protected:
  static void Rename(User& user, int row, const std::string& name) {
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.Type(name));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
  }
  void StartWithCloud() { StartCloud({"C1/one/2330.TW", "C2/two/2317.TW", "C3/three/1101.TW"}); }
};

// --- No lists, many lists ------------------------------------------------------------------------

TEST_F(ListsEditorTextEdges, TheKeysOfTheListDoNothingWithoutLists) {
  StartWith({});
  Mark();
  standin::AnswerMessages(kYes);
  EditLists([this](User& user) {
    for (const WindowKey key : {WindowKey::F2, WindowKey::Delete, WindowKey::Up, WindowKey::Down})
      user.Press(key);
    user.Press(WindowKey::Up, Modifier::Alt);
    user.Press(WindowKey::Down, Modifier::Alt);
    EXPECT_TRUE(user.IsUp());
    EXPECT_FALSE(user.IsVisible(kNameEditor));
    EXPECT_EQ(Shown(), "");
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextEdges, AListFarDownIsRenamedInSight) {
  Lines lists;
  for (int i = 0; i < 60; ++i)
    lists.push_back("L" + std::to_string(i) + "/name " + std::to_string(i) + "/2330.TW");
  Start(lists);
  EditLists([](User& user) {
    Rename(user, 59, "last");
    EXPECT_TRUE(user.IsInSight(kLists, 59));
    user.Click(kDone);
  });
  EXPECT_EQ(NameAt(59), "last");
}

TEST_F(ListsEditorTextEdges, ANewListBehindManyIsInSight) {
  Lines lists;
  for (int i = 0; i < 60; ++i)
    lists.push_back("L" + std::to_string(i) + "/name " + std::to_string(i) + "/2330.TW");
  Start(lists);
  EditLists([](User& user) {
    WhenDialogOpens(NameIt("last"));
    EXPECT_TRUE(user.Click(kNew));
    EXPECT_TRUE(user.IsInSight(kLists, 60));
    user.Click(kDone);
  });
}

// --- Lists that are odd already ------------------------------------------------------------------

TEST_F(ListsEditorTextEdges, SymbolsThatNobodyKnowsHaveNoRow) {
  Start({"A/one/GONE.TW,2330.TW"});
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_EQ(user.Rows(kContents), Lines{Tsmc()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextEdges, OfTwoListsOfOneNameEachShowsItsOwnContents) {
  Start({"A/same/2330.TW", "B/same/2317.TW"});
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_EQ(user.Rows(kContents), Lines{HonHai()});
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_EQ(user.Rows(kContents), Lines{Tsmc()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextEdges, ANameThatAnotherListHasAlreadyIsRefusedToBothOfThem) {
  Start({"A/same/2330.TW", "B/same/2317.TW"});
  EditLists([this](User& user) {
    Rename(user, 1, "same");
    EXPECT_EQ(Shown(), "48011/0");
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextEdges, OfTwoListsOfOneNameTheSelectedOneIsDeleted) {
  Start({"A/same/2330.TW", "B/same/2317.TW"});
  standin::AnswerMessages(kYes);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDelete));
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/same/2330.TW");
}

TEST_F(ListsEditorTextEdges, OfTwoListsOfOneIdentifierTheSelectedOneIsEdited) {
  Start({"A/one/2330.TW", "A/two/1101.TW,2454.TW"});
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    WhenDialogOpens(RemoveItsFirstRow());
    EXPECT_TRUE(user.Click(kEdit));
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/one/2330.TW|A/two/2454.TW");
}

TEST_F(ListsEditorTextEdges, TheNameEditorTakesThirtyTwoDoubleByteCharacters) {
  std::string thirtyTwo;
  for (int i = 0; i < 32; ++i)
    thirtyTwo += "台";
  StartWithThree();
  EditLists([&](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.Type(thirtyTwo + "台台"));
    EXPECT_EQ(user.Text(kNameEditor), thirtyTwo);
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextEdges, TheDefaultThatWasGivenBackIsNoChange) {
  StartWithThree(0);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_TRUE(user.Click(kDefault));
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_TRUE(user.Click(kDefault));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

// --- Messages ------------------------------------------------------------------------------------

// The entries are the library's own, so a message box needs the library's module.
TEST_F(ListsEditorTextEdges, MessagesComeFromTheModuleThatTheManagersComeFrom) {
  StartWithThree();
  standin::AnswerMessages(kYes);
  directory.Remove();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDelete)); // 48012, by the dialog
    Rename(user, 0, "three");         // 48011, by the dialog
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    user.Click(kDone); // 48026, by the manager
  });
  ASSERT_EQ(Shown(), "48012/4 48011/0 48026/0");
  for (const standin::Message& message : standin::Messages())
    EXPECT_EQ(message.resources, standin::Messages().back().resources) << message.id;
}

// --- The terminal, meanwhile ---------------------------------------------------------------------

TEST_F(ListsEditorTextEdges, TheNumberOfListsIsComparedWithThatOfTheStart) {
  StartWithThree();
  EditLists([this](User& user) {
    manager.DeleteSymbolList("C"); // two are left
    Mark();
    Rename(user, 0, "eins"); // three in the editor
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "saved; told 40:" + Logged("DoSymbolListUI"));
}

TEST_F(ListsEditorTextEdges, AListThatTheTerminalDeletesMeanwhileComesBackWithTheEdit) {
  StartWithThree();
  EditLists([this](User& user) {
    manager.DeleteSymbolList("C");
    Rename(user, 0, "eins");
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/eins/2330.TW|B/two/2317.TW|C/three/1101.TW,2454.TW");
}

// --- The editor of the cloud lists ---------------------------------------------------------------

TEST_F(ListsEditorTextEdges, TheKeysOfTheCloudListsAreTheSame) {
  StartWithCloud();
  standin::AnswerMessages(kYes);
  EditCloudLists([this](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Press(WindowKey::Up, Modifier::Alt));
    EXPECT_EQ(user.Rows(kLists), (Lines{"two", "one", "three"}));
    EXPECT_TRUE(user.Press(WindowKey::F2));
    EXPECT_TRUE(user.HasFocus(kNameEditor));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_TRUE(user.Press(WindowKey::Delete));
    EXPECT_EQ(Shown(), "48012/4");
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextEdges, ADoubleClickOnACloudListOpensItsContents) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    WhenDialogOpens([](User& editor) {
      EXPECT_EQ(editor.Text(kListName), "three");
      editor.Click(kCancel);
    });
    EXPECT_TRUE(user.DoubleClick(kLists, 2));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextEdges, ACloudListMayKeepItsName) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Rename(user, 1, "two");
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextEdges, ACloudListsNameThatNoFileCanHaveIsRefused) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Rename(user, 1, "a:b");
    EXPECT_EQ(standin::Messages().size(), 1u);
    EXPECT_TRUE(user.HasFocus(kNameEditor));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextEdges, ACloudListsNameThatNoListFileCanCarryIsRefused) {
  StartWithCloud();
  EditCloudLists([this](User& user) {
    Rename(user, 1, "a'b");
    EXPECT_EQ(Shown(), "48203/0");
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextEdges, LeavingACloudListsNameTakesIt) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.Type("zwei"));
    EXPECT_TRUE(user.ClickRow(kLists, 0));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{0});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextEdges, CloudListsThatHaveSwappedPlacesAreANameChange) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kUp));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(),
            "not saved; told 41:ListNameChange" + Logged("DoCloudSymbolListUI", NameDiffers()));
  EXPECT_EQ(CloudShape(), "C2/two/2317.TW|C1/one/2330.TW|C3/three/1101.TW");
}

TEST_F(ListsEditorTextEdges, AnotherDefaultListMeanwhileIsNoChangeOfTheCloudLists) {
  StartWithCloud();
  EditCloudLists([this](User& user) {
    manager.SetDefaultIndex(-1);
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

int cloudEnded = -1;

TEST_F(ListsEditorTextEdges, TheTerminalCannotEndTheEditorOfTheCloudLists) {
  StartWithCloud();
  tq::SetModalHandler([](CDialog& dialog) {
    EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
    cloudEnded = CTQSymbolListMgr::EndDomodal(dialog.GetSafeHwnd(), 7);
    dialog.EndDialog(CDialog::Cancelled);
  });
  EXPECT_EQ(manager.DoCloudSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), 2);
  EXPECT_EQ(cloudEnded, 0);
}

} // namespace
