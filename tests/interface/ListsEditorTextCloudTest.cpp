// The editor of the cloud lists: what it shows and does.
#include "tests/interface/EditorText.h"

namespace {

class ListsEditorTextCloud : public EditorTextTest {
protected:
  void StartWithCloud() {
    StartCloud({"C1/one/2330.TW", "C2/two/2317.TW", "C3/three/1101.TW,2454.TW"});
  }
  static void Rename(User& user, int row, const std::string& name) {
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.Type(name));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
  }
  static void Delete(User& user, int row) {
    standin::AnswerMessages(kYes);
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kDelete));
  }
  static void Edit(User& user, int row, UserScript script) {
    EXPECT_TRUE(user.Select(kLists, row));
    WhenDialogOpens(std::move(script));
    EXPECT_TRUE(user.Click(kEdit));
  }
  static void New(User& user, UserScript script) {
    WhenDialogOpens(std::move(script));
    EXPECT_TRUE(user.Click(kNew));
  }
};

// --- What is shown -------------------------------------------------------------------------------

TEST_F(ListsEditorTextCloud, HasItsTitleInTheTerminalsLanguage) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_EQ(user.Title(), Text("自選商品組合(雲自選)", "自选商品组合(云自选)"));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, ShowsTheCloudListsAndNoOthers) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, HasNoButtonForADefault) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_FALSE(user.IsVisible(kDefault));
    EXPECT_FALSE(user.Click(kDefault));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, TheSelectedListsContentsAreShown) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_EQ(user.Rows(kContents), (Lines{Cement(), MediaTek()}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, ASelectedListCanBeEditedRenamedAndDeleted) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    for (const int id : {kNew, kEdit, kDelete, kRename, kUp, kDown, kDone})
      EXPECT_TRUE(user.IsEnabled(id)) << id;
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, TheFirstListCannotMoveUpNorTheLastOneDown) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_FALSE(user.IsEnabled(kUp));
    EXPECT_TRUE(user.IsEnabled(kDown));
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_TRUE(user.IsEnabled(kUp));
    EXPECT_FALSE(user.IsEnabled(kDown));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, WithoutListsThereIsNothingToDoButToMakeOne) {
  StartCloud({});
  EditCloudLists([](User& user) {
    EXPECT_TRUE(user.IsEnabled(kNew));
    for (const int id : {kEdit, kDelete, kRename, kDown})
      EXPECT_FALSE(user.IsEnabled(id)) << id;
    user.Click(kDone);
  });
}

// --- Contents ------------------------------------------------------------------------------------

TEST_F(ListsEditorTextCloud, EditOpensTheCloudListsEditorOfContents) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Edit(user, 1, [](User& editor) {
      EXPECT_EQ(editor.Title(), Text("修改自選商品組合(雲自選)", "修改自选商品组合(云自选)"));
      EXPECT_FALSE(editor.IsVisible(kSubTitle));
      EXPECT_EQ(editor.Text(kListName), "two");
      editor.Click(kCancel);
    });
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, NewOpensTheCloudListsEditorOfContents) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    New(user, [](User& editor) {
      EXPECT_EQ(editor.Title(), Text("新增自選商品組合(雲自選)", "新增自选商品组合(云自选)"));
      EXPECT_FALSE(editor.IsVisible(kSubTitle));
      editor.Click(kCancel);
    });
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, ANewListIsTheLastRowAndSelected) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    New(user, NameIt("four"));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three", "four"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{3});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, EditedContentsAreShown) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Edit(user, 2, RemoveItsFirstRow());
    EXPECT_EQ(user.Rows(kContents), Lines{MediaTek()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, AnEditorThatCannotBeCreatedIsReported) {
  StartWithCloud();
  EditCloudLists([this](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    standin::FailCall("tqDoModal", 1);
    EXPECT_TRUE(user.Click(kEdit));
    EXPECT_EQ(Shown(), "48002/0");
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, ANewListMayNotTakeAnothersName) {
  StartWithCloud();
  EditCloudLists([this](User& user) {
    New(user, [this](User& editor) {
      EXPECT_TRUE(editor.Fill(kListName, "two"));
      editor.Click(kOk);
      EXPECT_EQ(Shown(), "48011/0");
      editor.Click(kCancel);
    });
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, ANameThatOneOfTheUsersOwnListsHasIsFree) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    New(user, NameIt("mine"));
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "");
}

// --- Deleting, moving, renaming ------------------------------------------------------------------

TEST_F(ListsEditorTextCloud, DeleteAsksYesOrNo) {
  StartWithCloud();
  standin::AnswerMessages(kNo);
  EditCloudLists([this](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDelete));
    EXPECT_EQ(Shown(), "48012/4");
    EXPECT_EQ(user.Rows(kLists).size(), 3u);
    EXPECT_TRUE(user.HasFocus(kLists));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, AfterADeleteTheNextListIsSelected) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Delete(user, 1);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    EXPECT_EQ(user.Rows(kContents), (Lines{Cement(), MediaTek()}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, AfterTheOnlyListIsDeletedBothBoxesAreEmpty) {
  StartCloud({"C1/one/2330.TW"});
  EditCloudLists([](User& user) {
    Delete(user, 0);
    EXPECT_EQ(user.Rows(kLists), Lines{});
    EXPECT_EQ(user.Rows(kContents), Lines{});
    user.Click(kDone);
  });
  EXPECT_EQ(manager.GetSymbolListCount(8), 0);
}

TEST_F(ListsEditorTextCloud, ListsMoveUpAndDown) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_TRUE(user.Click(kUp));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three", "two"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    EXPECT_TRUE(user.Click(kDown));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{2});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, ARenamedListShowsItsNewName) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Rename(user, 1, "zwei");
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    EXPECT_FALSE(user.IsVisible(kNameEditor));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, AnotherCloudListsNameIsRefused) {
  StartWithCloud();
  EditCloudLists([this](User& user) {
    Rename(user, 1, "three");
    EXPECT_EQ(Shown(), "48011/0");
    EXPECT_TRUE(user.HasFocus(kNameEditor));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, TheReservedTextIsRefused) {
  StartWithCloud();
  EditCloudLists([this](User& user) {
    Rename(user, 1, "two" + SystemMark());
    EXPECT_EQ(Shown(),
              Text("(系統) 此字串為系統所用，請勿使用/0", "(系统) 此字串为系统所用，请勿使用/0"));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, TheNameEditorTakesSixtyFourCharacters) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.Type(std::string(70, 'x')));
    EXPECT_EQ(user.Text(kNameEditor), std::string(64, 'x'));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    user.Click(kDone);
  });
}

// --- What is stored, logged and told -------------------------------------------------------------

TEST_F(ListsEditorTextCloud, WithoutAChangeNothingHappens) {
  StartWithCloud();
  EXPECT_EQ(EditCloudLists([](User& user) {
              EXPECT_TRUE(user.Select(kLists, 1));
              user.Click(kDone);
            }),
            1);
  EXPECT_EQ(Happened(), "not saved");
  EXPECT_EQ(CloudMap(), "<Cloud></Cloud>");
}

TEST_F(ListsEditorTextCloud, ARenamedListIsANameChange) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Rename(user, 1, "zwei");
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(),
            "not saved; told 41:ListNameChange" + Logged("DoCloudSymbolListUI", NameDiffers()));
}

TEST_F(ListsEditorTextCloud, ADeletedListIsACountChange) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Delete(user, 1);
    Rename(user, 0, "eins");
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(),
            "not saved; told 41:ListCntChange" + Logged("DoCloudSymbolListUI", CountDiffers()));
}

TEST_F(ListsEditorTextCloud, ANewListIsACountChange) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    New(user, NameIt("four"));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(),
            "not saved; told 41:ListCntChange" + Logged("DoCloudSymbolListUI", CountDiffers()));
}

TEST_F(ListsEditorTextCloud, OtherContentsHaveNoReason) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Edit(user, 2, RemoveItsFirstRow());
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved; told 41:" + Logged("DoCloudSymbolListUI"));
}

TEST_F(ListsEditorTextCloud, TheListsAreStored) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Rename(user, 1, "zwei");
    Edit(user, 2, RemoveItsFirstRow());
    user.Click(kDone);
  });
  EXPECT_EQ(CloudShape(), "C1/one/2330.TW|C2/zwei/2317.TW|C3/three/2454.TW");
}

TEST_F(ListsEditorTextCloud, EveryListGoesIntoTheCloudMap) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Rename(user, 1, "zwei");
    user.Click(kDone);
  });
  EXPECT_EQ(CloudMap(), "<Cloud><List ID='C1' Name='one' Value='2330.TW' Flag='0'/>\n"
                        "<List ID='C2' Name='zwei' Value='2317.TW' Flag='0'/>\n"
                        "<List ID='C3' Name='three' Value='1101.TW,2454.TW' Flag='0'/>\n</Cloud>");
}

TEST_F(ListsEditorTextCloud, TheUsersOwnListsStayAsTheyAre) {
  StartWithCloud();
  EditCloudLists([](User& user) {
    Delete(user, 0);
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/mine/2330.TW");
  EXPECT_EQ(DefaultIndex(), 0);
}

TEST_F(ListsEditorTextCloud, TheCloudListsStayAsTheyAreUntilTheDialogHasClosed) {
  StartWithCloud();
  const std::string before = CloudShape();
  EditCloudLists([&](User& user) {
    Delete(user, 0);
    EXPECT_EQ(CloudShape(), before);
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCloud, AChangeIsKeptHoweverTheDialogIsClosed) {
  StartWithCloud();
  EXPECT_EQ(EditCloudLists([](User& user) {
              Rename(user, 1, "zwei");
              EXPECT_TRUE(user.Press(WindowKey::Escape));
            }),
            2);
  EXPECT_EQ(CloudShape(), "C1/one/2330.TW|C2/zwei/2317.TW|C3/three/1101.TW,2454.TW");
}

TEST_F(ListsEditorTextCloud, WithoutAManagerNothingOpens) {
  EXPECT_EQ(manager.DoCloudSymbolListUI(nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(standin::CountCalls("tqDoModal"), 0);
}

TEST_F(ListsEditorTextCloud, ADialogThatCannotBeCreatedChangesNothing) {
  StartWithCloud();
  standin::FailCall("tqDoModal", 1);
  EXPECT_EQ(manager.DoCloudSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), -1);
  EXPECT_EQ(Happened(), "not saved");
}

} // namespace
