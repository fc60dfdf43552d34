// The content editor under a user who does anything.
#include <algorithm>
#include <map>

#include "platform/framework/window/CListBox.h"
#include "tests/interface/EditorWalk.h"

namespace {

// Entries as the list's string has them; a "?" in front of those that have no row.
class ContentsModel {
public:
  using Texts = std::vector<std::string>;

  Texts Rows() const {
    Texts rows;
    for (const std::string& entry : entries) {
      if (entry.front() != '?')
        rows.push_back(entry);
    }
    return rows;
  }
  std::string Ids() const {
    std::string ids;
    for (const std::string& entry : entries)
      ids += (ids.empty() ? "" : ",") + entry.substr(entry.front() == '?' ? 1 : 0);
    return ids;
  }
  bool Has(const std::string& id) const {
    return std::find(entries.begin(), entries.end(), id) != entries.end();
  }
  int Count() const {
    return static_cast<int>(std::count_if(entries.begin(), entries.end(),
                                          [](const auto& entry) { return entry.front() != '?'; }));
  }
  std::vector<std::string>::iterator PlaceOf(int row) {
    auto at = entries.begin();
    for (; at != entries.end(); ++at) {
      if (at->front() != '?' && row-- == 0)
        break;
    }
    return at;
  }
  // Behind the last row is the end, behind what has no row too.
  void Insert(int row, const std::vector<std::string>& ids) {
    for (const std::string& id : ids) {
      if (!IsHeading(id) && Has(id))
        continue;
      entries.insert(PlaceOf(row), id);
      ++row;
    }
  }
  static bool IsHeading(const std::string& entry) { return entry.back() == ':'; }

  Texts entries;
};

class ContentEditorWalk : public EditorWalk {
protected:
  static constexpr int kRows = 781;
  static constexpr int kResults = 782;
  static constexpr int kCode = 741;
  static constexpr int kSubTitle = 743;

  struct State {
    Texts entries;
    std::vector<int> selected;
    int caret;
    bool operator==(const State&) const = default;
  };
  State Now(User& user) const {
    return {model.entries, user.SelectedRows(kRows), CListBox(*dialog, kRows).GetCaretIndex()};
  }

  void Walk(User& user, int actions) {
    for (int i = 0; i < actions && user.IsUp(); ++i) {
      before = Now(user);
      moved = false;
      Act(user);
      ASSERT_EQ(user.Rows(kRows), Expected()) << "action " << i;
      if (moved || model.entries != before.entries)
        journal.Did(before, Now(user));
      for (int steps = Draw(10) == 0 ? Draw(6) : 0; steps > 0; --steps)
        ASSERT_NO_FATAL_FAILURE(Go(user, Draw(3) > 0)) << "action " << i;
      if (i % 200 == 0)
        Forget();
    }
  }
  // One step back or forth, or none where there is none.
  void Go(User& user, bool back) {
    const State then = journal.CanGo(back) ? journal.Go(back) : Now(user);
    PressStep(user, back);
    model.entries = then.entries;
    ASSERT_EQ(user.Rows(kRows), Expected());
    ASSERT_TRUE(Now(user) == then);
  }
  void GoAllTheWay(User& user, bool back) {
    while (journal.CanGo(back))
      ASSERT_NO_FATAL_FAILURE(Go(user, back));
    ASSERT_NO_FATAL_FAILURE(Go(user, back));
    Forget();
  }

  void Act(User& user) {
    selected = user.SelectedRows(kRows);
    selected.erase(std::remove(selected.begin(), selected.end(), model.Count()), selected.end());
    switch (Draw(12)) {
    case 0:
      return Shorten(user);
    case 1:
    case 2:
      return SelectRow(user);
    case 3:
    case 4:
      return TypeCode(user);
    case 5:
      return Heading(user);
    case 6:
    case 7:
      return Move(user, Draw(2) == 0);
    case 8:
      return Sort(user);
    case 9:
      return ShowGroup(user);
    default:
      return Pick(user);
    }
  }

  // Lists that grow are cut now and then.
  void Shorten(User& user) {
    if (model.Count() > 9) {
      EXPECT_TRUE(user.ClickRow(kRows, 0) && user.ClickRow(kRows, 5, Modifier::Shift));
    } else if (model.Count() > 0) {
      EXPECT_TRUE(user.ClickRow(kRows, Draw(model.Count())));
    }
    before = Now(user);
    Remove(user);
  }
  void Remove(User& user) {
    selected = user.SelectedRows(kRows);
    selected.erase(std::remove(selected.begin(), selected.end(), model.Count()), selected.end());
    EXPECT_EQ(user.Click(803), !selected.empty());
    for (auto row = selected.rbegin(); row != selected.rend(); ++row)
      model.entries.erase(model.PlaceOf(*row));
  }

  void SelectRow(User& user) {
    const Modifier modifiers[] = {Modifier::None, Modifier::None, Modifier::Control,
                                  Modifier::Shift};
    EXPECT_TRUE(user.ClickRow(kRows, Draw(model.Count() + 1), modifiers[Draw(4)]));
  }

  int Place(User& user) const {
    const std::vector<int> rows = user.SelectedRows(kRows);
    return rows.empty() ? model.Count() : rows.front();
  }

  void TypeCode(User& user) {
    const std::string id = DrawOf(ids);
    const std::size_t shown = standin::Messages().size();
    const int place = Place(user);
    EXPECT_TRUE(user.Fill(kCode, id.substr(0, id.find('.'))));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_EQ(user.Text(kCode), "");
    EXPECT_EQ(standin::Messages().size() > shown, model.Has(id));
    if (model.Has(id)) {
      EXPECT_EQ(standin::Messages().back().id, 48019u);
      const Texts rows = model.Rows();
      const auto at = std::find(rows.begin(), rows.end(), id) - rows.begin();
      EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{static_cast<int>(at)});
    }
    model.Insert(place, {id});
  }

  void Heading(User& user) {
    if (model.Count() > 14)
      return;
    const int place = Place(user);
    const std::string text = DrawOf(titles);
    EXPECT_TRUE(user.Fill(kSubTitle, text));
    EXPECT_TRUE(Draw(2) == 0 ? user.Press(WindowKey::Enter) : user.Click(808));
    if (place < model.Count() && ContentsModel::IsHeading(*model.PlaceOf(place)))
      *model.PlaceOf(place) = text + ":";
    else
      model.Insert(place, {text + ":"});
  }

  void Move(User& user, bool up) {
    const bool can =
        !selected.empty() && (up ? selected.front() > 0 : selected.back() < model.Count() - 1);
    EXPECT_EQ(user.Click(up ? 801 : 802), can);
    if (!can)
      return;
    moved = true; // also past a sub-title of the same text
    if (!up)
      std::reverse(selected.begin(), selected.end());
    for (const int row : selected)
      std::iter_swap(model.PlaceOf(row), model.PlaceOf(row + (up ? -1 : 1)));
  }

  // The symbols of each heading by themselves; what has no row keeps its place.
  void Sort(User& user) {
    EXPECT_TRUE(user.Click(804));
    Texts rows = model.Rows();
    for (auto first = rows.begin(); first != rows.end();) {
      const auto last = std::find_if(first, rows.end(), ContentsModel::IsHeading);
      std::sort(first, last);
      first = last == rows.end() ? last : last + 1;
    }
    for (int row = 0; row < model.Count(); ++row)
      *model.PlaceOf(row) = rows[static_cast<std::size_t>(row)];
  }

  void ShowGroup(User& user) {
    EXPECT_TRUE(user.Select(761, Draw(4)));
    if (user.Rows(762).size() > 1) {
      EXPECT_TRUE(user.Select(762, Draw(static_cast<int>(user.Rows(762).size()))));
    }
  }

  // A row of the results by a double-click, or several by the button.
  void Pick(User& user) {
    const Texts results = user.Rows(kResults);
    if (results.empty() || model.Count() > 14)
      return;
    const int caret = CListBox(*dialog, kRows).GetCaretIndex();
    const int row = Draw(static_cast<int>(results.size()));
    const auto idOf = [&results](int at) {
      const std::string& text = results[static_cast<std::size_t>(at)];
      return text.substr(0, text.find(' '));
    };
    if (Draw(2) == 0) {
      EXPECT_TRUE(user.DoubleClick(kResults, row));
      model.Insert(caret, {idOf(row)});
      return;
    }
    EXPECT_TRUE(user.ClickRow(kResults, 0));
    EXPECT_TRUE(user.ClickRow(kResults, row, Modifier::Shift));
    EXPECT_TRUE(user.Click(806));
    Texts picked;
    for (int at = 0; at <= row; ++at)
      picked.push_back(idOf(at));
    model.Insert(caret, picked);
  }

  Texts Expected() const {
    Texts rows;
    for (const std::string& entry : model.Rows())
      rows.push_back(ContentsModel::IsHeading(entry) ? entry.substr(0, entry.size() - 1)
                                                     : entry + " " + NameOf(entry));
    rows.push_back("");
    return rows;
  }
  static std::string NameOf(const std::string& id) {
    static std::map<std::string, std::string> known;
    std::string& name = known[id];
    SymbolInfo record = {};
    if (name.empty() && VLGetSymbolInfo(id.c_str(), &record) != 0)
      name = standin::FromAnsi(record.name);
    EXPECT_NE(name, "") << id;
    return name;
  }

  const Texts ids = {"2330.TW", "2317.TW", "2454.TW", "1101.TW", "1436.TW",
                     "2881.TW", "0050.TW", "6488.TE", "5483.TE"};
  const Texts titles = {"A", "許功蓋", "標題9"};
  ContentsModel model;
  std::vector<int> selected; // in front of the action, without the empty row
  State before;              // in front of what the action does to the list
  bool moved = false;        // by the action
  StepJournal<State> journal;
  const CDialog* dialog = nullptr;
};

TEST_F(ContentEditorWalk, DoesWhatAPlainModelDoes) {
  StartWith({"A/one/2330.TW,gone.TW,1101.TW,none.TE"});
  model.entries = {"2330.TW", "?gone.TW", "1101.TW", "?none.TE"};
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("A", &list, kUserLists), 1);
  const std::string shape = Shape();
  WhenDialogOpens([&](User& user) {
    dialog = &user.Dialog();
    const Texts opened = model.entries;
    ASSERT_NO_FATAL_FAILURE(Walk(user, RandomActions(0)));
    ASSERT_NO_FATAL_FAILURE(GoAllTheWay(user, true));
    EXPECT_EQ(model.entries, opened);
    ASSERT_NO_FATAL_FAILURE(GoAllTheWay(user, false));
    EXPECT_EQ(Shape(), shape);
    EXPECT_TRUE(user.Click(1));
  });
  EXPECT_TRUE(
      CTQSymbolListMgr::DoGroupListUI(&manager, manager.GetSymbolTableMgr(), list, 1, nullptr, 0));
  EXPECT_EQ(standin::FromAnsi(Shape()), "A/one/" + model.Ids());
}

} // namespace
