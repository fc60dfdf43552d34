// What an operation that opens a dialog had to change, save, log and tell, by its documentation:
// `before` is what was when it opened, `known` what was when it closed.
#pragma once

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "tests/interface/AllDialogsSession.h"

class AllDialogsEffects : public AllDialogsSession {
protected:
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
      const std::string line = ChangeLine(entry);
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
      Append(expected, ChangeLine(entry), entry == Entry::Symbols ? "4 ''" : "40 ''");
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

  static int AddedByOthers(const ListTexts& held, const ListTexts& old) {
    return static_cast<int>(std::count_if(held.begin(), held.end(), [&old](const ListText& list) {
      return FindList(old, list.id) == nullptr;
    }));
  }
  static std::string KeptLine(int count) {
    return "64 Lists added while others were edited, kept: " + std::to_string(count);
  }
  static Texts NamesOf(const ListTexts& lists) {
    Texts texts;
    for (const ListText& list : lists)
      texts.push_back(list.name);
    return texts;
  }
  bool IsAdding() const { return entry == Entry::OneSymbol || entry == Entry::Symbols; }

  // Ids that no service knows: no dialog shows them.
  const std::set<std::string> unknown = {"gone.TW", "none.TE", "lost.TW", "2317"};
};
