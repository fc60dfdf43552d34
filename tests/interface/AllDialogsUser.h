// A user who does anything in any dialog that can change lists, and a terminal that works beside
// it: what they did, as far as the lists of afterwards do not tell.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/interface/AllDialogsWalk.h"

#define TQ_CHANGED " \xA7\xF3\xB0\xCA SymbolList!!" // "changed", in Big5

enum class Entry { Lists, Cloud, Group, CloudGroup, OneSymbol, Symbols, Select, Search };
inline constexpr const char* kEntryNames[] = {
    "DoSymbolListUI",   "DoCloudSymbolListUI", "DoGroupListUI", "DoCloudGroupListUI",
    "DoGroupSymbolAdd", "DoSymbolAddUI",       "DoSelectUI",    "DoSearchUI"};

// The controls of a dialog, by what a user does with them.
struct DialogLayout {
  std::vector<int> buttons;
  std::vector<int> closers;
  std::vector<int> lists;
  std::vector<int> fields;
  std::vector<int> boxes;
  bool opens; // a content editor, with the buttons 801 and 802
};
inline const DialogLayout kContents = {{801, 802, 803, 804, 805, 806, 807, 808},
                                       {1, 1, 2},
                                       {781, 781, 782},
                                       {741, 743, 742},
                                       {761, 762},
                                       false};
inline const DialogLayout kLists = {
    {801, 802, 803, 804, 805, 807, 808}, {806}, {781, 781, 782}, {741}, {}, true};
inline const DialogLayout kLayouts[] = {
    kLists,
    kLists,
    kContents,
    kContents,
    {{801, 802, 803, 803}, {1}, {781, 781, 782}, {}, {}, true},
    {{801, 802}, {1, 803, 803}, {781, 781, 782}, {741}, {}, true},
    {{801, 802, 803}, {1, 1, 2}, {781}, {}, {761}, true},
    {{801}, {}, {781}, {741}, {761, 762}, false},
};

class AllDialogsUser : public AllDialogsWatch {
protected:
  // What the user or the terminal did, and whether that could be done.
  struct Deed {
    const char* what = "";
    int id = 0;
    int row = 0;
    std::string text{};
    bool done = false;
    bool Is(std::string_view other) const { return done && what == other; }
    bool IsClick(int button) const { return Is("click") && id == button; }
  };

  AllDialogsUser() {
    standin::OnEachCall([this](std::string_view operation) { WithinCall(operation); });
  }

  void BeginRun() {
    deeds.clear();
    depth = 0;
    storedContents = 0;
    terminalActions = 0;
    shown.reset();
    rows.reset();
    expectedResult.reset();
    edited.reset();
    mayHaveChanged = selectionChanged = cloudIsUntold = false;
    given = DrawOf(additions);
    lateId.clear();
    copied = before;
    marked = before.defaultIndex;
    marksAreKnown = entry == Entry::Lists;
    answersCall = Draw(6) == 0;
  }

  void UseDialog(User& user) {
    const DialogLayout& layout = kLayouts[static_cast<int>(entry)];
    const bool isEditor = entry == Entry::Group || entry == Entry::CloudGroup;
    if (entry == Entry::Search && !given.empty() && Draw(2) == 0)
      user.WaitFor([calls = 0]() mutable { return ++calls > 1; });
    depth = 1;
    while (user.IsUp())
      ActOnTop(user, layout, isEditor);
    depth = 0;
  }
  void ActOnTop(User& user, const DialogLayout& layout, bool isEditor) {
    source = entry == Entry::Select ? user.Text(761) : "";
    LookAtNames(user);
    bool opened = false;
    if (layout.opens)
      WhenDialogOpens([this, &opened](User& editor) { opened = UseEditor(editor); });
    if (isEditor)
      LookAtContents(user);
    const View seen = ViewOf(user);
    const Deed deed = Act(user, layout);
    if (entry == Entry::Lists)
      FollowDefault(deed, seen, ViewOf(user));
    const bool unused = layout.opens && TakeUnusedScripts() > 0;
    EXPECT_EQ(unused, layout.opens && !opened);
    const bool mustOpen = layout.opens && (deed.IsClick(801) || deed.IsClick(802));
    EXPECT_TRUE(opened || !mustOpen || given.find('&') != std::string::npos) << "nothing opened";
    if (isEditor && !user.IsUp())
      storedContents += IsCancel(deed) ? 0 : 1;
    if (!deed.IsClick(1)) // Enter may add what is typed
      rows.reset();
    if (!user.IsUp())
      Closed(deed);
    if (entry == Entry::Select)
      LookAtSelection(deed, !user.IsUp());
  }
  // True, for it was open.
  bool UseEditor(User& editor) {
    depth = 2;
    Deed deed;
    while (editor.IsUp())
      deed = Act(editor, kContents);
    storedContents += IsCancel(deed) ? 0 : 1;
    mayHaveChanged = mayHaveChanged || !IsCancel(deed);
    depth = 1;
    return true;
  }
  static bool IsCancel(const Deed& deed) {
    return deed.IsClick(2) || deed.Is("Escape") || deed.Is("title bar") || deed.Is("ended");
  }

  // --- What can be seen

  // The names in the list of lists, which the last action may change again: those of an editor of
  // names that is still open, and of one that closes the dialog.
  void LookAtNames(User& user) {
    shown.reset();
    if (entry == Entry::Group || entry == Entry::CloudGroup || entry == Entry::Search)
      return;
    if (entry == Entry::Select && source != sourceOfUser)
      return;
    if (!user.IsVisible(741) || entry == Entry::Symbols)
      shown = user.Rows(781);
  }
  // Ids and headings of the editor of one list, without the empty row, and the name.
  void LookAtContents(User& user) {
    rows = user.Rows(781);
    rows->pop_back();
    for (std::string& row : *rows)
      row = row.substr(0, row.find(' '));
    typedName = user.Text(742);
  }
  // Of the editor of lists, while it is up.
  struct View {
    int count = 0;
    int selected = -1;
  };
  View ViewOf(User& user) const {
    if (entry != Entry::Lists || !user.IsUp())
      return {};
    const std::vector<int> selection = user.SelectedRows(781);
    return {static_cast<int>(user.Rows(781).size()), selection.empty() ? -1 : selection.front()};
  }
  // The default list is marked by its button, goes with its list, and the list that is selected
  // takes the place of one that is deleted.
  void FollowDefault(const Deed& deed, const View& from, const View& to) {
    if (deed.Is("Enter") || deed.Is("Space"))
      marksAreKnown = false;
    const bool isMove =
        deed.IsClick(807) || deed.IsClick(808) || deed.Is("Alt+Up") || deed.Is("Alt+Down");
    if (deed.IsClick(805) && from.selected >= 0)
      marked = from.selected;
    else if (isMove && to.selected >= 0 && (marked == from.selected || marked == to.selected))
      marked = marked == from.selected ? to.selected : from.selected;
    else if (to.count == from.count - 1)
      marked = from.selected == marked ? to.selected : marked - (from.selected < marked ? 1 : 0);
    else if (from.count == 0 && to.count == 1)
      marked = 0;
  }
  static std::string MarkOf(const ListText& list) {
    if (!IsSystem(list))
      return "";
    return IsTraditionChinese() != 0 ? "(系統)" : "(系统)";
  }
  void Closed(const Deed& deed) {
    if (deed.IsClick(1) || deed.IsClick(806) || deed.IsClick(803))
      expectedResult = 1;
    else if (IsCancel(deed))
      expectedResult = deed.Is("ended") ? deed.row : 2;
    else
      shown.reset();
    if (deed.Is("ended") && (entry == Entry::Group || entry == Entry::CloudGroup))
      expectedResult = 2;
  }

  // --- The selection, which stores the cloud lists at once and the user's with OK

  void LookBeforeTerminal() override {
    if (entry != Entry::Select)
      AllDialogsWatch::LookBeforeTerminal();
  }
  void LookAtSelection(const Deed& deed, bool closed) {
    Collect();
    const ManagerLists now = Now();
    const bool ok = deed.IsClick(1) || deed.Is("Enter") || deed.Is("Space") || deed.Is("Alt");
    bool cloudTold = now.cloud == known.cloud;
    for (const std::string& event : std::exchange(events, {})) {
      if (event == "41 ''") {
        EXPECT_TRUE(ok && cloudIsUntold && source == sourceOfCloud) << source;
        cloudIsUntold = false;
      } else if (event.rfind("64 CTQSymbolListMgr::UpdateCloudSymbolList ", 0) == 0) {
        EXPECT_TRUE(std::any_of(now.cloud.begin(), now.cloud.end(), [&](const ListText& list) {
          return event == CloudLine(list);
        })) << event;
        cloudTold = cloudIsUntold = selectionChanged = true;
      } else {
        EXPECT_TRUE(event.rfind("64 Kept ", 0) == 0 && terminalActions > 0) << event;
      }
    }
    EXPECT_TRUE(cloudTold || now.cloud.size() < known.cloud.size() || terminalActions > 0);
    cloudIsUntold = cloudIsUntold || now.cloud != known.cloud;
    if (now.cloud != known.cloud)
      ExpectOthersAreKept(now.cloud, known.cloud, std::exchange(copied.cloud, now.cloud));
    EXPECT_TRUE(ok || now.HasSameUserLists(known)) << "stored without OK";
    EXPECT_FALSE(closed && deed.IsClick(1) && source == sourceOfCloud && cloudIsUntold);
    selectionChanged = selectionChanged || !(now == known);
    if (!now.HasSameUserLists(known) || ReadWorking() != file) {
      EXPECT_TRUE(ok);
      ExpectOthersAreKept(now.user, known.user, std::exchange(copied.user, now.user));
      known = now;
      Saved();
      EXPECT_EQ(ReadWorking(), file);
    }
    known = now;
  }
  // What they added since the selection read or stored its lists last.
  static void ExpectOthersAreKept(const ListTexts& now, const ListTexts& held,
                                  const ListTexts& copied) {
    for (const ListText& list : held) {
      if (FindList(copied, list.id) == nullptr) {
        EXPECT_TRUE(std::find(now.begin(), now.end(), list) != now.end()) << "undone: " << list.id;
      }
    }
  }
  // At the end a line and a call, when it changed lists, stored or not.
  void ExpectSelectionReported() {
    if (selectionChanged || !events.empty()) {
      EXPECT_EQ(events, (Events{"64 DoSelectUI" TQ_CHANGED, "40 ''"}));
    }
    EXPECT_TRUE(events.empty() || selectionChanged || mayHaveChanged);
  }

  // --- What is done

  Deed Act(User& user, const DialogLayout& layout) {
    --actionsLeft;
    callsToTerminal = Draw(40) == 0 ? 1 + Draw(3) : 0;
    answersYes = DrawAnswer();
    Deed deed = actionsLeft < 0 ? Deed{"title bar", 0, 0, "", user.CloseByTitleBar()}
                                : Choose(user, layout);
    callsToTerminal = 0;
    mayHaveChanged = mayHaveChanged || (answersYes && (deed.IsClick(803) || deed.Is("Delete")));
    deeds.push_back(deed);
    return deed;
  }
  Deed Choose(User& user, const DialogLayout& layout) {
    const int what = Draw(100);
    if (what < 26)
      return Click(user, DrawOf(layout.buttons));
    if (what < 52)
      return ClickRow(user, DrawOf(layout.lists));
    if (what < 56)
      return DoubleClick(user, DrawOf(layout.lists));
    if (what < 68)
      return Press(user);
    if (what < 79 && !layout.fields.empty())
      return Fill(user, DrawOf(layout.fields));
    if (what < 84 && !layout.boxes.empty())
      return SelectIn(user, DrawOf(layout.boxes));
    if (what < 86)
      return Type(user);
    if (what < 89)
      return ByTerminal();
    return what < 96 ? Close(user, layout) : ClickRow(user, DrawOf(layout.lists));
  }
  static Deed Click(User& user, int id) { return {"click", id, 0, "", user.Click(id)}; }
  Deed ClickRow(User& user, int id) {
    const Modifier modifiers[] = {Modifier::None, Modifier::None, Modifier::Control,
                                  Modifier::Shift};
    const int row = Draw(7) - 1;
    return {"click row", id, row, "", user.ClickRow(id, row, modifiers[Draw(4)])};
  }
  Deed DoubleClick(User& user, int id) {
    const int row = Draw(6);
    return {"double-click row", id, row, "", user.DoubleClick(id, row)};
  }
  Deed SelectIn(User& user, int id) {
    const int row = entry == Entry::Select && Draw(3) > 0 ? 1 + 2 * Draw(2) : Draw(6);
    return {"select", id, row, "", user.Select(id, row)};
  }
  Deed Fill(User& user, int id) {
    const std::string text = id == 742 ? DrawOf(names) : id == 743 ? DrawOf(titles) : DrawOf(codes);
    return {"fill", id, 0, text, user.Fill(id, text)};
  }
  // In the lists editors mostly into the editor of names.
  Deed Type(User& user) {
    const std::string text = DrawOf(names);
    return {"type", 0, 0, text, user.Type(text)};
  }
  Deed Press(User& user) {
    struct Stroke {
      const char* what;
      Key key;
      Modifier modifier;
    };
    static const Stroke kStrokes[] = {
        {"Enter", Key::Enter, Modifier::None},   {"Enter", Key::Enter, Modifier::None},
        {"Delete", Key::Delete, Modifier::None}, {"F2", Key::F2, Modifier::None},
        {"F2", Key::F2, Modifier::None},         {"Alt+Up", Key::Up, Modifier::Alt},
        {"Alt+Down", Key::Down, Modifier::Alt},  {"A", Key::A, Modifier::Control},
        {"Tab", Key::Tab, Modifier::None},       {"Space", Key::Space, Modifier::None},
        {"Down", Key::Down, Modifier::None},     {"Home", Key::Home, Modifier::None}};
    const Stroke& stroke = kStrokes[Draw(static_cast<int>(std::size(kStrokes)))];
    return {stroke.what, 0, 0, "", user.Press(stroke.key, stroke.modifier)};
  }
  Deed Close(User& user, const DialogLayout& layout) {
    const int how = Draw(8);
    if (how == 0)
      return {"title bar", 0, 0, "", user.CloseByTitleBar()};
    if (how == 1)
      return {"Escape", 0, 0, "", user.Press(Key::Escape)};
    if (how == 2 && Draw(3) == 0)
      return End(user);
    if (layout.closers.empty())
      return {"nothing"};
    return Click(user, DrawOf(layout.closers));
  }
  // The terminal ends any dialog with any code; a selection by its own operation too.
  Deed End(User& user) {
    const int code = 1 + Draw(2);
    const WindowHandle window = user.Dialog().GetSafeHwnd();
    if (entry == Entry::Select && depth == 1) {
      EXPECT_EQ(CTQSymbolListMgr::EndDomodal(window, code), 1);
    } else {
      CDialog::FromHandle(window)->EndDialog(code);
    }
    return {"ended", 0, code, "", true};
  }

  // --- The terminal

  Deed ByTerminal() {
    if (Draw(6) == 0 && entry != Entry::OneSymbol && entry != Entry::Search)
      return OpenAnother();
    ActAsTerminal();
    return {"the terminal", 0, 0, terminalDid, true};
  }
  // Of the family one is open.
  Deed OpenAnother() {
    AsTerminal([this] {
      EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr),
                CDialog::Failed);
      return Effect{};
    });
    return {"another dialog, refused", 0, 0, "", true};
  }
  void ActAsTerminal() {
    AsTerminal([this] { return Draw(3) == 0 ? ActOnCloud() : ActOnUserLists(); });
  }
  // From a question to a service. The selection stores on its own account: there only while an
  // editor is open over it.
  void WithinCall(std::string_view operation) {
    if (answersCall && operation == "TQSCall" && depth == 0 && !terminalActs)
      return AddAtCall();
    if (callsToTerminal == 0 || terminalActs || depth < (entry == Entry::Select ? 2 : 1) ||
        --callsToTerminal > 0)
      return;
    ActAsTerminal();
    deeds.push_back({"the terminal, asked", 0, 0, terminalDid, true});
  }

  // The terminal adds a list when it is told of a change: once, for it is told of that too.
  void AddAtCall() {
    answersCall = false;
    terminalActs = true;
    lateId = "L" + std::to_string(++lateCount);
    EXPECT_EQ(manager.AddSymbolList(lateId.c_str(), 0, "late", "2330.TW", Draw(2), 0), 1);
    terminalActs = false;
    deeds.push_back({"the terminal, told", 0, 0, lateId, true});
  }

  // --- Model

  static int AddedByOthers(const ListTexts& held, const ListTexts& old) {
    return static_cast<int>(std::count_if(held.begin(), held.end(), [&old](const ListText& list) {
      return FindList(old, list.id) == nullptr;
    }));
  }
  static std::string KeptLine(int count) {
    return "64 Kept " + std::to_string(count) + " lists that were added while others were edited";
  }
  static Texts NamesOf(const ListTexts& lists) {
    Texts texts;
    for (const ListText& list : lists)
      texts.push_back(list.name);
    return texts;
  }
  bool IsAdding() const { return entry == Entry::OneSymbol || entry == Entry::Symbols; }

  std::string Story() const {
    std::string story =
        std::string(kEntryNames[static_cast<int>(entry)]) + " of \"" + given + "\"\n";
    for (const Deed& deed : deeds)
      story += "  " + std::string(deed.what) + " " + std::to_string(deed.id) + " " +
               std::to_string(deed.row) + " " + deed.text +
               (deed.done ? "\n" : " (not possible)\n");
    return story;
  }

  const Texts additions = {"",       "2330.TW",      "lost.TW",         "2454.TW,1101.TW",
                           "a&b.TW", "Tag:,5483.TE", "2330.TW,lost.TW", "2317"};
  const Texts codes = {"2330", "2317", "6488",  "none",    "7777",
                       "",     "23",   ".2330", "0050.TW", "1436"};
  const Texts titles = {"A", "許功蓋", "標題9", "a b", "A-1", ""};
  const Texts names = {"one",    "Two",  "two",     "中文",    "許功蓋",
                       "3",      "",     "a'b",     "x&y",     "a:b",
                       " four ", "five", "x(系統)", "x(系统)", std::string(70, 'n')};
  const std::string sourceOfUser = IsTraditionChinese() != 0 ? "我的商品組合" : "我的商品组合";
  const std::string sourceOfCloud = IsTraditionChinese() != 0 ? "雲自選" : "云自选";

  Entry entry = Entry::Search;
  ManagerLists before;
  int result = 0;
  std::optional<int> expectedResult;
  std::string given;    // the text with which it was opened
  std::string editedId; // of the one list
  std::optional<ListText> edited;
  std::optional<std::vector<std::string>> shown; // the names before the last action
  std::optional<std::vector<std::string>> rows;  // those of the list that is edited
  std::string typedName;
  ManagerLists copied;        // as the selection has read or stored them last
  int marked = -1;            // the row of the default list
  bool marksAreKnown = false; // a key may have pressed any button
  std::vector<Deed> deeds;
  int actionsLeft = 0;
  int depth = 0; // of the dialogs that are up
  int callsToTerminal = 0;
  int storedContents = 0;   // content editors that may have been accepted
  bool answersCall = false; // with another list
  int lateCount = 0;
  std::string lateId; // of the list that the terminal added when it was told
  bool answersYes = false;
  bool mayHaveChanged = false;
  bool selectionChanged = false;
  bool cloudIsUntold = false;
  std::string source;
};
