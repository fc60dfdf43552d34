// The selection, and one symbol to lists, under a user who does anything.
#include <algorithm>

#include "tests/interface/EditorWalk.h"

namespace {

struct NamedList {
  std::string name;
  std::string ids;
};
using NamedLists = std::vector<NamedList>;

class NamedListsWalk : public EditorWalk {
protected:
  static Texts NamesOf(const NamedLists& lists) {
    Texts texts;
    for (const NamedList& list : lists)
      texts.push_back(list.name);
    return texts;
  }
  static bool HasName(const NamedLists& lists, const std::string& name) {
    return std::any_of(lists.begin(), lists.end(),
                       [&name](const NamedList& list) { return list.name == name; });
  }
  static bool HasSymbol(const NamedList& list, const std::string& id) {
    return list.ids.find(id) != std::string::npos;
  }
  static void AddSymbol(NamedList& list, const std::string& id) {
    if (!HasSymbol(list, id))
      list.ids += (list.ids.empty() ? "" : ",") + id;
  }
  std::string Stored(int kind) {
    std::string text;
    CString id;
    CString name;
    CString ids;
    for (int i = 0; manager.GetSymbolListInfo(i, id, name, ids, kind) != 0; ++i)
      text +=
          (text.empty() ? "" : "|") + standin::FromAnsi(name.GetString()) + "/" + ids.GetString();
    return text;
  }
  static std::string Joined(const NamedLists& lists) {
    std::string text;
    for (const NamedList& list : lists)
      text += (text.empty() ? "" : "|") + list.name + "/" + list.ids;
    return text;
  }

  const Texts names = {"one", "Two", "two", "中文", "3", "four"};
};

class SelectionWalk : public NamedListsWalk {
protected:
  void Walk(User& user, int actions) {
    for (int i = 0; i < actions && user.IsUp(); ++i) {
      Act(user);
      if (Lists() != nullptr) {
        ASSERT_EQ(user.Rows(781), NamesOf(*Lists())) << "action " << i;
      }
      ASSERT_EQ(user.IsEnabled(801), Lists() != nullptr);
      ASSERT_EQ(user.IsEnabled(803), Lists() != nullptr && !user.SelectedRows(781).empty());
      ASSERT_EQ(Stored(kCloudLists), Joined(cloud)); // at once
      if (i % 200 == 0)
        Forget();
    }
  }
  void Act(User& user) {
    switch (Draw(24)) {
    case 0:
      source = Draw(static_cast<int>(user.Rows(761).size()));
      EXPECT_TRUE(user.Select(761, source));
      EXPECT_EQ(user.SelectedRows(781), source == 0 ? std::vector<int>{0} : std::vector<int>());
      return;
    case 1:
      return MakeNew(user);
    case 2:
      return Delete(user);
    case 3:
      return Edit(user);
    default: {
      const int rows = static_cast<int>(user.Rows(781).size());
      if (rows > 0) {
        EXPECT_TRUE(user.ClickRow(781, Draw(rows)));
      }
    }
    }
  }
  // The lists of the source, or null: entry 1 are the user's, 3 those of the cloud.
  NamedLists* Lists() { return source == 1 ? &own : source == 3 ? &cloud : nullptr; }

  void MakeNew(User& user) {
    NamedLists* const lists = Lists();
    if (lists == nullptr || lists->size() > 6) {
      EXPECT_TRUE(lists != nullptr || !user.Click(801));
      return;
    }
    const std::string name = DrawOf(names);
    const bool taken = HasName(*lists, name);
    WhenDialogOpens([&](User& editor) {
      EXPECT_TRUE(editor.Fill(742, name));
      EXPECT_TRUE(editor.Click(1));
      EXPECT_EQ(editor.IsUp(), taken);
      if (editor.IsUp()) {
        EXPECT_TRUE(editor.Click(2));
      }
    });
    EXPECT_TRUE(user.Click(801));
    if (taken)
      return;
    lists->push_back({name, ""});
    if (source == 1 && marked < 0)
      marked = 0;
    EXPECT_EQ(user.SelectedRows(781), std::vector<int>{static_cast<int>(lists->size()) - 1});
  }
  void Delete(User& user) {
    NamedLists* const lists = Lists();
    const std::vector<int> rows = user.SelectedRows(781);
    const bool can = lists != nullptr && !rows.empty();
    const bool yes = DrawAnswer();
    EXPECT_EQ(user.Click(803), can);
    if (!can || !yes)
      return;
    lists->erase(lists->begin() + rows.front());
    if (source == 1 && rows.front() <= marked)
      --marked;
    const int next = std::min(rows.front(), static_cast<int>(lists->size()) - 1);
    EXPECT_EQ(user.SelectedRows(781), next < 0 ? std::vector<int>() : std::vector<int>{next});
  }
  void Edit(User& user) {
    NamedLists* const lists = Lists();
    const std::vector<int> rows = user.SelectedRows(781);
    if (lists == nullptr || rows.empty()) {
      EXPECT_FALSE(user.Click(802));
      return;
    }
    NamedList& list = (*lists)[static_cast<std::size_t>(rows.front())];
    const std::string code = DrawOf(Texts{"2330", "2317", "1436"});
    const bool done = Draw(2) == 0;
    WhenDialogOpens([&](User& editor) {
      EXPECT_EQ(editor.Text(742), list.name);
      EXPECT_TRUE(editor.Fill(741, code));
      EXPECT_TRUE(editor.Press(WindowKey::Enter));
      EXPECT_TRUE(editor.Click(done ? 1 : 2));
    });
    EXPECT_TRUE(user.Click(802));
    if (done)
      AddSymbol(list, code + ".TW");
    EXPECT_EQ(user.SelectedRows(781), rows);
  }

  int source = 1;
  int marked = 0;
  NamedLists own;
  NamedLists cloud;
};

TEST_F(SelectionWalk, DoesWhatAPlainModelDoes) {
  StartWith({"A/one/2330.TW", "B/Two/2317.TW"});
  manager.AddCloudSymbolList("K1", "four", "2330.TW", 0);
  own = {{"one", "2330.TW"}, {"Two", "2317.TW"}};
  cloud = {{"four", "2330.TW"}};
  const std::string before = Stored(kUserLists);
  WhenDialogOpens([&](User& user) {
    ASSERT_NO_FATAL_FAILURE(Walk(user, RandomActions(2)));
    EXPECT_EQ(Stored(kUserLists), before); // those of the user with OK
    EXPECT_TRUE(user.Select(761, 0));
    EXPECT_TRUE(user.Click(1));
  });
  int kind = 1;
  CString text = "A";
  EXPECT_EQ(CTQSymbolListMgr::DoSelectUI(&manager, manager.GetSymbolTableMgr(), nullptr, &kind,
                                         text, 0, false),
            1);
  EXPECT_EQ(kind, 4);
  EXPECT_EQ(Stored(kUserLists), Joined(own));
  EXPECT_EQ(DefaultIndex(), own.empty() ? marked : std::max(marked, 0));
}

class OneSymbolWalk : public NamedListsWalk {
protected:
  void Walk(User& user, int actions) {
    for (int i = 0; i < actions && user.IsUp(); ++i) {
      Act(user);
      ASSERT_EQ(user.Rows(781), NamesOf(lists)) << "action " << i;
      ASSERT_EQ(user.SelectedRows(781), std::vector<int>{static_cast<int>(selected)});
      const std::string& ids = lists[selected].ids;
      ASSERT_EQ(user.Rows(782).size(),
                ids.empty() ? 0u
                            : 1u + static_cast<unsigned>(std::count(ids.begin(), ids.end(), ',')));
      if (i % 200 == 0)
        Forget();
    }
  }
  void Act(User& user) {
    switch (Draw(40)) { // dialogs that open others take their time
    case 0: {
      const bool has = HasSymbol(lists[selected], symbol);
      const std::size_t shown = standin::Messages().size();
      EXPECT_TRUE(user.Click(803));
      EXPECT_EQ(standin::Messages().size(), shown + (has ? 1u : 0u));
      return AddSymbol(lists[selected], symbol);
    }
    case 1:
      return AddAndEdit(user);
    case 2:
      return AddToNew(user);
    default:
      selected = static_cast<std::size_t>(Draw(static_cast<int>(lists.size())));
      EXPECT_TRUE(user.ClickRow(781, static_cast<int>(selected)));
    }
  }
  // With the last row taken out again, or cancelled.
  void AddAndEdit(User& user) {
    NamedList& list = lists[selected];
    const int what = Draw(3);
    WhenDialogOpens([&](User& editor) {
      const std::vector<std::string> rows = editor.Rows(781);
      if (what == 0) {
        EXPECT_TRUE(editor.ClickRow(781, static_cast<int>(rows.size()) - 2));
        EXPECT_TRUE(editor.Click(803));
      }
      EXPECT_TRUE(editor.Click(what == 1 ? 2 : 1));
    });
    EXPECT_TRUE(user.Click(802));
    if (what == 1)
      return;
    AddSymbol(list, symbol);
    if (what == 0)
      DropLast(list);
  }
  static void DropLast(NamedList& list) {
    const std::size_t comma = list.ids.rfind(',');
    list.ids.erase(comma == std::string::npos ? 0 : comma);
  }
  void AddToNew(User& user) {
    if (lists.size() > 6)
      return;
    const std::string name = DrawOf(names);
    const bool taken = HasName(lists, name);
    WhenDialogOpens([&](User& editor) {
      EXPECT_TRUE(editor.Fill(742, name));
      EXPECT_TRUE(editor.Click(1));
      EXPECT_EQ(editor.IsUp(), taken);
      if (editor.IsUp()) {
        EXPECT_TRUE(editor.Click(2));
      }
    });
    EXPECT_TRUE(user.Click(801));
    if (taken)
      return;
    lists.push_back({name, symbol});
    selected = lists.size() - 1;
  }

  const std::string symbol = "2454.TW";
  NamedLists lists;
  std::size_t selected = 0;
};

TEST_F(OneSymbolWalk, DoesWhatAPlainModelDoes) {
  StartWith({"A/one/2330.TW,1101.TW", "B/Two/2317.TW"});
  lists = {{"one", "2330.TW,1101.TW"}, {"Two", "2317.TW"}};
  const std::string before = Stored(kUserLists);
  WhenDialogOpens([&](User& user) {
    ASSERT_NO_FATAL_FAILURE(Walk(user, RandomActions(1)));
    EXPECT_EQ(Stored(kUserLists), before);
    EXPECT_TRUE(user.Click(1));
  });
  EXPECT_EQ(CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr,
                                               symbol.c_str()),
            1);
  EXPECT_EQ(Stored(kUserLists), Joined(lists));
}

} // namespace
