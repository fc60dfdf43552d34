// A user who does anything in any dialog that can change lists, and a terminal that works beside
// the user.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/interface/AllDialogsWatch.h"

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

  inline static const DialogLayout kContents = {{801, 802, 803, 804, 805, 806, 807, 808},
                                                {1, 1, 2},
                                                {781, 781, 782},
                                                {741, 743, 742},
                                                {761, 762},
                                                false};
  inline static const DialogLayout kLists = {
      {801, 802, 803, 804, 805, 807, 808}, {806}, {781, 781, 782}, {741}, {}, true};
  inline static const DialogLayout kLayouts[] = {
      kLists,
      kLists,
      kContents,
      kContents,
      {{801, 802, 803, 803}, {1}, {781, 781, 782}, {}, {}, true},
      {{801, 802}, {1, 803, 803}, {781, 781, 782}, {741}, {}, true},
      {{801, 802, 803}, {1, 1, 2}, {781}, {}, {761}, true},
      {{801}, {}, {781}, {741}, {761, 762}, false},
  };

  AllDialogsUser() {
    standin::OnEachCall([this](std::string_view operation) { WithinCall(operation); });
  }

  // --- What is done

  Deed Act(User& user, const DialogLayout& layout) {
    --actionsLeft;
    callsToTerminal = Draw(40) == 0 ? 1 + Draw(3) : 0;
    answersYes = DrawAnswer();
    Deed deed = actionsLeft < 0 ? Deed{"title bar", 0, 0, "", user.CloseByTitleBar()}
                                : Choose(user, layout);
    callsToTerminal = 0;
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
      WindowKey key;
      Modifier modifier;
    };
    static const Stroke kStrokes[] = {
        {"Enter", WindowKey::Enter, Modifier::None},   {"Enter", WindowKey::Enter, Modifier::None},
        {"Delete", WindowKey::Delete, Modifier::None}, {"F2", WindowKey::F2, Modifier::None},
        {"F2", WindowKey::F2, Modifier::None},         {"Alt+Up", WindowKey::Up, Modifier::Alt},
        {"Alt+Down", WindowKey::Down, Modifier::Alt},  {"A", WindowKey::A, Modifier::Control},
        {"Z", WindowKey::Z, Modifier::Control},        {"Z", WindowKey::Z, Modifier::Control},
        {"Y", WindowKey::Y, Modifier::Control},        {"Tab", WindowKey::Tab, Modifier::None},
        {"Space", WindowKey::Space, Modifier::None},   {"Down", WindowKey::Down, Modifier::None},
        {"Home", WindowKey::Home, Modifier::None}};
    const Stroke& stroke = kStrokes[Draw(static_cast<int>(std::size(kStrokes)))];
    return {stroke.what, 0, 0, "", user.Press(stroke.key, stroke.modifier)};
  }
  Deed Close(User& user, const DialogLayout& layout) {
    const int how = Draw(8);
    if (how == 0)
      return {"title bar", 0, 0, "", user.CloseByTitleBar()};
    if (how == 1)
      return {"Escape", 0, 0, "", user.Press(WindowKey::Escape)};
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

  Entry entry = Entry::Search;
  std::string given; // the text with which it was opened
  std::vector<Deed> deeds;
  int actionsLeft = 0;
  int depth = 0; // of the dialogs that are up
  int callsToTerminal = 0;
  bool answersCall = false; // with another list
  int lateCount = 0;
  std::string lateId; // of the list that the terminal added when it was told
  bool answersYes = false;
};
