// What the manager has, saves, logs and tells while dialogs are open and the terminal works beside
// them, each kept apart from the other: everything that happens outside of the terminal's own calls
// is the dialog's.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/framework/CMapStringToString.h"
#include "tests/interface/AllDialogsLists.h"
#include "tests/interface/EditorWalk.h"

class AllDialogsWatch : public EditorWalk {
protected:
  using Events = std::vector<std::string>; // "64 line" of the log, "40 'reason'" to the terminal

  // What an operation of the terminal's own does, by docs/notifications.md.
  struct Effect {
    Events events;
    bool saves = false;
  };

  ~AllDialogsWatch() override {
    standin::OnEachCall({});
    standin::OnCall("TQSCall", {});
  }

  void BeginToWatch() {
    known = Now();
    saved = known;
    file = ReadWorking();
    SkipEvents();
    standin::OnCall("TQSCall", [this] { NoteCall(); }); // so that lines keep their order with calls
  }
  // Of the stand-in's reports the memory must not be filled.
  static void ForgetCalls() { standin::ClearCalls(); }

  ManagerLists Now() {
    return {ListsOf(manager, kUserLists), ListsOf(manager, kCloudLists), DefaultIndex()};
  }
  static ListTexts ListsOf(CTQSymbolListMgr& from, int kind) {
    ListTexts lists;
    CString id;
    CString name;
    CString ids;
    for (int i = 0; from.GetSymbolListInfo(i, id, name, ids, kind) != 0; ++i)
      lists.push_back({id.GetString(), name.GetString(), ids.GetString()});
    return lists;
  }

  // The list file, written from the lists by its description.
  static std::string FileOf(const ManagerLists& lists) {
    std::string text = std::string("<?xml version='1.0' encoding='") +
                       (IsTraditionChinese() != 0 ? "big5" : "gb2312") +
                       "' ?>\n<Result>\n<SymbolList DefaultIdx='" +
                       std::to_string(lists.defaultIndex) + "'>\n";
    for (const ListText& list : lists.user)
      text += "\t<List ID='" + list.id + "' Name='" + list.name + "' Value='" + list.ids +
              "' Flag='" + (IsSystem(list) ? "1" : "0") + "'/>\n";
    return text + "</SymbolList>\n</Result>";
  }
  static bool IsSystem(const ListText& list) { return list.id.rfind("ZUSYSLIST", 0) == 0; }

  // --- Events

  // Those since the last time, put behind `events`. What the first question for a group's members
  // logs is the group's and not the dialog's.
  void Collect() {
    const auto& notes = standin::Notifications();
    for (; notesSeen < notes.size(); ++notesSeen) {
      const standin::Notification& note = notes[notesSeen];
      EXPECT_EQ(note.target, "");
      EXPECT_EQ(note.reserved, -1);
      events.push_back(std::to_string(note.code) + " '" + note.reason + "'");
    }
    const auto& lines = standin::LogLines();
    for (; linesSeen < lines.size(); ++linesSeen) {
      if (lines[linesSeen].text.rfind("CGroupList::Update2 ", 0) != 0)
        events.push_back(std::to_string(lines[linesSeen].level) + " " + lines[linesSeen].text);
    }
  }
  void SkipEvents() {
    notesSeen = standin::Notifications().size();
    linesSeen = standin::LogLines().size();
    events.clear();
  }
  // The file comes before the call: it must not change any more.
  void NoteCall() {
    Collect();
    if (!terminalActs)
      fileAtCall = ReadWorking();
  }

  static std::string CloudLine(const ListText& list) {
    return "64 CTQSymbolListMgr::UpdateCloudSymbolList ListName=" + list.name +
           ", Symbols=" + list.ids;
  }
  // What a load of the cloud groups logs: of the market's, the map may have one without sub-groups.
  // Of a list without symbols the group has the service's members, as every group that has none.
  Events LinesOfCloudLoad() {
    const std::string map = manager.GetCloudeList().GetString();
    const size_t at = map.find("<List ID='PICK' Name='");
    if (at == std::string::npos)
      return {};
    const std::string name = QuotedBehind(map, "Name='", at);
    const std::string ids = QuotedBehind(map, "' Value='", at);
    const std::string groupName = name.substr(0, sizeof(GroupInfo::szName) - 1);
    return {"64 CGroupList::Update1 GroupName = " + groupName + ", Symbols = " + ids,
            "64 CCloudeListUtil::DoModifyList ListName=" + name +
                ", Symbols=" + (ids.empty() ? "2317.TW" : ids)};
  }
  static std::string QuotedBehind(const std::string& text, std::string_view what, size_t from) {
    const size_t begin = text.find(what, from) + what.size();
    return text.substr(begin, text.find("' ", begin) - begin);
  }

  // --- The terminal beside the dialog

  // `act` does something and says what that should have done. What the dialog did so far is looked
  // at first.
  void AsTerminal(const std::function<Effect()>& act) {
    terminalActs = true;
    Collect();
    LookBeforeTerminal();
    Events own = std::exchange(events, {});
    const Effect effect = act();
    Collect();
    EXPECT_EQ(events, effect.events) << "the terminal's own";
    events = std::move(own);
    known = Now();
    if (effect.saves)
      Saved();
    EXPECT_EQ(ReadWorking(), file) << "after the terminal's own";
    terminalActs = false;
    ++terminalActions;
  }
  // Dialogs but the selection store nothing while they are up.
  virtual void LookBeforeTerminal() { EXPECT_EQ(Now(), known) << "changed while it is up"; }
  void Saved() {
    file = FileOf(known);
    saved = known;
  }

  Effect ActOnUserLists() {
    const std::string id = AnyId(known.user);
    const int what = Draw(9);
    terminalDid = "user lists " + std::to_string(what) + " " + id;
    switch (what) {
    case 0:
    case 1:
      return AddList();
    case 2:
      if (id.empty())
        return {};
      EXPECT_EQ(manager.DeleteSymbolList(CString(id.c_str())), 1);
      return {{}, true};
    case 3:
      return AddCopy();
    case 4:
      manager.InsertSymbolList(id.c_str(), Draw(4), DrawOf(symbols).c_str(), Draw(2), 0);
      return {};
    case 5:
      if (!known.user.empty())
        manager.SetDefaultIndex(Draw(static_cast<int>(known.user.size())));
      return {};
    case 6:
      return ChangeSystemList();
    case 7:
      EXPECT_EQ(manager.SaveSymbolList(), 1);
      return {{}, true};
    default:
      return Reload();
    }
  }
  Effect AddList() {
    const std::string id = Draw(3) == 0 ? AnyId(known.user) : "";
    EXPECT_EQ(manager.AddSymbolList(id.c_str(), 0, Ansi(DrawOf(goodNames)).c_str(),
                                    DrawOf(symbols).c_str(), Draw(2), 1),
              1);
    return {{"64 Add SymbolList", "40 ''"}, true};
  }
  Effect AddCopy() {
    CSymbolList list;
    list.SetID(("T" + std::to_string(++listsAdded)).c_str());
    list.SetName(Ansi(DrawOf(goodNames)).c_str());
    list.Update1(DrawOf(symbols).c_str());
    EXPECT_EQ(manager.AddTQSymbolList(&list, Draw(2)), 1);
    return {};
  }
  // The one of these that was deleted is there again first, as at a start.
  Effect ChangeSystemList() {
    if (FindList(known.user, "ZUSYSLIST1") == nullptr) {
      EXPECT_EQ(manager.LoadSystemList(nullptr), 1);
      return {};
    }
    const std::string name = Ansi(DrawOf(goodNames));
    CMapStringToString contents;
    contents.SetAt("ZUSYSLIST1", DrawOf(symbols).c_str());
    CMapStringToString names;
    names.SetAt("ZUSYSLIST1", name.c_str());
    EXPECT_EQ(manager.UpdateSystemList(&contents, &names), 1);
    const bool renamed = name != FindList(known.user, "ZUSYSLIST1")->name;
    return {{renamed ? "4 'ListNameChange'" : "4 ''"}, true};
  }
  // Back to what the file has: a file without lists would be written anew.
  Effect Reload() {
    if (saved.user.empty())
      return {};
    EXPECT_EQ(manager.LoadSymbolList(), 1);
    EXPECT_TRUE(Now().HasSameUserLists(saved)) << testing::PrintToString(Now());
    return {};
  }

  Effect ActOnCloud() {
    const int what = Draw(4);
    terminalDid = "cloud lists " + std::to_string(what);
    switch (what) {
    case 0:
      return PushCloudList();
    case 1:
      manager.AddCloudSymbolList("", Ansi(DrawOf(goodNames)).c_str(), DrawOf(symbols).c_str(), 1);
      return {};
    case 2:
      return LoadGroups();
    default: {
      manager.RefreshCloudeSymbol();
      Effect effect{LinesOfCloudLoad()};
      effect.events.emplace_back("4 'ListNameChange'");
      return effect;
    }
    }
  }
  Effect PushCloudList() {
    const std::string id = Draw(2) == 0 ? "PICK" : "K" + std::to_string(Draw(4));
    const std::string name = Ansi(DrawOf(goodNames));
    const std::string ids = DrawOf(symbols);
    manager.SetCloudeList(id.c_str(), name.c_str(), ids.c_str());
    Effect effect{{"64 CTQSymbolListMgr::SetCloudeList ListName=" + name + ", Symbols=" + ids}};
    if (FindList(known.cloud, id) != nullptr)
      effect.events.emplace_back("41 ''");
    return effect;
  }
  Effect LoadGroups() {
    const int type = Draw(2) == 0 ? 1 : 201;
    EXPECT_EQ(manager.LoadGroupList(type), 1);
    return {type == 201 ? LinesOfCloudLoad() : Events()};
  }

  std::string AnyId(const ListTexts& lists) { return lists.empty() ? "" : DrawOf(lists).id; }
  static std::string Ansi(const std::string& text) { return standin::ToAnsi(text); }

  const Texts symbols = {"2330.TW",         "2317.TW,none.TE",         "Tag:,2454.TW,1101.TW",
                         "gone.TW,6488.TE", "1436.TW,2330.TW,7777.TE", "gone.TW"};
  const Texts goodNames = {"one", "Two", "two", "中文", "許功蓋", "3"};
  ManagerLists known; // after the last action of either
  ManagerLists saved; // as the file has them
  std::string file;   // its bytes
  std::string fileAtCall;
  Events events; // the dialog's
  int terminalActions = 0;
  std::string terminalDid; // last, as a failure tells it
  bool terminalActs = false;

private:
  size_t notesSeen = 0;
  size_t linesSeen = 0;
  int listsAdded = 0;
};
