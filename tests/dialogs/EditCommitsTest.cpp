// What is stored, saved, logged and told when a dialog's working copy is committed.
#include "dialogs/EditCommits.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "platform/FileAccess.h"
#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"

namespace {

constexpr int kUserLists = 1;
constexpr int kCloudLists = 8;
constexpr char kChanged[] = " \xA7\xF3\xB0\xCA SymbolList!!";

// Notes each save among the calls of the services, so that their order can be seen, and refuses
// when told.
class NotedSaves : public tq::FileAccessWrapper {
public:
  NotedSaves() : FileAccessWrapper(tq::Files()), before_(tq::SetFiles(this)) {}
  ~NotedSaves() override { tq::SetFiles(before_); }
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    ++saves;
    notifiedAtSave = standin::Notifications().size();
    return fail ? tq::SaveResult::Failed : FileAccessWrapper::SaveWholeFile(path, bytes, size);
  }

  int saves = 0;
  std::size_t notifiedAtSave = 0;
  bool fail = false;

private:
  tq::FileAccess* before_;
};

class EditCommits : public EditTest {
protected:
  EditCommits() { standin::SetMarket(GroupMarket()); }

  void Start() {
    StartWith({"A/one/2330.TW", "B/two/2317.TW", "C/three/1101.TW,2454.TW"});
    Mark();
  }
  void StartCloud() {
    StartWith({"A/mine/2330.TW"});
    manager.AddCloudSymbolList("VORNG0101", "one", "2330.TW", 0);
    manager.AddCloudSymbolList("PICK", "two", "2317.TW", 0);
    Mark();
  }
  void Mark() {
    told_ = standin::Notifications().size();
    logged_ = standin::LogLines().size();
    files.saves = 0;
  }

  // All that happened since Mark: "saves 1; told 40:ListCntChange; log <line>". Lines of other
  // levels and of the groups' own changes are left out.
  std::string Happened() {
    std::string text = "saves " + std::to_string(files.saves);
    for (std::size_t i = told_; i < standin::Notifications().size(); ++i)
      text += "; told " + std::to_string(standin::Notifications()[i].code) + ":" +
              standin::Notifications()[i].reason;
    for (std::size_t i = logged_; i < standin::LogLines().size(); ++i) {
      const standin::LogLine& line = standin::LogLines()[i];
      if (line.level == 64 && line.text.rfind("Do", 0) == 0)
        text += "; log " + line.text;
    }
    return text;
  }
  static void Rename(tq::WorkingCopy& copy, int index, const char* name) {
    copy.At(index).SetName(name);
  }
  static void Remove(tq::WorkingCopy& copy, int index) {
    copy.All().erase(copy.All().begin() + index);
  }
  std::string CloudShape() {
    std::string shape;
    for (int i = 0; i < manager.GetSymbolListCount(kCloudLists); ++i) {
      CString id;
      CString name;
      CString symbols;
      manager.GetSymbolListInfo(i, id, name, symbols, kCloudLists);
      shape += (i > 0 ? "|" : "") + std::string(id) + "/" + std::string(name) + "/" +
               std::string(symbols);
    }
    return shape;
  }

  NotedSaves files;

private:
  std::size_t told_ = 0;
  std::size_t logged_ = 0;
};

const std::string kOne = "saves 1; told 40:";

// --- The list editor -----------------------------------------------------------------------------

TEST_F(EditCommits, AnUntouchedCopyDoesNothing) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), "saves 0");
}

TEST_F(EditCommits, OtherSymbolsAreAChangeWithoutAReason) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(1).Update1("2454.TW");
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), kOne + "; log DoSymbolListUI" + kChanged);
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/two/2454.TW|C/three/1101.TW,2454.TW");
  EXPECT_NE(ReadWorking().find("Value='2454.TW'"), std::string::npos);
  EXPECT_EQ(copy.Count(), 0);
}

TEST_F(EditCommits, AnotherNameIsANameChange) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  Rename(copy, 0, "ONE");
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(),
            kOne + "ListNameChange; log DoSymbolListUI" + kChanged + "(bListNameChange)");
}

TEST_F(EditCommits, AnotherNumberOfListsIsACountChange) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  Remove(copy, 2);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), kOne + "ListCntChange; log DoSymbolListUI" + kChanged +
                            "(nNewSymbolListCnt != nOldSymbolListCnt)");
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/two/2317.TW");
}

TEST_F(EditCommits, TheNumberWinsOverAName) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  Remove(copy, 2);
  Rename(copy, 0, "ONE");
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), kOne + "ListCntChange; log DoSymbolListUI" + kChanged +
                            "(nNewSymbolListCnt != nOldSymbolListCnt)");
}

TEST_F(EditCommits, ListsThatChangedPlacesAreANameChange) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  std::swap(copy.All()[0], copy.All()[1]);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(),
            kOne + "ListNameChange; log DoSymbolListUI" + kChanged + "(bListNameChange)");
  EXPECT_EQ(Shape(), "B/two/2317.TW|A/one/2330.TW|C/three/1101.TW,2454.TW");
}

TEST_F(EditCommits, AnotherDefaultListIsAChangeWithoutAReason) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.SetDefaultIndex(2);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), kOne + "; log DoSymbolListUI" + kChanged);
  EXPECT_EQ(DefaultIndex(), 2);
  EXPECT_NE(ReadWorking().find("DefaultIdx='2'"), std::string::npos);
}

TEST_F(EditCommits, NoListsLeftMeansNoDefaultList) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.Clear();
  copy.SetDefaultIndex(-1);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(manager.GetSymbolListCount(kUserLists), 0);
  EXPECT_EQ(DefaultIndex(), -1);
}

TEST_F(EditCommits, ADefaultIndexBehindTheListsIsBroughtBack) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.SetDefaultIndex(7);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(DefaultIndex(), 2);
}

TEST_F(EditCommits, ASaveThatFailsIsShownAndToldAllTheSame) {
  Start();
  const std::string file = ReadWorking();
  tq::WorkingCopy copy(manager, kUserLists);
  Rename(copy, 0, "ONE");
  files.fail = true;
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(),
            kOne + "ListNameChange; log DoSymbolListUI" + kChanged + "(bListNameChange)");
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages()[0].id, 48026u);
  EXPECT_EQ(ReadWorking(), file);
  EXPECT_EQ(NameAt(0), "ONE");
}

TEST_F(EditCommits, TheTerminalIsToldAfterTheSave) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  Rename(copy, 0, "ONE");
  const std::size_t before = standin::Notifications().size();
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(files.notifiedAtSave, before);
}

// --- The cloud list editor -----------------------------------------------------------------------

TEST_F(EditCommits, UntouchedCloudListsDoNothing) {
  StartCloud();
  tq::WorkingCopy copy(manager, kCloudLists);
  tq::CommitCloudLists(manager, copy, 2);
  EXPECT_EQ(Happened(), "saves 0");
  EXPECT_EQ(std::string(manager.GetCloudeList()), "<Cloud></Cloud>");
}

TEST_F(EditCommits, CloudListsGoIntoTheMapAndAreNotSaved) {
  StartCloud();
  tq::WorkingCopy copy(manager, kCloudLists);
  copy.At(0).Update1("1101.TW");
  tq::CommitCloudLists(manager, copy, 2);
  EXPECT_EQ(Happened(), std::string("saves 0; told 41:; log DoCloudSymbolListUI") + kChanged);
  EXPECT_EQ(CloudShape(), "VORNG0101/one/1101.TW|PICK/two/2317.TW");
  EXPECT_EQ(std::string(manager.GetCloudeList()),
            "<Cloud><List ID='VORNG0101' Name='one' Value='1101.TW' Flag='0'/>\n"
            "<List ID='PICK' Name='two' Value='2317.TW' Flag='0'/>\n</Cloud>");
  EXPECT_EQ(copy.Count(), 0);
}

TEST_F(EditCommits, CloudReasonsAreThoseOfTheUsersLists) {
  StartCloud();
  tq::WorkingCopy renamed(manager, kCloudLists);
  Rename(renamed, 1, "TWO");
  tq::CommitCloudLists(manager, renamed, 2);
  EXPECT_EQ(Happened(), std::string("saves 0; told 41:ListNameChange; log DoCloudSymbolListUI") +
                            kChanged + "(bListNameChange)");
  Mark();
  tq::WorkingCopy fewer(manager, kCloudLists);
  Remove(fewer, 0);
  tq::CommitCloudLists(manager, fewer, 2);
  EXPECT_EQ(Happened(), std::string("saves 0; told 41:ListCntChange; log DoCloudSymbolListUI") +
                            kChanged + "(nNewSymbolListCnt != nOldSymbolListCnt)");
  EXPECT_EQ(CloudShape(), "PICK/TWO/2317.TW");
}

TEST_F(EditCommits, MovedSymbolsOfCloudListsAreRenamedInTheMapToo) {
  StartCloud();
  tq::WorkingCopy copy(manager, kCloudLists);
  copy.At(0).Update1("6488.TW"); // which went over to TE
  tq::CommitCloudLists(manager, copy, 2);
  EXPECT_EQ(CloudShape(), "VORNG0101/one/6488.TE|PICK/two/2317.TW");
  EXPECT_NE(std::string(manager.GetCloudeList()).find("Value='6488.TE'"), std::string::npos);
}

// --- Adding symbols ------------------------------------------------------------------------------

TEST_F(EditCommits, AddingNothingIsToldWithCode40Alone) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  tq::CommitAddedSymbols(manager, copy);
  EXPECT_EQ(Happened(), "saves 0; told 40:");
}

TEST_F(EditCommits, AddedSymbolsAreToldWithCode4First) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(0).Update1("2330.TW,2317.TW");
  tq::CommitAddedSymbols(manager, copy);
  EXPECT_EQ(Happened(), std::string("saves 1; told 4:; told 40:; log DoSymbolAddUI") + kChanged);
  EXPECT_EQ(Shape(), "A/one/2330.TW,2317.TW|B/two/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(EditCommits, AListThatIsNewWithTheSymbolsIsStored) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  auto list = std::make_unique<CSymbolList>();
  list->SetID("N");
  list->SetName("new");
  list->Update1("2881.TW");
  copy.All().push_back(std::move(list));
  tq::CommitAddedSymbols(manager, copy);
  EXPECT_EQ(manager.GetSymbolListCount(kUserLists), 4);
  EXPECT_EQ(IdAt(3), "N");
}

TEST_F(EditCommits, OneSymbolAddedToListsIsToldOnlyWhenItChangedThem) {
  Start();
  tq::WorkingCopy same(manager, kUserLists);
  tq::CommitSymbolAddedToLists(manager, same);
  EXPECT_EQ(Happened(), "saves 0");
  EXPECT_EQ(same.Count(), 0);
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(1).Update1("2317.TW,2881.TW");
  tq::CommitSymbolAddedToLists(manager, copy);
  EXPECT_EQ(Happened(), kOne + "; log DoGroupSymbolAdd" + kChanged);
  EXPECT_EQ(copy.Count(), 0);
}

// --- One list ------------------------------------------------------------------------------------

TEST_F(EditCommits, AnEditedListTakesItsPlaceAndIsSavedButNotTold) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(1).Update1("2317.TW,2881.TW");
  Rename(copy, 1, "zwei");
  EXPECT_TRUE(tq::CommitEditedList(manager, copy.At(1)));
  EXPECT_EQ(Happened(), "saves 1");
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/zwei/2317.TW,2881.TW|C/three/1101.TW,2454.TW");
}

TEST_F(EditCommits, AListThatIsTheSameIsNotStored) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  EXPECT_FALSE(tq::CommitEditedList(manager, copy.At(2)));
  EXPECT_EQ(Happened(), "saves 0");
}

TEST_F(EditCommits, TheSameSymbolsInAnotherOrderAreAChange) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(2).Update1("2454.TW,1101.TW");
  EXPECT_TRUE(tq::CommitEditedList(manager, copy.At(2)));
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/two/2317.TW|C/three/2454.TW,1101.TW");
}

TEST_F(EditCommits, AListThatTheManagerDoesNotHaveIsNotStored) {
  Start();
  CSymbolList list;
  list.SetID("NOBODY");
  list.SetName("new");
  list.Update1("2330.TW");
  EXPECT_FALSE(tq::CommitEditedList(manager, list));
  EXPECT_FALSE(tq::CommitEditedCloudList(manager, list));
  EXPECT_EQ(Happened(), "saves 0");
}

TEST_F(EditCommits, AnEditedCloudListGoesIntoTheMapAndTheCloudGroups) {
  StartCloud();
  tq::WorkingCopy copy(manager, kCloudLists);
  copy.At(1).Update1("2330.TW,2454.TW");
  Rename(copy, 1, "picked");
  EXPECT_TRUE(tq::CommitEditedCloudList(manager, copy.At(1)));
  EXPECT_EQ(Happened(), "saves 0");
  EXPECT_EQ(CloudShape(), "VORNG0101/one/2330.TW|PICK/picked/2330.TW,2454.TW");
  void* group = nullptr;
  ASSERT_NE(manager.GetGroupHandle(201, "PICK", &group, 0), 0);
  CString ids;
  EXPECT_EQ(manager.GetGroupListIDs(group, ids), 1);
  EXPECT_STREQ(ids, "2330.TW,2454.TW");
}

TEST_F(EditCommits, WhatTheSelectionDialogChangedIsLoggedAndTold) {
  Start();
  tq::ReportChangedBySelection();
  EXPECT_EQ(Happened(), std::string("saves 0; told 40:; log DoSelectUI") + kChanged);
}

} // namespace
