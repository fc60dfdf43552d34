// One run of a dialog, from its opening to its end: what the user did in it and saw of it, as far
// as the lists of afterwards do not tell.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/interface/AllDialogsUser.h"

class AllDialogsSession : public AllDialogsUser {
protected:
  // The line of an operation that changed lists; "changed" is Big5.
  static std::string ChangeLine(Entry of) {
    return std::string("64 ") + kEntryNames[static_cast<int>(of)] +
           " \xA7\xF3\xB0\xCA SymbolList!!";
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
    EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, entry == Entry::Select ? 1 : 0);
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
    mayHaveChanged = mayHaveChanged || (answersYes && (deed.IsClick(803) || deed.Is("Delete")));
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
    int marked = -1; // drawn as the default list
  };
  View ViewOf(User& user) const {
    if (entry != Entry::Lists || !user.IsUp())
      return {};
    const std::vector<int> selection = user.SelectedRows(781);
    View view{static_cast<int>(user.Rows(781).size()), selection.empty() ? -1 : selection.front()};
    CDialog& dialog = *CDialog::FromHandle(user.Dialog().GetSafeHwnd());
    for (int row = 0; row < view.count; ++row)
      view.marked = tq::DialogAccess::Look(dialog, 781, row).marked ? row : view.marked;
    return view;
  }
  // The default list is marked by its button, goes with its list, and the list that is selected
  // takes the place of one that is deleted. With a step that is taken it is what is drawn.
  void FollowDefault(const Deed& deed, const View& from, const View& to) {
    if (deed.Is("Enter") || deed.Is("Space"))
      marksAreKnown = false;
    if (deed.Is("Z") || deed.Is("Y")) {
      marked = to.marked;
      marksAreKnown = marksAreKnown && marked >= 0;
      return;
    }
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
        EXPECT_TRUE(event.rfind("64 Lists added while ", 0) == 0 && terminalActions > 0) << event;
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
      EXPECT_EQ(events, (Events{ChangeLine(entry), "40 ''"}));
    }
    EXPECT_TRUE(events.empty() || selectionChanged || mayHaveChanged);
  }

  const std::string sourceOfUser = IsTraditionChinese() != 0 ? "我的商品組合" : "我的商品组合";
  const std::string sourceOfCloud = IsTraditionChinese() != 0 ? "雲自選" : "云自选";
  ManagerLists before;
  int result = 0;
  std::optional<int> expectedResult;
  std::string editedId; // of the one list
  std::optional<ListText> edited;
  std::optional<std::vector<std::string>> shown; // the names before the last action
  std::optional<std::vector<std::string>> rows;  // those of the list that is edited
  std::string typedName;
  ManagerLists copied;        // as the selection has read or stored them last
  int marked = -1;            // the row of the default list
  bool marksAreKnown = false; // a key may have pressed any button
  int storedContents = 0;     // content editors that may have been accepted
  bool mayHaveChanged = false;
  bool selectionChanged = false;
  bool cloudIsUntold = false;
  std::string source;
};
