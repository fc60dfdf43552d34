// The editor of one list's contents: sub-titles.
#include "tests/interface/ContentEditorText.h"

namespace {

class ContentTitleText : public ContentEditorText {
protected:
  void SetUp() override { Start({"A/one/2330.TW,2317.TW"}); }

  static void AddTitle(User& user, const std::string& text) {
    EXPECT_TRUE(user.Fill(kSubTitle, text));
    EXPECT_TRUE(user.Click(kAddSubTitle));
  }
  // Rows of the two symbols with a sub-title in front of that row.
  static Lines With(const std::string& title, int row) {
    Lines rows = RowsOf({"2330.TW", "2317.TW"});
    rows.insert(rows.begin() + row, title);
    return rows;
  }
  // The list in the file, where the text is in the code page.
  static std::string Ids(const std::string& title) { return "2330.TW,2317.TW," + title + ":"; }
  void ExpectRefused(const std::string& title) {
    Mark();
    In([this, &title](User& user) {
      AddTitle(user, title);
      EXPECT_EQ(Shown(), "48101/0") << title;
      EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW"})) << title;
      EXPECT_TRUE(user.HasFocus(kSubTitle)) << title;
    });
  }
  void ExpectTaken(const std::string& title) {
    EXPECT_EQ(After([&title](User& user) {
                user.ClickRow(kRows, 2);
                AddTitle(user, title);
                EXPECT_EQ(user.Rows(kRows), With(title, 2));
              }),
              Ids(title));
    EXPECT_EQ(Shown(), "");
  }
};

// --- Texts ---------------------------------------------------------------------------------------

TEST_F(ContentTitleText, AnEmptyTextDoesNothing) {
  In([this](User& user) {
    AddTitle(user, "");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW"}));
  });
}

TEST_F(ContentTitleText, ChineseCharactersAreTaken) {
  ExpectTaken(Text("半導體", "半导体"));
}

TEST_F(ContentTitleText, LettersAndDigitsAreTaken) {
  ExpectTaken("ETF50");
}

TEST_F(ContentTitleText, CharactersWhoseSecondByteIsPunctuationAreTaken) {
  ExpectTaken(Text("許功蓋", "誠纜羂"));
}

TEST_F(ContentTitleText, DoubleBytePunctuationIsTaken) {
  ExpectTaken(Text("半導體，金融", "半导体，金融"));
}

TEST_F(ContentTitleText, ABlankIsRefused) {
  ExpectRefused(Text("半導體 一", "半导体 一"));
}

TEST_F(ContentTitleText, AHyphenIsRefused) {
  ExpectRefused(Text("半導體-一", "半导体-一"));
}

TEST_F(ContentTitleText, ACommaIsRefused) {
  ExpectRefused(Text("半導體,一", "半导体,一"));
}

TEST_F(ContentTitleText, AColonIsRefused) {
  ExpectRefused(Text("半導體:", "半导体:"));
}

TEST_F(ContentTitleText, EachPunctuationCharacterIsRefused) {
  for (const char mark : std::string("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~"))
    ExpectRefused(std::string("AB") + mark);
}

TEST_F(ContentTitleText, PunctuationAtTheStartIsRefused) {
  ExpectRefused("-AB");
}

TEST_F(ContentTitleText, ATextThatWasRefusedCanBeMended) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              AddTitle(user, "A-B");
              AddTitle(user, "AB");
            }),
            Ids("AB"));
}

// --- Places --------------------------------------------------------------------------------------

TEST_F(ContentTitleText, WithoutASelectionItIsAppendedBeforeTheEmptyRowAndSelected) {
  In([](User& user) {
    SelectNothing(user);
    AddTitle(user, "AB");
    EXPECT_EQ(user.Rows(kRows), With("AB", 2));
    EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{2});
  });
}

TEST_F(ContentTitleText, WithTheEmptyRowSelectedItIsAppendedBeforeThatAndSelected) {
  In([](User& user) {
    user.ClickRow(kRows, 2);
    AddTitle(user, "AB");
    EXPECT_EQ(user.Rows(kRows), With("AB", 2));
    EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{2});
  });
}

TEST_F(ContentTitleText, WithARowSelectedItIsInsertedThere) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              AddTitle(user, "AB");
              EXPECT_EQ(user.Rows(kRows), With("AB", 1));
            }),
            "2330.TW,AB:,2317.TW");
}

TEST_F(ContentTitleText, ItIsTheFirstRowOfAnEmptyList) {
  Start({"A/one/"});
  EXPECT_EQ(After([](User& user) {
              AddTitle(user, "AB");
              EXPECT_EQ(user.Rows(kRows), (Lines{"AB", ""}));
            }),
            "AB:");
}

// --- A sub-title that is there -------------------------------------------------------------------

TEST_F(ContentTitleText, ATextForTheRowOfASubTitleReplacesIt) {
  Start({"A/one/2330.TW,AB:,2317.TW"});
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              AddTitle(user, "CD");
              EXPECT_EQ(user.Rows(kRows), With("CD", 1));
            }),
            "2330.TW,CD:,2317.TW");
}

TEST_F(ContentTitleText, ATextThatIsRefusedReplacesNoSubTitle) {
  Start({"A/one/2330.TW,AB:,2317.TW"});
  In([this](User& user) {
    user.ClickRow(kRows, 1);
    AddTitle(user, "C D");
    EXPECT_EQ(Shown(), "48101/0");
    EXPECT_EQ(user.Rows(kRows), With("AB", 1));
  });
}

TEST_F(ContentTitleText, AnEmptyTextReplacesNoSubTitle) {
  Start({"A/one/2330.TW,AB:,2317.TW"});
  In([](User& user) {
    user.ClickRow(kRows, 1);
    AddTitle(user, "");
    EXPECT_EQ(user.Rows(kRows), With("AB", 1));
  });
}

TEST_F(ContentTitleText, ASubTitleIsReadBackFromTheFile) {
  const std::string title = Text("許功蓋", "誠纜羂");
  After([&title](User& user) {
    user.ClickRow(kRows, 0);
    AddTitle(user, title);
  });
  EXPECT_EQ(ReadBack(), "A/one/" + title + ":,2330.TW,2317.TW");
}

} // namespace
