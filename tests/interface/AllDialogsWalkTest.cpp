// All dialogs that can change lists under a user who does anything, one after the other, while the
// terminal works beside them. What each of them changes, saves, logs and tells is held against what
// was before, what is now, and the operation.
#include <algorithm>
#include <set>
#include <string>

#include "tests/interface/AllDialogsEffects.h"

namespace {

class AllDialogsWalk : public AllDialogsEffects, public testing::WithParamInterface<unsigned> {
protected:
  void Walk(int actions) {
    actionsLeft = actions;
    for (int number = 0; actionsLeft > 0; ++number) {
      Between();
      RunOne();
      if (HasFailure()) {
        FAIL() << "seed " << GetParam() << ", operation " << number << ", " << Story()
               << "before: " << testing::PrintToString(before)
               << "\nafter what others did: " << testing::PrintToString(atClose)
               << "\nnow: " << testing::PrintToString(Now());
      }
      if (number % 16 == 0)
        ExpectSameAfterReload();
      ForgetCalls();
    }
  }

  // The lists stay few and short.
  void Between() {
    if (Draw(4) == 0)
      ActAsTerminal();
    while (known.user.size() > 7)
      AsTerminal([this] {
        manager.DeleteSymbolList(CString(AnyId(known.user).c_str()));
        return Effect{{}, true};
      });
    for (const ListText& list : ListTexts(known.user)) {
      if (list.ids.size() > 120)
        AsTerminal([this, &list] {
          manager.AddSymbolList(list.id.c_str(), 0, list.name.c_str(), DrawOf(symbols).c_str(), 0,
                                1);
          return Effect{{"64 Add SymbolList", "40 ''"}, true};
        });
    }
    if (known.cloud.size() > 6)
      AsTerminal([this] {
        manager.ClearCloudSymbolList();
        return Effect{};
      });
  }

  // --- One operation

  void RunOne() {
    entry = static_cast<Entry>(Draw(8));
    before = Now();
    EXPECT_EQ(before, known);
    BeginRun();
    SkipEvents();
    fileAtCall.clear();
    WhenDialogOpens([this](User& user) { UseDialog(user); });
    result = Open();
    EXPECT_EQ(TakeUnusedScripts(), 0u) << "the dialog did not open";
    EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
    EXPECT_TRUE(!expectedResult || result == *expectedResult) << result;
    Collect();
    const ManagerLists now = Now();
    atClose = known;
    if (lateId.empty())
      ExpectEffects(now);
    else
      ExpectAddedAtCallIsKept(now);
    ExpectListsAreSound(now);
    known = now;
  }

  int Open() {
    CSymbolTableMgr* const tables = Draw(8) == 0 ? nullptr : manager.GetSymbolTableMgr();
    switch (entry) {
    case Entry::Lists:
      return CTQSymbolListMgr::DoSymbolListUI(&manager, tables, nullptr);
    case Entry::Cloud:
      return manager.DoCloudSymbolListUI(&manager, tables, nullptr);
    case Entry::Group:
    case Entry::CloudGroup:
      return EditOne(tables);
    case Entry::OneSymbol:
      return CTQSymbolListMgr::DoGroupSymbolAdd(&manager, tables, nullptr, given.c_str());
    case Entry::Symbols:
      return CTQSymbolListMgr::DoSymbolAddUI(&manager, tables, nullptr, given.c_str(),
                                             AnyId(known.user).c_str());
    case Entry::Select: {
      const int kindBefore = Draw(9);
      const std::string textBefore = DrawOf(Texts{"", "A", AnyId(known.user), AnyId(known.cloud)});
      int kind = kindBefore;
      CString text = textBefore.c_str();
      const int code = CTQSymbolListMgr::DoSelectUI(
          &manager, tables, nullptr, Draw(4) == 0 ? nullptr : &kind, text, 0, Draw(2) == 0);
      EXPECT_TRUE(code == 1 || (kind == kindBefore && textBefore == text.GetString()));
      return code;
    }
    default: {
      SymbolInfo record = {};
      return CTQSymbolListMgr::DoSearchUI(&manager, tables, nullptr, given.c_str(), &record,
                                          Draw(2), nullptr);
    }
    }
  }

  // The manager's own list, or a copy of it, or a new one.
  int EditOne(CSymbolTableMgr* tables) {
    const bool cloud = entry == Entry::CloudGroup;
    const ListTexts& lists = cloud ? known.cloud : known.user;
    const int mode = lists.empty() ? 0 : Draw(4);
    CSymbolList copy;
    CSymbolList* list = &copy;
    if (mode != 0) {
      manager.GetSymbolList(AnyId(lists).c_str(), &list, cloud ? kCloudLists : kUserLists);
      copy.SetID(list->GetID());
      copy.SetName(list->GetName());
      copy.Update1(list->GetIDs());
    }
    editedId = copy.GetID().GetString();
    const bool own = mode != 0 && Draw(2) == 0;
    const bool done =
        cloud ? manager.DoCloudGroupListUI(&manager, tables, own ? list : &copy, mode, nullptr, 0)
              : CTQSymbolListMgr::DoGroupListUI(&manager, tables, own ? list : &copy, mode, nullptr,
                                                0);
    if (!own && done)
      edited = {copy.GetID().GetString(), copy.GetName().GetString(), copy.GetIDs().GetString()};
    EXPECT_EQ(mode == 0 && done, editedId.empty() && edited && !edited->id.empty());
    return done ? 1 : 2;
  }

  // What else there is then is looked at by other operations.
  void ExpectAddedAtCallIsKept(const ManagerLists& now) {
    EXPECT_NE(FindList(now.user, lateId), nullptr) << "a list is lost";
    file = ReadWorking();
    saved = now;
    EXPECT_EQ(file, FileOf(now));
  }

  // --- What holds always

  void ExpectListsAreSound(const ManagerLists& now) {
    ExpectSound(now.user, known.user, before.user);
    ExpectSound(now.cloud, known.cloud, before.cloud);
    for (const ListText& list : known.user)
      EXPECT_TRUE(!IsSystem(list) || entry == Entry::Select ||
                  FindList(now.user, list.id) != nullptr)
          << "a system list is gone";
    if (lateId.empty() && !now.HasSameUserLists(known)) {
      EXPECT_GE(now.defaultIndex, now.user.empty() ? -1 : 0);
      EXPECT_LT(now.defaultIndex, static_cast<int>(now.user.size()));
    }
  }
  void ExpectSound(const ListTexts& lists, const ListTexts& held, const ListTexts& old) {
    std::set<std::string> ids;
    for (const ListText& list : lists) {
      EXPECT_TRUE(!list.id.empty() && ids.insert(list.id).second) << "id " << list.id;
      EXPECT_TRUE(!list.name.empty() && list.name.find_first_of("'&<") == std::string::npos);
      EXPECT_LE(list.name.size(), 64u);
      EXPECT_FALSE(HasBareMarker(list.ids)) << list.ids;
      EXPECT_FALSE(HasOneTwice(list.ids)) << list.ids;
      const ListText* const is = FindList(held, list.id);
      const ListText* const was = FindList(old, list.id);
      const bool has = (is == nullptr && was == nullptr) ||
                       (is != nullptr && KeepsWhatNobodySees(list.ids, is->ids)) ||
                       (was != nullptr && KeepsWhatNobodySees(list.ids, was->ids));
      EXPECT_TRUE(has) << "lost an unknown id: " << list.ids;
    }
  }
  // The id of a heading's record.
  static bool HasBareMarker(const std::string& ids) {
    return ("," + ids + ",").find(",:,") != std::string::npos;
  }
  static bool HasOneTwice(const std::string& ids) {
    std::set<std::string> seen;
    for (const std::string& piece : PiecesOf(ids)) {
      if (!IsHeadingPiece(piece) && !seen.insert(piece).second)
        return true;
    }
    return false;
  }
  // The unknown ids in their order; what is added may be unknown too. Without an editor of contents
  // headings stay as well.
  bool KeepsWhatNobodySees(const std::string& ids, const std::string& of) const {
    const auto now = PiecesOf(ids);
    auto at = now.begin();
    for (const std::string& piece : PiecesOf(of)) {
      if (unknown.count(piece) == 0 && (storedContents > 0 || !IsHeadingPiece(piece)))
        continue;
      at = std::find(at, now.end(), piece);
      if (at == now.end())
        return false;
      ++at;
    }
    return true;
  }

  void ExpectSameAfterReload() {
    if (saved.user.empty())
      return;
    if (!otherStarted)
      other.Init(directory.Path().c_str(), 0, 0, 0, nullptr, 0, 0);
    otherStarted = true;
    other.LoadSymbolList();
    int index = -99;
    other.GetDefaultListIdx(index);
    EXPECT_EQ(ListsOf(other, kUserLists), saved.user);
    EXPECT_TRUE(index == saved.defaultIndex) << index;
    EXPECT_EQ(ReadWorking(), file);
  }

  ManagerLists atClose; // when the dialog closed
  CTQSymbolListMgr other;
  bool otherStarted = false;
};

TEST_P(AllDialogsWalk, ChangesSavesAndTellsWhatAPlainModelDoes) {
  Seed(GetParam());
  StartWith({"A/one/2330.TW,gone.TW,1101.TW", "ZUSYSLIST1/sys/1101.TW",
             "C/" + Ansi("許功蓋") + "/Tag:,2454.TW,none.TE,1101.TW", "D/Two/"});
  manager.SetCloudeList("PICK", "picked", "2330.TW,gone.TW");
  manager.AddCloudSymbolList("K1", Ansi("中文").c_str(), "2454.TW,2317.TW", 0);
  BeginToWatch();
  const int actions = RandomActions(0) / 4;   // of four seeds
  ASSERT_NO_FATAL_FAILURE(Walk(actions / 4)); // until each dialog has been open
  const size_t windows = WindowResources();
  ASSERT_NO_FATAL_FAILURE(Walk(actions - actions / 4));
  EXPECT_LE(WindowResources(), windows + ResourceSlack());
}

INSTANTIATE_TEST_SUITE_P(Seeds, AllDialogsWalk, testing::Values(1U, 2U, 3U, 4U));

} // namespace
