// The selection: what of the changes made there is stored and told, and when.
#include "tests/interface/SelectionEditText.h"

namespace {

// --- What is stored and told ---------------------------------------------------------------------

TEST_F(SelectionTextEdit, WithoutAChangeNothingIsStoredOrTold) {
  StartWithThree();
  Choose([](User& user) {
    ShowMyLists(user);
    EXPECT_TRUE(user.Select(kLists, 1));
    user.Click(kOk);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(SelectionTextEdit, AChangeIsStoredAndToldAfterOk) {
  StartWithThree();
  Choose([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    user.Click(kOk);
  });
  EXPECT_EQ(Happened(), "saved" + Told());
  EXPECT_EQ(Shape(), Renamed());
}

TEST_F(SelectionTextEdit, ANewListIsStoredAndToldAfterOk) {
  StartWithThree();
  Choose([](User& user) {
    New(user, NameIt("four"));
    user.Click(kOk);
  });
  EXPECT_EQ(Happened(), "saved" + Told());
  EXPECT_EQ(NameAt(3), "four");
}

TEST_F(SelectionTextEdit, ADeletedListIsToldAfterOk) {
  StartWithThree();
  Choose([](User& user) {
    Delete(user, 1);
    user.Click(kOk);
  });
  EXPECT_EQ(Happened(), "saved" + Told());
}

TEST_F(SelectionTextEdit, TheDefaultIndexIsStoredToo) {
  StartWithThree(2);
  Choose([](User& user) {
    Delete(user, 0);
    user.Click(kOk);
  });
  EXPECT_NE(ReadWorking().find("DefaultIdx='1'"), std::string::npos);
}

TEST_F(SelectionTextEdit, TheManagersListsStayAsTheyAreUntilOk) {
  StartWithThree();
  const std::string before = Shape();
  Choose([&](User& user) {
    Edit(user, 1, NameIt("zwei"));
    Delete(user, 0);
    EXPECT_EQ(Shape(), before);
    EXPECT_EQ(Happened(), "not saved");
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, CancelStoresNothing) {
  StartWithThree();
  const std::string before = Shape();
  EXPECT_EQ(Choose([](User& user) {
              Edit(user, 1, NameIt("zwei"));
              Delete(user, 0);
              EXPECT_TRUE(user.Click(kCancel));
            }),
            2);
  EXPECT_EQ(Shape(), before);
  EXPECT_EQ(Answer(), untouched);
}

TEST_F(SelectionTextEdit, AChangeIsToldAfterCancelToo) {
  StartWithThree();
  Choose([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    user.Click(kCancel);
  });
  EXPECT_EQ(Happened(), "not saved" + Told());
}

TEST_F(SelectionTextEdit, AChangeIsStoredWhateverSourceIsChosenThen) {
  StartWithThree();
  Choose([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    EXPECT_TRUE(user.Select(kSources, AllSymbols()));
    user.Click(kOk);
  });
  EXPECT_EQ(Happened(), "saved" + Told());
  EXPECT_EQ(Shape(), Renamed());
  EXPECT_EQ(kind, 4);
}

TEST_F(SelectionTextEdit, AnotherSourceAndBackStillShowsTheChange) {
  StartWithThree();
  Choose([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    EXPECT_TRUE(user.Select(kSources, AllSymbols()));
    ShowMyLists(user);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, ASaveThatFailsIsShownAndToldAllTheSame) {
  StartWithThree();
  directory.Remove();
  Choose([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    user.Click(kOk);
  });
  EXPECT_EQ(Shown(), "48026/0");
  ASSERT_FALSE(standin::Notifications().empty());
  EXPECT_EQ(standin::Notifications().back().code, 40);
}

} // namespace
