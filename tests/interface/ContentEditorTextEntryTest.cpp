// The editors of one list's contents, as the terminal opens them: what is stored, saved and told.
#include "platform/framework/window/ResourceContext.h"
#include "tests/interface/ContentEditorText.h"

namespace {

class ContentEntryText : public ContentEditorsText {
protected:
  void SetUp() override { Start({"A/one/2330.TW,2317.TW", "B/two/1101.TW"}); }

  static void AddAtEnd(User& user) {
    user.ClickRow(kRows, 2);
    Submit(user, "2881");
  }
  const std::string untouched = "A/one/2330.TW,2317.TW|B/two/1101.TW";
};
class UserContentEntryText : public ContentEditorText {
protected:
  void SetUp() override { Start({"A/one/2330.TW,2317.TW", "B/two/1101.TW"}); }
};
class CloudContentEntryText : public ContentEditorText {
protected:
  CloudContentEntryText() : ContentEditorText(EditorOf::CloudList) {}
  void SetUp() override { Start({"PICK/one/2330.TW", "VORNG0102/two/1101.TW"}); }

  std::string Cloud() { return Utf8(manager.GetCloudeList()); }
  void RenameAndAdd() {
    EXPECT_TRUE(Edit("PICK", [](User& user) {
      user.ClickRow(kRows, 1);
      Submit(user, "2881");
      user.Fill(kName, "picked");
      user.Click(kDone);
    }));
  }
};

INSTANTIATE_TEST_SUITE_P(Of, ContentEntryText,
                         testing::Values(EditorOf::UserList, EditorOf::CloudList), NameOfEditor);

// --- Opening -------------------------------------------------------------------------------------

TEST_P(ContentEntryText, WithoutAManagerNothingOpens) {
  CSymbolList list;
  EXPECT_FALSE(Call(nullptr, &list, 1));
  EXPECT_FALSE(Call(nullptr, &list, 0));
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(standin::CountCalls("tqDoModal"), 0);
}

TEST_P(ContentEntryText, WithoutAListNothingOpens) {
  EXPECT_FALSE(Call(&manager, nullptr, 1));
  EXPECT_FALSE(Call(&manager, nullptr, 0));
  EXPECT_EQ(All(), untouched);
}

TEST_P(ContentEntryText, TheTerminalRunsTheDialog) {
  standin::ClearCalls();
  In([](User&) {});
  std::string arguments;
  for (const standin::Call& call : standin::Calls())
    arguments += call.operation == "tqDoModal" ? "(" + call.arguments + ")" : "";
  EXPECT_EQ(arguments, "(0,1,0)");
}

TEST_P(ContentEntryText, ADialogThatCannotBeCreatedStoresNothing) {
  edited = std::make_unique<CSymbolList>();
  edited->SetID("A");
  edited->SetName("changed");
  standin::FailCall("tqDoModal", 1);
  EXPECT_FALSE(Call(&manager, edited.get(), 1));
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_P(ContentEntryText, NoSecondEditorOpensBesideIt) {
  In([this](User&) {
    CSymbolList list;
    EXPECT_FALSE(Call(&manager, &list, 0));
    CSymbolTableMgr* const tables = manager.GetSymbolTableMgr();
    EXPECT_FALSE(CTQSymbolListMgr::DoGroupListUI(&manager, tables, &list, 0, nullptr, 0));
    EXPECT_FALSE(manager.DoCloudGroupListUI(&manager, tables, &list, 0, nullptr, 0));
  });
}

TEST_P(ContentEntryText, ItIsNoSelectionThatTheTerminalMayEnd) {
  In([](User&) { EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0); });
  EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
}

const char* StringOfTheTerminal(unsigned, int) {
  return "the terminal's";
}

TEST_P(ContentEntryText, TheTerminalsResourcesAreBackOnEachPath) {
  tq::Resources resources;
  resources.string = StringOfTheTerminal;
  const tq::ResourceContext context(resources);
  After([](User&) { EXPECT_NE(tq::ResourceContext::Current().string, StringOfTheTerminal); });
  EXPECT_EQ(tq::ResourceContext::Current().string, StringOfTheTerminal) << "accepted";
  In([](User&) {});
  EXPECT_EQ(tq::ResourceContext::Current().string, StringOfTheTerminal) << "cancelled";
  Call(nullptr, edited.get(), 1);
  EXPECT_EQ(tq::ResourceContext::Current().string, StringOfTheTerminal) << "no manager";
  standin::FailCall("tqDoModal", 1);
  Call(&manager, edited.get(), 1);
  EXPECT_EQ(tq::ResourceContext::Current().string, StringOfTheTerminal) << "not created";
}

TEST_P(ContentEntryText, EachModeButThatOfANewListEdits) {
  std::string first;
  EXPECT_FALSE(Edit("A", [&first](User& user) {
    first = user.Title();
    user.Click(kCancel);
  }));
  EXPECT_FALSE(Open(
      [&first](User& user) {
        EXPECT_EQ(user.Title(), first);
        user.Click(kCancel);
      },
      -1));
}

// --- Cancelled -----------------------------------------------------------------------------------

TEST_P(ContentEntryText, CancelStoresNothing) {
  In(AddAtEnd);
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_P(ContentEntryText, EscapeStoresNothing) {
  EXPECT_FALSE(Edit("A", [](User& user) {
    AddAtEnd(user);
    user.Press(WindowKey::Escape);
  }));
  EXPECT_EQ(All(), untouched);
}

TEST_P(ContentEntryText, TheTitleBarStoresNothing) {
  EXPECT_FALSE(Edit("A", [](User& user) {
    AddAtEnd(user);
    user.CloseByTitleBar();
  }));
  EXPECT_EQ(All(), untouched);
}

TEST_P(ContentEntryText, CancelLeavesTheTerminalsListAsItWas) {
  In([](User& user) {
    AddAtEnd(user);
    user.Fill(kName, "changed");
  });
  EXPECT_EQ(Utf8(edited->GetName()), "one");
  EXPECT_EQ(Utf8(edited->GetIDs()), "2330.TW,2317.TW");
}

TEST_P(ContentEntryText, CancelDoesNotMindTheName) {
  In([](User& user) { user.Fill(kName, ""); });
  EXPECT_EQ(Shown(), "");
}

TEST_P(ContentEntryText, ANewListThatIsCancelledStaysEmpty) {
  EXPECT_FALSE(EditNew([](User& user) {
    Submit(user, "2881");
    user.Fill(kName, "three");
    user.Click(kCancel);
  }));
  EXPECT_EQ(Utf8(edited->GetID()) + Utf8(edited->GetName()) + Utf8(edited->GetIDs()), "");
}

// --- Accepted ------------------------------------------------------------------------------------

TEST_P(ContentEntryText, AnEditedListTakesTheOnesPlace) {
  After(AddAtEnd);
  EXPECT_EQ(All(), "A/one/2330.TW,2317.TW,2881.TW|B/two/1101.TW");
}

TEST_P(ContentEntryText, TheTerminalsListIsTheEditedOne) {
  EXPECT_TRUE(Edit("A", [](User& user) {
    AddAtEnd(user);
    user.Fill(kName, "changed");
    user.Click(kDone);
  }));
  EXPECT_EQ(Utf8(edited->GetID()), "A");
  EXPECT_EQ(Utf8(edited->GetName()), "changed");
  EXPECT_EQ(Utf8(edited->GetIDs()), "2330.TW,2317.TW,2881.TW");
}

TEST_P(ContentEntryText, AListThatIsTheSameIsNotStored) {
  EXPECT_TRUE(Edit("A", [](User& user) { user.Click(kDone); }));
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
  EXPECT_EQ(Utf8(manager.GetCloudeList()), "<Cloud></Cloud>");
}

TEST_P(ContentEntryText, ANewNameAloneIsStored) {
  EXPECT_TRUE(Edit("A", [](User& user) {
    user.Fill(kName, "changed");
    user.Click(kDone);
  }));
  EXPECT_EQ(All(), "A/changed/2330.TW,2317.TW|B/two/1101.TW");
}

TEST_P(ContentEntryText, AnotherOrderAloneIsStored) {
  After([](User& user) { user.Click(kSort); });
  EXPECT_EQ(All(), "A/one/2317.TW,2330.TW|B/two/1101.TW");
}

TEST_P(ContentEntryText, AListThatTheManagerDoesNotHaveIsNotStored) {
  edited = std::make_unique<CSymbolList>();
  edited->SetID("NOBODY");
  edited->SetName("three");
  EXPECT_TRUE(Open(
      [](User& user) {
        Submit(user, "2881");
        user.Click(kDone);
      },
      1));
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_P(ContentEntryText, ANewListIsTheTerminalsToStore) {
  EXPECT_TRUE(EditNew([](User& user) {
    Submit(user, "2881");
    user.Fill(kName, "three");
    user.Click(kDone);
  }));
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_P(ContentEntryText, ListsThatCameWhileTheEditorWasOpenStay) {
  EXPECT_TRUE(Edit("A", [this](User& user) {
    AddAtEnd(user);
    if (editor == EditorOf::UserList)
      manager.AddSymbolList("N", 0, "new", "2454.TW", 1, 0);
    else
      manager.AddCloudSymbolList("N", "new", "2454.TW", 0);
    user.Click(kDone);
  }));
  EXPECT_EQ(All(), "A/one/2330.TW,2317.TW,2881.TW|B/two/1101.TW|N/new/2454.TW");
}

TEST_P(ContentEntryText, AServiceThatKnowsNothingLosesNoSymbol) {
  standin::FailAlways("VLGetSymbolInfos");
  EXPECT_TRUE(Edit("A", [](User& user) {
    EXPECT_EQ(user.Rows(kRows), Lines{""});
    user.Fill(kName, "changed");
    user.Click(kDone);
  }));
  EXPECT_EQ(All(), "A/changed/2330.TW,2317.TW|B/two/1101.TW");
}

// --- The user's lists ----------------------------------------------------------------------------

TEST_F(UserContentEntryText, AnEditedListIsSavedAndNotTold) {
  After([](User& user) { user.Click(kSort); });
  EXPECT_EQ(Happened(), "saved");
}

TEST_F(UserContentEntryText, AnEditedListIsInTheFile) {
  After([](User& user) {
    user.ClickRow(kRows, 2);
    Submit(user, "2881");
  });
  EXPECT_EQ(ReadBack(), "A/one/2330.TW,2317.TW,2881.TW|B/two/1101.TW");
}

TEST_F(UserContentEntryText, TheDefaultListStaysTheDefault) {
  manager.SetDefaultIndex(1);
  After([](User& user) { user.Click(kSort); });
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(UserContentEntryText, AListThatWasDeletedMeanwhileStaysDeleted) {
  EXPECT_TRUE(Edit("A", [this](User& user) {
    user.Click(kSort);
    EXPECT_EQ(manager.DeleteSymbolList("A"), 1);
    user.Click(kDone);
  }));
  EXPECT_EQ(All(), "B/two/1101.TW");
}

TEST_F(UserContentEntryText, ASaveThatFailsIsToldAndTheListStaysChanged) {
  EXPECT_TRUE(Edit("A", [this](User& user) {
    user.Click(kSort);
    directory.Remove();
    user.Click(kDone);
  }));
  EXPECT_EQ(Shown(), "48026/0");
  EXPECT_EQ(All(), "A/one/2317.TW,2330.TW|B/two/1101.TW");
}

TEST_F(UserContentEntryText, CloudListsAreLeftAlone) {
  manager.AddCloudSymbolList("A", "cloud", "2330.TW", 0);
  After([](User& user) { user.Click(kSort); });
  CString symbols;
  manager.GetSymbolListIDs(8, "A", symbols, nullptr);
  EXPECT_EQ(Utf8(symbols), "2330.TW");
  EXPECT_EQ(Utf8(manager.GetCloudeList()), "<Cloud></Cloud>");
}

// --- Cloud lists ---------------------------------------------------------------------------------

TEST_F(CloudContentEntryText, AnEditedListIsStoredAmongTheCloudLists) {
  RenameAndAdd();
  EXPECT_EQ(All(), "PICK/picked/2330.TW,2881.TW|VORNG0102/two/1101.TW");
}

TEST_F(CloudContentEntryText, AnEditedListIsUpdatedInTheCloud) {
  RenameAndAdd();
  EXPECT_EQ(Cloud(), "<Cloud><List ID='PICK' Name='picked' Value='2330.TW,2881.TW' Flag='0'/>\n"
                     "</Cloud>");
}

TEST_F(CloudContentEntryText, TheCloudGroupsFollow) {
  RenameAndAdd();
  void* group = nullptr;
  ASSERT_NE(manager.GetGroupHandle(201, "PICK", &group, 0), 0);
  CString name;
  CString ids;
  manager.GetGroupName(201, group, name);
  manager.GetGroupListIDs(group, ids);
  EXPECT_EQ(Utf8(name) + "/" + Utf8(ids), "picked/2330.TW,2881.TW");
}

TEST_F(CloudContentEntryText, NothingIsSavedOrTold) {
  RenameAndAdd();
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(CloudContentEntryText, TheUsersListsAreLeftAlone) {
  RenameAndAdd();
  EXPECT_EQ(Shape(), "U/user/2330.TW");
}

TEST_F(CloudContentEntryText, AUsersListMayHaveTheName) {
  EXPECT_TRUE(Edit("PICK", [](User& user) {
    user.Fill(kName, "user");
    user.Click(kDone);
  }));
  EXPECT_EQ(All(), "PICK/user/2330.TW|VORNG0102/two/1101.TW");
}

} // namespace
