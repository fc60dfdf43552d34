// Symbols to one of the user's lists: what "add" does.
#include "tests/interface/ListText.h"
#include "tests/interface/SymbolAddText.h"

namespace {

class SymbolAddAddText : public SymbolAddText {
protected:
  // The symbols of list A after these were added to it.
  std::string Sum(const std::string& list, const std::string& symbols) {
    Start({"A/one/" + list});
    EXPECT_EQ(Add(symbols, "A"), kClosed);
    return Symbols("A");
  }
};

// --- Symbols that the list does not hold ---------------------------------------------------------

TEST_F(SymbolAddAddText, ASymbolIsAddedBehindTheOthersAndTheDialogCloses) {
  EXPECT_EQ(Add("2881.TW"), kClosed);
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW,2881.TW|C/three/2454.TW");
  EXPECT_EQ(Shown(), "");
}

TEST_F(SymbolAddAddText, SeveralSymbolsAreAddedInTheirOrder) {
  EXPECT_EQ(Sum("2330.TW", "6488.TE,1101.TW,2881.TW"), "2330.TW,6488.TE,1101.TW,2881.TW");
}

TEST_F(SymbolAddAddText, SymbolsAreAddedToTheListThatTheUserSelects) {
  EXPECT_EQ(Run([](User& user) {
              EXPECT_TRUE(user.Select(kLists, 2));
              AddThem(user);
            }),
            kClosed);
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW|C/three/2454.TW,2881.TW");
}

TEST_F(SymbolAddAddText, ASymbolIsTheFirstOfAnEmptyList) {
  EXPECT_EQ(Sum("", "2881.TW,1101.TW"), "2881.TW,1101.TW");
}

TEST_F(SymbolAddAddText, SymbolsAreAddedToASystemList) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/mine/2317.TW"});
  EXPECT_EQ(Add("2881.TW", "ZUSYSLIST1"), kClosed);
  EXPECT_EQ(All(), "A/one/2330.TW|ZUSYSLIST1/mine/2317.TW,2881.TW");
}

TEST_F(SymbolAddAddText, TheLetterOfTheButtonAdds) {
  EXPECT_EQ(Run([](User& user) { EXPECT_TRUE(user.PressLetter('A')); }), kClosed);
  EXPECT_EQ(Symbols("B"), "1101.TW,2317.TW,2881.TW");
}

TEST_F(SymbolAddAddText, AnUnknownSymbolIsAddedAsItIs) {
  EXPECT_EQ(Sum("2330.TW", "GONE.TW,2881.TW"), "2330.TW,GONE.TW,2881.TW");
}

TEST_F(SymbolAddAddText, UnknownSymbolsOfTheListKeepTheirPlaces) {
  EXPECT_EQ(Sum("GONE.TW,2330.TW,AWAY.TE", "2881.TW"), "GONE.TW,2330.TW,AWAY.TE,2881.TW");
}

TEST_F(SymbolAddAddText, SubTitlesOfTheListKeepTheirPlaces) {
  EXPECT_EQ(Sum("Chips:,2330.TW,Rest:", "2881.TW"), "Chips:,2330.TW,Rest:,2881.TW");
}

TEST_F(SymbolAddAddText, ASubTitleAmongTheSymbolsIsAddedInItsPlace) {
  EXPECT_EQ(Sum("2330.TW", "Banks:,2881.TW"), "2330.TW,Banks:,2881.TW");
}

TEST_F(SymbolAddAddText, ASymbolThatOnlyAnotherListHoldsIsAdded) {
  EXPECT_EQ(Add("2330.TW"), kClosed);
  EXPECT_EQ(Symbols("B"), "1101.TW,2317.TW,2330.TW");
  EXPECT_EQ(Shown(), "");
}

TEST_F(SymbolAddAddText, APartOfAnIdOfTheListIsNoSymbolThatItHolds) {
  EXPECT_EQ(Sum("12330.TW,2330.TWO", "2330.TW"), "12330.TW,2330.TWO,2330.TW");
  EXPECT_EQ(Shown(), "");
}

TEST_F(SymbolAddAddText, EmptyPlacesAmongTheSymbolsAreNoSymbols) {
  EXPECT_EQ(Sum("2330.TW", "2881.TW,,1101.TW,"), "2330.TW,2881.TW,1101.TW");
  EXPECT_EQ(Shown(), "");
}

// --- Symbols that the list holds -----------------------------------------------------------------

TEST_F(SymbolAddAddText, TheOnesThatTheListHoldsAreNamedAndTheOthersAdded) {
  EXPECT_EQ(Sum("2317.TW", "2330.TW,2317.TW"), "2317.TW,2330.TW");
  EXPECT_EQ(Shown(), Duplicates(WithName("2317.TW")));
}

TEST_F(SymbolAddAddText, SeveralAreJoinedByCommasInTheOrderOfTheSymbols) {
  EXPECT_EQ(Sum("2330.TW,2317.TW,1101.TW", "1101.TW,2881.TW,2330.TW"),
            "2330.TW,2317.TW,1101.TW,2881.TW");
  EXPECT_EQ(Shown(), Duplicates(WithName("1101.TW") + "," + WithName("2330.TW")));
}

TEST_F(SymbolAddAddText, WhenTheListHoldsAllOfThemItStaysAndTheDialogClosesWithOk) {
  EXPECT_EQ(Add("2317.TW,1101.TW"), kClosed);
  EXPECT_EQ(Shown(), Duplicates(WithName("2317.TW") + "," + WithName("1101.TW")));
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), NothingCommitted());
}

TEST_F(SymbolAddAddText, AnUnknownSymbolThatTheListHoldsIsNamedByItsId) {
  EXPECT_EQ(Sum("2330.TW,GONE.TW", "GONE.TW"), "2330.TW,GONE.TW");
  EXPECT_EQ(Shown().rfind(Duplicates("GONE.TW").substr(0, Duplicates("GONE.TW").size() - 3), 0),
            0U);
}

TEST_F(SymbolAddAddText, ANameWithPercentSignsIsNamedAsItIs) {
  standin::Market served = standin::CurrentMarket();
  served.instruments[0].nameTw = served.instruments[0].nameCn = "100%s%n";
  standin::SetMarket(served);
  EXPECT_EQ(Sum("2330.TW", "2330.TW"), "2330.TW");
  EXPECT_EQ(Shown(), Duplicates("2330.TW(100%s%n)"));
}

TEST_F(SymbolAddAddText, ANameWhoseBytesLookLikeBackslashesIsNamedWhole) {
  EXPECT_EQ(Sum("1436.TW", "1436.TW"), "1436.TW");
  EXPECT_EQ(Shown(), Duplicates("1436.TW(" + Text("許功蓋", "许功盖") + ")"));
}

TEST_F(SymbolAddAddText, SymbolsThatBothListsHoldAreNamedForTheSelectedListAlone) {
  Start({"A/one/2330.TW", "B/two/1101.TW"});
  EXPECT_EQ(Add("2330.TW,1101.TW", "A"), kClosed);
  EXPECT_EQ(Shown(), Duplicates(WithName("2330.TW")));
  EXPECT_EQ(All(), "A/one/2330.TW,1101.TW|B/two/1101.TW");
}

// --- Nothing to add, nothing to add to -----------------------------------------------------------

TEST_F(SymbolAddAddText, WithoutSymbolsTheListStaysAsItIs) {
  for (const char* symbols : {"", ",", ",,"}) {
    EXPECT_EQ(Run(AddThemIfPossible, symbols), kClosed);
    EXPECT_EQ(All(), untouched);
    EXPECT_EQ(Shown(), "");
  }
}

TEST_F(SymbolAddAddText, WithoutListsNothingIsAdded) {
  Start({});
  EXPECT_EQ(Run(AddThemIfPossible), kClosed);
  EXPECT_EQ(All(), "");
  EXPECT_EQ(Happened(), NothingCommitted());
}

// Symbols go where the user sees it, or nowhere.
TEST_F(SymbolAddAddText, WithoutADefaultListTheyGoToTheListThatIsShownAsSelected) {
  manager.SetDefaultIndex(-1);
  std::string expected = untouched;
  Run(
      [&expected](User& user) {
        if (!user.SelectedRows(kLists).empty()) {
          EXPECT_EQ(Selected(user), "one");
          ExpectContents(user, {"2330.TW"});
          expected.insert(expected.find('|'), ",2881.TW");
        }
        AddThemIfPossible(user);
      },
      "2881.TW", "");
  EXPECT_EQ(All(), expected);
}

// --- Symbols that no list file can carry ---------------------------------------------------------

struct Unstorable {
  const char* name;
  const char* symbols; // bytes
};

class SymbolAddUnstorable : public SymbolAddText, public testing::WithParamInterface<Unstorable> {
protected:
  void AddThese() {
    WhenDialogOpens(AddThemIfPossible);
    CTQSymbolListMgr::DoSymbolAddUI(&manager, manager.GetSymbolTableMgr(), nullptr,
                                    GetParam().symbols, "B");
  }
};

TEST_P(SymbolAddUnstorable, TheUserIsToldOnce) {
  AddThese();
  EXPECT_EQ(Shown(), "48204/0");
}

TEST_P(SymbolAddUnstorable, NothingIsAdded) {
  AddThese();
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), NothingCommitted());
}

INSTANTIATE_TEST_SUITE_P(
    Ids, SymbolAddUnstorable,
    testing::Values(Unstorable{"Ampersand", "A&B.NYSE"}, Unstorable{"Apostrophe", "A'B.NYSE"},
                    Unstorable{"LessThan", "A<B.NYSE"}, Unstorable{"HalfCharacter", "A\xA4"},
                    Unstorable{"AmongOthers", "2881.TW,A&B.NYSE,2330.TW"}),
    [](const testing::TestParamInfo<Unstorable>& tested) { return tested.param.name; });

// --- Effects -------------------------------------------------------------------------------------

TEST_F(SymbolAddAddText, AnAddedSymbolIsSavedLoggedAndTold) {
  Add("2881.TW");
  EXPECT_EQ(Happened(), Committed());
}

TEST_F(SymbolAddAddText, AnAddedSymbolBesideADuplicateIsSavedLoggedAndTold) {
  Add("2317.TW,2881.TW");
  EXPECT_EQ(Happened(), Committed());
}

TEST_F(SymbolAddAddText, TheTerminalIsToldOfTheSymbolsBeforeItIsToldOfTheLists) {
  const size_t before = standin::Notifications().size();
  Add("2881.TW");
  const std::vector<standin::Notification>& told = standin::Notifications();
  ASSERT_EQ(told.size(), before + 2);
  EXPECT_EQ(told[before].code, 4);
  EXPECT_EQ(told[before + 1].code, 40);
}

TEST_F(SymbolAddAddText, TheFileAndTheLogComeBeforeTheTerminalIsTold) {
  const size_t before = standin::LogLines().size();
  bool saved = false;
  bool logged = false;
  int told = 0;
  standin::OnCall("TQSCall", [&] {
    if (told++ > 0) // the first one counts
      return;
    saved = ReadWorking().find("2881.TW") != std::string::npos;
    for (size_t i = before; i < standin::LogLines().size(); ++i)
      logged = logged || standin::LogLines()[i].text.rfind("DoSymbolAddUI", 0) == 0;
  });
  Add("2881.TW");
  EXPECT_EQ(told, 2);
  EXPECT_TRUE(saved);
  EXPECT_TRUE(logged);
}

TEST_F(SymbolAddAddText, TheFileHoldsThemToTheByte) {
  Add("2881.TW,Banks:,GONE.TW");
  using listtext::Element;
  EXPECT_EQ(ReadWorking(),
            listtext::File("0", {Element("A", "one", "2330.TW"),
                                 Element("B", "two", "1101.TW,2317.TW,2881.TW,Banks:,GONE.TW"),
                                 Element("C", "three", "2454.TW")}));
}

TEST_F(SymbolAddAddText, AnotherManagerReadsThem) {
  Add("2881.TW");
  EXPECT_EQ(ReadBack(), "A/one/2330.TW|B/two/1101.TW,2317.TW,2881.TW|C/three/2454.TW");
}

TEST_F(SymbolAddAddText, TheDefaultListStaysTheDefault) {
  manager.SetDefaultIndex(2);
  Add("2881.TW");
  EXPECT_EQ(DefaultIndex(), 2);
}

TEST_F(SymbolAddAddText, TheManagerShowsTheAddedSymbol) {
  Add("2881.TW");
  EXPECT_EQ(Rows("B"), "1101.TW 2317.TW 2881.TW");
}

TEST_F(SymbolAddAddText, CloudListsAreLeftAlone) {
  manager.AddCloudSymbolList("B", "cloud", "2330.TW", 0);
  Add("2881.TW");
  CString symbols;
  manager.GetSymbolListIDs(8, "B", symbols, nullptr);
  EXPECT_EQ(Utf8(symbols), "2330.TW");
}

// --- Very many -----------------------------------------------------------------------------------

TEST_F(SymbolAddAddText, TenThousandSymbolsAreAdded) {
  std::string symbols = "X0.TW";
  for (int i = 1; i < 10000; ++i)
    symbols += ",X" + std::to_string(i) + ".TW";
  EXPECT_EQ(Sum("2330.TW", symbols), "2330.TW," + symbols);
  EXPECT_EQ(ReadBack(), "A/one/2330.TW," + symbols);
}

TEST_F(SymbolAddAddText, TenThousandSymbolsOfWhichTheListHoldsHalfAreNamedAndAdded) {
  std::string held = "2330.TW";
  std::string added;
  for (int i = 0; i < 5000; ++i)
    held += ",X" + std::to_string(i) + ".TW";
  for (int i = 5000; i < 10000; ++i)
    added += ",X" + std::to_string(i) + ".TW";
  EXPECT_EQ(Sum(held, held + added), held + added);
  EXPECT_NE(Shown().find("X4999.TW"), std::string::npos);
  EXPECT_EQ(Shown().find("X5000.TW"), std::string::npos);
}

} // namespace
