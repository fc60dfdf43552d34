// The list editors under a user who does anything.
#include <algorithm>

#include "platform/services/tqCommon.h"
#include "tests/interface/EditorWalk.h"

namespace {

struct ModelList {
  std::string name;
  std::string ids;
  bool operator==(const ModelList&) const = default;
};

// What a user would say that the editor does.
struct ListsModel {
  std::vector<ModelList> lists;
  int selected = 0;
  int marked = 0;

  bool IsAs(const ListsModel& other) const {
    return lists == other.lists && marked == other.marked;
  }
  int Count() const { return static_cast<int>(lists.size()); }
  bool Has(const std::string& name, int except) const {
    for (int i = 0; i < Count(); ++i) {
      if (i != except && lists[static_cast<std::size_t>(i)].name == name)
        return true;
    }
    return false;
  }
  ModelList& Selected() { return lists[static_cast<std::size_t>(selected)]; }
  void Delete() {
    lists.erase(lists.begin() + selected);
    const int next = std::min(selected, Count() - 1);
    if (marked == selected)
      marked = next;
    else if (selected < marked)
      --marked;
    selected = next;
  }
  void Move(int step) {
    const int other = selected + step;
    if (selected < 0 || other < 0 || other >= Count())
      return;
    std::swap(lists[static_cast<std::size_t>(selected)], lists[static_cast<std::size_t>(other)]);
    if (marked == selected)
      marked = other;
    else if (marked == other)
      marked = selected;
    selected = other;
  }
};

class ListsEditorWalk : public EditorWalk {
protected:
  static constexpr int kLists = 781;
  static constexpr int kContents = 782;

  void Walk(User& user, int actions) {
    for (int i = 0; i < actions && user.IsUp(); ++i) {
      const ListsModel before = model;
      Act(user);
      ASSERT_NO_FATAL_FAILURE(Compare(user)) << "action " << i;
      if (!model.IsAs(before)) {
        journal.Did(before, model);
        ASSERT_NO_FATAL_FAILURE(Go(user, true)) << "action " << i;
        ASSERT_NO_FATAL_FAILURE(Go(user, false)) << "action " << i;
      }
      for (int steps = Draw(50) == 0 ? Draw(6) : 0; steps > 0; --steps)
        ASSERT_NO_FATAL_FAILURE(Go(user, Draw(3) > 0)) << "action " << i;
      if (i % 500 == 0)
        Forget();
    }
  }
  // One step back or forth, or none where there is none.
  void Go(User& user, bool back) {
    if (journal.CanGo(back))
      model = journal.Go(back);
    PressStep(user, back);
    ASSERT_NO_FATAL_FAILURE(Compare(user));
  }
  void GoAllTheWayAndBack(User& user, const ListsModel& opened) {
    for (const bool back : {true, false}) {
      while (journal.CanGo(back))
        ASSERT_NO_FATAL_FAILURE(Go(user, back));
      ASSERT_NO_FATAL_FAILURE(Go(user, back));
      ASSERT_TRUE(!back || model.IsAs(opened));
      Forget();
    }
  }

  void Act(User& user) {
    switch (Draw(40)) { // dialogs that open others take their time
    default:
      if (model.Count() > 0) {
        model.selected = Draw(model.Count());
        EXPECT_TRUE(user.ClickRow(kLists, model.selected));
      }
      return;
    case 1:
      return MakeNew(user);
    case 2:
      return EditSelected(user);
    case 3:
      return DeleteSelected(user);
    case 4:
      return Rename(user);
    case 5:
      return MarkDefault(user);
    case 6:
    case 7:
    case 8: {
      const int step = Draw(2) == 0 ? -1 : 1;
      EXPECT_EQ(user.Click(step < 0 ? 807 : 808), CanMove(step));
      model.Move(step);
    }
    }
  }

  bool CanMove(int step) const {
    const int other = model.selected + step;
    return model.selected >= 0 && other >= 0 && other < model.Count();
  }

  void MakeNew(User& user) {
    const std::string name = DrawOf(names);
    const bool taken = model.Has(name, -1);
    const bool keep = model.Count() < 7;
    WhenDialogOpens([&](User& editor) {
      EXPECT_TRUE(editor.Fill(742, name));
      EXPECT_TRUE(editor.Fill(741, "2330"));
      EXPECT_TRUE(editor.Press(WindowKey::Enter));
      if (keep) {
        EXPECT_TRUE(editor.Click(1));
      }
      EXPECT_EQ(editor.IsUp(), !keep || taken);
      if (editor.IsUp()) {
        EXPECT_TRUE(editor.Click(2));
      }
    });
    EXPECT_TRUE(user.Click(801));
    if (!keep || taken)
      return;
    model.lists.push_back({name, "2330.TW"});
    model.selected = model.Count() - 1;
    if (model.Count() == 1)
      model.marked = 0;
  }

  void EditSelected(User& user) {
    if (model.selected < 0) {
      EXPECT_FALSE(user.Click(802));
      return;
    }
    const bool done = Draw(2) == 0;
    ModelList& list = model.Selected();
    const bool has = list.ids.find("2317.TW") != std::string::npos;
    WhenDialogOpens([&](User& editor) {
      EXPECT_EQ(editor.Text(742), list.name);
      EXPECT_TRUE(editor.Fill(741, "2317"));
      EXPECT_TRUE(editor.Press(WindowKey::Enter));
      EXPECT_TRUE(editor.Click(done ? 1 : 2));
    });
    EXPECT_TRUE(Draw(2) == 0 ? user.Click(802) : user.DoubleClick(kLists, model.selected));
    if (done && !has)
      list.ids += ",2317.TW";
  }

  void DeleteSelected(User& user) {
    const bool can = model.selected >= 0 && !isSystem(model.Selected());
    const bool yes = DrawAnswer();
    EXPECT_EQ(user.Click(803), can);
    if (can && yes)
      model.Delete();
  }

  void Rename(User& user) {
    if (model.selected < 0) {
      EXPECT_FALSE(user.Click(804));
      return;
    }
    const std::string name = DrawOf(names);
    const bool taken = model.Has(name, model.selected);
    EXPECT_TRUE(user.Click(804));
    EXPECT_TRUE(user.HasFocus(741));
    EXPECT_TRUE(user.Type(name));
    const bool done = Draw(3) > 0;
    EXPECT_TRUE(user.Press(done ? WindowKey::Enter : WindowKey::Escape));
    EXPECT_EQ(user.IsVisible(741), done && taken);
    if (user.IsVisible(741)) {
      EXPECT_TRUE(user.Press(WindowKey::Escape));
    }
    if (done && !taken)
      model.Selected().name = name;
  }

  virtual void MarkDefault(User& user) {
    EXPECT_EQ(user.Click(805), model.Count() > 0);
    if (model.selected >= 0)
      model.marked = model.selected;
  }

  void Compare(User& user) {
    Texts shown;
    for (const ModelList& list : model.lists)
      shown.push_back(list.name + (isSystem(list) ? mark : ""));
    ASSERT_EQ(user.Rows(kLists), shown);
    ASSERT_EQ(user.SelectedRows(kLists),
              model.selected < 0 ? std::vector<int>() : std::vector<int>{model.selected});
    ASSERT_EQ(user.Rows(kContents).size(), model.selected < 0 ? 0u : CountOf(model.Selected().ids));
    ASSERT_EQ(user.IsEnabled(802), model.selected >= 0);
    ASSERT_EQ(user.IsEnabled(803), model.selected >= 0 && !isSystem(model.Selected()));
    ASSERT_EQ(user.IsEnabled(807), CanMove(-1));
    ASSERT_EQ(user.IsEnabled(808), CanMove(1));
    ASSERT_FALSE(user.IsVisible(741));
    ASSERT_EQ(MarkedRow(user), ShownMark());
  }
  // Of the list that is drawn as the default one, or -1.
  int MarkedRow(const User& user) const {
    int row = model.Count() - 1;
    CDialog& dialog = *CDialog::FromHandle(user.Dialog().GetSafeHwnd());
    while (row >= 0 && !tq::DialogAccess::Look(dialog, kLists, row).marked)
      --row;
    return row;
  }
  virtual int ShownMark() const { return model.marked; }

  static std::size_t CountOf(const std::string& ids) {
    return ids.empty() ? 0 : static_cast<std::size_t>(std::count(ids.begin(), ids.end(), ',')) + 1;
  }
  // Names change hands, but no other list has these symbols.
  static bool isSystem(const ModelList& list) { return list.ids.rfind("1101.TW", 0) == 0; }
  std::string Expected() const {
    std::string text;
    for (const ModelList& list : model.lists)
      text += (text.empty() ? "" : "|") + list.name + "/" + list.ids;
    return text;
  }
  // Names and symbols of the manager's lists, as UTF-8.
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

  const std::string mark = IsTraditionChinese() != 0 ? "(系統)" : "(系统)";
  const Texts names = {"one", "Two", "two", "中文", "3", "four"};
  ListsModel model;
  StepJournal<ListsModel> journal;
};

TEST_F(ListsEditorWalk, TheEditorOfTheUsersListsDoesWhatAPlainModelDoes) {
  StartWith({"A/one/2330.TW", "ZUSYSLIST1/sys/1101.TW", "C/three/2454.TW"});
  model.lists = {{"one", "2330.TW"}, {"sys", "1101.TW"}, {"three", "2454.TW"}};
  const std::string before = Stored(kUserLists);
  WhenDialogOpens([&](User& user) {
    const ListsModel opened = model;
    ASSERT_NO_FATAL_FAILURE(Walk(user, RandomActions(1)));
    ASSERT_NO_FATAL_FAILURE(GoAllTheWayAndBack(user, opened));
    EXPECT_EQ(Stored(kUserLists), before); // nothing is stored while it is open
    EXPECT_TRUE(user.Click(806));
  });
  EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), 1);
  EXPECT_EQ(Stored(kUserLists), Expected());
  EXPECT_EQ(DefaultIndex(), model.marked);
}

class CloudEditorWalk : public ListsEditorWalk {
protected:
  void MarkDefault(User& user) override { EXPECT_FALSE(user.Click(805)); } // it has none
  int ShownMark() const override { return -1; }
};

TEST_F(CloudEditorWalk, TheEditorOfTheCloudListsDoesWhatAPlainModelDoes) {
  StartWith({"A/mine/2330.TW"});
  manager.AddCloudSymbolList("K1", "one", "2330.TW", 0);
  manager.AddCloudSymbolList("K2", "three", "2454.TW", 0);
  model.lists = {{"one", "2330.TW"}, {"three", "2454.TW"}};
  const std::string before = Stored(kCloudLists);
  WhenDialogOpens([&](User& user) {
    const ListsModel opened = model;
    ASSERT_NO_FATAL_FAILURE(Walk(user, RandomActions(2) / 2));
    ASSERT_NO_FATAL_FAILURE(GoAllTheWayAndBack(user, opened));
    EXPECT_EQ(Stored(kCloudLists), before);
    EXPECT_TRUE(user.Click(806));
  });
  EXPECT_EQ(manager.DoCloudSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), 1);
  EXPECT_EQ(Stored(kCloudLists), Expected());
  EXPECT_EQ(Shape(), "A/mine/2330.TW");
}

} // namespace
