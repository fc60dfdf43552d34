// The editors of one list's contents: what a name must be to be accepted.
#include "tests/interface/ContentEditorText.h"

namespace {

class ContentAcceptText : public ContentEditorsText {
protected:
  void SetUp() override { Start({"A/one/2330.TW", "B/Two/2317.TW"}); }

  // Gives a new list that name and sees that it is refused with these messages; then the user
  // cancels.
  void ExpectRefused(const std::string& name, const std::string& messages) {
    EXPECT_FALSE(EditNew([&](User& user) {
      user.Fill(kName, name);
      user.Click(kDone);
      EXPECT_TRUE(user.IsUp());
      EXPECT_EQ(Shown(), messages);
      EXPECT_TRUE(user.HasFocus(kName));
      user.Click(kCancel);
    }));
  }
  bool AcceptNew(const std::string& name) {
    return EditNew([&name](User& user) {
      Submit(user, "2881");
      user.Fill(kName, name);
      user.Click(kDone);
      if (user.IsUp())
        user.Click(kCancel);
    });
  }
  // Gives list A a name that no user could give it.
  void NameList(const std::string& name) {
    CSymbolList* list = nullptr;
    manager.GetSymbolList("A", &list, Kind());
    ASSERT_NE(list, nullptr);
    list->SetName(standin::ToAnsi(name).c_str());
  }
  std::string NewName() const { return Utf8(edited->GetName()); }
  std::string NewId() const { return Utf8(edited->GetID()); }
  static std::string ComplaintOfFileNames() {
    return "[" + Text("名稱不可為空白或含有下列字元：", "名称不可为空白或含有下列字符：") +
           "\\/:*?\"<>|]/0";
  }
  static std::string System() { return Text("(系統)", "(系统)"); }
  static std::string ComplaintOfSystem() {
    return "[" + System() + Text(" 此字串為系統所用，請勿使用", " 此字串为系统所用，请勿使用") +
           "]/0";
  }
};

INSTANTIATE_TEST_SUITE_P(Of, ContentAcceptText,
                         testing::Values(EditorOf::UserList, EditorOf::CloudList), NameOfEditor);

// --- Names that are refused ----------------------------------------------------------------------

TEST_P(ContentAcceptText, ANewListNeedsAName) {
  ExpectRefused("", "48001/0");
}

TEST_P(ContentAcceptText, AListThatIsEditedNeedsAName) {
  In([this](User& user) {
    user.Fill(kName, "");
    user.Click(kDone);
    EXPECT_EQ(Shown(), "48001/0");
    EXPECT_TRUE(user.HasFocus(kName));
  });
}

TEST_P(ContentAcceptText, ANameMustServeAsAFileName) {
  ExpectRefused("a/b", ComplaintOfFileNames());
}

TEST_P(ContentAcceptText, ANameThatCannotServeAsAFileNameIsSelected) {
  In([](User& user) {
    user.Fill(kName, "a/b");
    user.Click(kDone);
    user.Type("x");
    EXPECT_EQ(user.Text(kName), "x");
  });
}

TEST_P(ContentAcceptText, TheNameOfAnotherListIsRefused) {
  ExpectRefused("one", "48011/0");
}

TEST_P(ContentAcceptText, TheNameOfAnotherListInOtherLettersIsRefused) {
  ExpectRefused("TWO", "48011/0");
}

TEST_P(ContentAcceptText, AnEditedListCannotTakeTheNameOfAnotherOne) {
  In([this](User& user) {
    user.Fill(kName, "Two");
    user.Click(kDone);
    EXPECT_EQ(Shown(), "48011/0");
    EXPECT_TRUE(user.HasFocus(kName));
  });
}

TEST_P(ContentAcceptText, TheMarkOfSystemListsIsRefused) {
  ExpectRefused(System(), ComplaintOfSystem());
}

TEST_P(ContentAcceptText, TheMarkOfSystemListsIsRefusedInsideOfAName) {
  ExpectRefused("my" + System() + "list", ComplaintOfSystem());
}

TEST_P(ContentAcceptText, AnApostropheIsRefused) {
  ExpectRefused("it's", "48203/0");
}

TEST_P(ContentAcceptText, AnAmpersandIsRefused) {
  ExpectRefused("a&b", "48203/0");
}

TEST_P(ContentAcceptText, ARefusedListKeepsItsNameAndContentsInTheManager) {
  const std::string before = All();
  In([](User& user) {
    Submit(user, "2881");
    user.Fill(kName, "");
    user.Click(kDone);
  });
  EXPECT_EQ(All(), before);
}

TEST_P(ContentAcceptText, ANameThatWasRefusedCanBeMended) {
  EXPECT_TRUE(EditNew([](User& user) {
    user.Fill(kName, "one");
    user.Click(kDone);
    user.Fill(kName, "three");
    user.Click(kDone);
  }));
  EXPECT_EQ(NewName(), "three");
}

// --- The order of the checks ---------------------------------------------------------------------

TEST_P(ContentAcceptText, AnEmptyNameIsNotTakenForAFileName) {
  standin::ClearCalls();
  ExpectRefused("", "48001/0");
  EXPECT_EQ(standin::CountCalls("CCheckFileName::IsValidName"), 0);
}

TEST_P(ContentAcceptText, FileNamesAreCheckedBeforeOtherLists) {
  NameList("a|b");
  ExpectRefused("a|b", ComplaintOfFileNames());
}

TEST_P(ContentAcceptText, FileNamesAreCheckedBeforeTheMarkOfSystemLists) {
  ExpectRefused("a/b" + System(), ComplaintOfFileNames());
}

TEST_P(ContentAcceptText, OtherListsAreCheckedBeforeTheMarkOfSystemLists) {
  NameList("x" + System());
  ExpectRefused("x" + System(), "48011/0");
}

TEST_P(ContentAcceptText, OtherListsAreCheckedBeforeWhatAFileCannotHold) {
  NameList("it's");
  ExpectRefused("it's", "48011/0");
}

// --- Names that are accepted ---------------------------------------------------------------------

TEST_P(ContentAcceptText, ANewListHasTheNameAndTheSymbols) {
  EXPECT_TRUE(AcceptNew("three"));
  EXPECT_EQ(NewName(), "three");
  EXPECT_EQ(Utf8(edited->GetIDs()), "2881.TW");
  EXPECT_EQ(Shown(), "");
}

TEST_P(ContentAcceptText, ANewListHasANewIdentifier) {
  EXPECT_TRUE(AcceptNew("three"));
  const std::string first = NewId();
  EXPECT_TRUE(AcceptNew("four"));
  EXPECT_EQ(first.size(), 36U);
  EXPECT_EQ(NewId().size(), 36U);
  EXPECT_NE(NewId(), first);
}

TEST_P(ContentAcceptText, ANewListMayBeEmpty) {
  EXPECT_TRUE(EditNew([](User& user) {
    user.Fill(kName, "three");
    user.Click(kDone);
  }));
  EXPECT_EQ(NewName(), "three");
  EXPECT_EQ(Utf8(edited->GetIDs()), "");
}

TEST_P(ContentAcceptText, AListKeepsItsOwnName) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              Submit(user, "2881");
            }),
            "2330.TW,2881.TW");
  EXPECT_EQ(Shown(), "");
}

TEST_P(ContentAcceptText, AListMayTakeItsOwnNameInOtherLetters) {
  EXPECT_TRUE(Edit("A", [](User& user) {
    user.Fill(kName, "ONE");
    user.Click(kDone);
  }));
  EXPECT_EQ(All(), "A/ONE/2330.TW|B/Two/2317.TW");
}

TEST_P(ContentAcceptText, AListThatIsRenamedKeepsItsIdentifier) {
  EXPECT_TRUE(Edit("B", [](User& user) {
    user.Fill(kName, "three");
    user.Click(kDone);
  }));
  EXPECT_EQ(All(), "A/one/2330.TW|B/three/2317.TW");
}

TEST_P(ContentAcceptText, AChineseNameIsAccepted) {
  const std::string name = Text("許功蓋", "誠纜羂");
  EXPECT_TRUE(AcceptNew(name));
  EXPECT_EQ(NewName(), name);
}

TEST_P(ContentAcceptText, TheFieldHoldsNoMoreThanAListsName) {
  std::string shown;
  EXPECT_TRUE(EditNew([&shown](User& user) {
    user.Fill(kName, std::string(100, 'x'));
    shown = user.Text(kName);
    user.Click(kDone);
  }));
  EXPECT_EQ(shown, std::string(64, 'x'));
  EXPECT_EQ(NewName(), shown);
}

TEST_P(ContentAcceptText, TheFieldHoldsWholeCharacters) {
  std::string longest;
  std::string typed;
  for (int i = 0; i < 40; ++i) {
    typed += Text("許", "誠");
    longest += i < 32 ? Text("許", "誠") : "";
  }
  EXPECT_TRUE(AcceptNew(typed));
  EXPECT_EQ(NewName(), longest);
}

TEST_P(ContentAcceptText, EnterAndTheLetterOfTheButtonAcceptToo) {
  EXPECT_TRUE(Edit("A", [](User& user) {
    user.Fill(kName, "three");
    user.Press(WindowKey::Enter);
  }));
  EXPECT_TRUE(Edit("B", [](User& user) {
    user.Fill(kName, "four");
    user.PressLetter('K');
  }));
  EXPECT_EQ(All(), "A/three/2330.TW|B/four/2317.TW");
}

} // namespace
