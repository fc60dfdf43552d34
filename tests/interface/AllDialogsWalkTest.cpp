// All dialogs that can change lists under a user who does anything, one after the other, while the
// terminal works beside them. What each of them changes, saves, logs and tells is held against what
// was before, what is now, and the operation.
#include <iterator>
#include <optional>
#include <sstream>

#include "tests/interface/AllDialogsUser.h"

namespace {

class AllDialogsWalk : public AllDialogsUser, public testing::WithParamInterface<unsigned> {
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

  // --- What it had to do: `known` is what was when the dialog closed

  void ExpectEffects(const ManagerLists& now) {
    switch (entry) {
    case Entry::Lists:
      ExpectEditorOfLists(now, now.user, known.user, before.user);
      ExpectDefault(now);
      return ExpectSaved(now, !now.HasSameUserLists(known));
    case Entry::Cloud:
      EXPECT_TRUE(now.HasSameUserLists(known));
      ExpectEditorOfLists(now, now.cloud, known.cloud, before.cloud);
      return ExpectSaved(now, false);
    case Entry::Group:
      EXPECT_EQ(events, Events());
      EXPECT_EQ(now.cloud, known.cloud);
      ExpectOneEdited(now.user, known.user);
      return ExpectSaved(now, !now.HasSameUserLists(known));
    case Entry::CloudGroup:
      return ExpectCloudListEdited(now);
    case Entry::OneSymbol:
    case Entry::Symbols:
      ExpectAdding(now);
      return ExpectSaved(now, !now.HasSameUserLists(known));
    case Entry::Select:
      ExpectSelectionReported();
      [[fallthrough]];
    default:
      EXPECT_EQ(now, known);
      if (entry == Entry::Search) {
        EXPECT_EQ(events, Events());
      }
      ExpectSaved(now, false);
    }
  }

  void ExpectSaved(const ManagerLists& now, bool has) {
    if (has) {
      file = FileOf(now);
      saved = now;
    }
    EXPECT_EQ(ReadWorking(), file);
    EXPECT_TRUE(fileAtCall.empty() || fileAtCall == file || entry == Entry::Select)
        << "told before it was saved";
  }

  void ExpectEditorOfLists(const ManagerLists& now, const ListTexts& lists, const ListTexts& held,
                           const ListTexts& old) {
    const bool cloud = entry == Entry::Cloud;
    const bool changed = cloud ? lists != held : !now.HasSameUserLists(known);
    EXPECT_TRUE(cloud || now.cloud == known.cloud);
    Events expected;
    const int kept = AddedByOthers(held, old);
    if (kept > 0 && (changed || !events.empty())) // an edit that came to what others did too
      expected.push_back(KeptLine(kept));
    if (changed) {
      for (const ListText& list : cloud ? lists : ListTexts())
        expected.push_back(CloudLine(list));
      const std::string line =
          std::string("64 ") + kEntryNames[static_cast<int>(entry)] + TQ_CHANGED;
      const std::string code = cloud ? "41 " : "40 ";
      if (lists.size() != old.size())
        Append(expected, line + "(nNewSymbolListCnt != nOldSymbolListCnt)",
               code + "'ListCntChange'");
      else if (lists.size() == held.size() && NamesOf(lists) != NamesOf(held))
        Append(expected, line + "(bListNameChange)", code + "'ListNameChange'");
      else
        Append(expected, line, code + "''");
      ExpectMerged(lists, held, old, true);
    }
    EXPECT_EQ(events, expected);
  }
  // The one that the user left, or the one that others chose and the user did not.
  void ExpectDefault(const ManagerLists& now) {
    if (now.HasSameUserLists(known) || !marksAreKnown || now.user.empty())
      return;
    int expected = std::clamp(marked, 0, static_cast<int>(now.user.size()) - 1);
    if (known.defaultIndex != before.defaultIndex &&
        IdAt(now, marked) == IdAt(before, before.defaultIndex)) {
      const ListText* const chosen = FindList(now.user, IdAt(known, known.defaultIndex));
      expected = chosen == nullptr ? expected : static_cast<int>(chosen - now.user.data());
    }
    EXPECT_EQ(now.defaultIndex, expected) << "the default list";
  }
  static std::string IdAt(const ManagerLists& lists, int index) {
    return index < 0 || index >= static_cast<int>(lists.user.size())
               ? ""
               : lists.user[static_cast<std::size_t>(index)].id;
  }
  static void Append(Events& events, const std::string& line, const std::string& call) {
    events.push_back(line);
    events.push_back(call);
  }

  // Lists that others added stand last, in their order; names are those that the user saw; nothing
  // else is gone or other than the user left it.
  void ExpectMerged(const ListTexts& lists, const ListTexts& held, const ListTexts& old,
                    bool mayDelete) {
    ListTexts added;
    std::copy_if(held.begin(), held.end(), std::back_inserter(added),
                 [&old](const ListText& list) { return FindList(old, list.id) == nullptr; });
    ASSERT_GE(lists.size(), added.size());
    EXPECT_TRUE(std::equal(added.begin(), added.end(), lists.end() - Size(added)))
        << "others' lists";
    if (shown) {
      ASSERT_EQ(lists.size(), shown->size() + added.size());
    }
    for (std::size_t i = 0; i < lists.size() - added.size(); ++i)
      ExpectUsersOrOthers(lists[i], held, old, i);
    for (const ListText& list : held)
      EXPECT_TRUE(mayDelete || FindList(lists, list.id) != nullptr) << list.id << " is gone";
  }
  static std::ptrdiff_t Size(const ListTexts& lists) {
    return static_cast<std::ptrdiff_t>(lists.size());
  }
  void ExpectUsersOrOthers(const ListText& list, const ListTexts& held, const ListTexts& old,
                           std::size_t place) {
    const ListText* const was = FindList(old, list.id);
    const ListText* const is = FindList(held, list.id);
    const bool othersStand = is != nullptr && *is == list;
    if (shown && !othersStand) {
      EXPECT_EQ(standin::FromAnsi(list.name) + MarkOf(list), (*shown)[place]);
    }
    if (was == nullptr) {
      EXPECT_GT(storedContents, 0) << "a new list out of nothing: " << list.id;
    } else if (!othersStand && storedContents == 0 && !IsAdding()) {
      EXPECT_EQ(list.ids, was->ids) << "nobody edited " << list.id;
    }
  }

  // One list is as the caller's, where it is there and another one.
  void ExpectOneEdited(const ListTexts& lists, const ListTexts& held) {
    ListTexts expected = held;
    ASSERT_EQ(lists.size(), held.size());
    for (std::size_t i = 0; i < held.size() && result == 1; ++i) {
      if (held[i].id == editedId && !editedId.empty())
        expected[i] = edited.value_or(lists[i]);
    }
    EXPECT_TRUE(lists == expected) << "not as edited: " << editedId;
    if (result == 1) {
      EXPECT_GT(storedContents, 0);
      ExpectAsShown(edited ? &*edited : FindList(lists, editedId));
    }
  }
  // What the user saw when it was done; headings have no blanks here.
  void ExpectAsShown(const ListText* list) {
    if (list == nullptr || !rows)
      return;
    std::vector<std::string> visible;
    for (const std::string& piece : PiecesOf(list->ids)) {
      if (unknown.count(piece) == 0)
        visible.push_back(
            standin::FromAnsi(IsHeadingPiece(piece) ? piece.substr(0, piece.size() - 1) : piece));
    }
    EXPECT_EQ(visible, *rows);
    const size_t from = typedName.find_first_not_of(' ');
    ASSERT_NE(from, std::string::npos);
    EXPECT_EQ(standin::FromAnsi(list->name),
              typedName.substr(from, typedName.find_last_not_of(' ') + 1 - from));
  }

  void ExpectCloudListEdited(const ManagerLists& now) {
    EXPECT_TRUE(now.HasSameUserLists(known));
    ExpectOneEdited(now.cloud, known.cloud);
    Events expected;
    if (now.cloud != known.cloud) {
      expected = LinesOfCloudLoad();
      expected.insert(expected.begin(), CloudLine(*FindList(now.cloud, editedId)));
    }
    EXPECT_EQ(events, expected);
    ExpectSaved(now, false);
  }

  void ExpectAdding(const ManagerLists& now) {
    const bool changed = now.user != known.user;
    EXPECT_EQ(now.cloud, known.cloud);
    Events expected;
    const int kept = AddedByOthers(known.user, before.user);
    if (kept > 0 && (changed || events.size() > (entry == Entry::Symbols ? 1u : 0u)))
      expected.push_back(KeptLine(kept));
    if (changed)
      Append(expected, std::string("64 ") + kEntryNames[static_cast<int>(entry)] + TQ_CHANGED,
             entry == Entry::Symbols ? "4 ''" : "40 ''");
    if (entry == Entry::Symbols)
      expected.emplace_back("40 ''");
    EXPECT_EQ(events, expected);
    if (!changed) {
      EXPECT_EQ(now.defaultIndex, known.defaultIndex);
      return;
    }
    ExpectMerged(now.user, known.user, before.user, false);
    if (storedContents == 0)
      ExpectOnlyAdded(now);
    const bool inRange =
        known.defaultIndex >= 0 && known.defaultIndex < static_cast<int>(known.user.size());
    EXPECT_TRUE(!inRange || now.defaultIndex == known.defaultIndex) << "the default list";
  }
  // Nothing but what was given, behind what was there, and to one list where one click closes.
  void ExpectOnlyAdded(const ManagerLists& now) {
    int changed = 0;
    for (const ListText& list : now.user) {
      const ListText* const was = FindList(before.user, list.id);
      const ListText* const is = FindList(known.user, list.id);
      if (was == nullptr || list == *was || (is != nullptr && *is == list))
        continue;
      ++changed;
      ASSERT_EQ(list.ids.rfind(was->ids, 0), 0u) << list.id;
      for (const std::string& piece : PiecesOf(list.ids.substr(was->ids.size()))) {
        EXPECT_TRUE(piece.empty() ||
                    ("," + given + ",").find("," + piece + ",") != std::string::npos)
            << piece;
      }
    }
    EXPECT_TRUE(changed <= 1 || entry == Entry::OneSymbol) << changed;
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

  const std::set<std::string> unknown = {"gone.TW", "none.TE", "lost.TW", "2317"};
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
  RunOne();
  const size_t windows = WindowResources();
  Walk(RandomActions() / 4);
  EXPECT_LE(WindowResources(), windows + ResourceSlack());
}

INSTANTIATE_TEST_SUITE_P(Seeds, AllDialogsWalk, testing::Values(1U, 2U, 3U, 4U));

} // namespace
