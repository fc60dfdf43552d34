// The editors of one list's contents, opened as a terminal does, on a group tree of three types.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/User.h"

// What the editor edits: a list of the user's, or a cloud list.
enum class EditorOf { UserList, CloudList };

inline std::string NameOfEditor(const testing::TestParamInfo<EditorOf>& info) {
  return info.param == EditorOf::UserList ? "UserList" : "CloudList";
}

class ContentEditorText : public EditTest {
protected:
  enum Control {
    kDone = 1,
    kCancel = 2,
    kCode = 741,
    kName = 742,
    kSubTitle = 743,
    kMarket = 761,
    kGroup = 762,
    kRows = 781,
    kFound = 782,
    kUp = 801,
    kDown = 802,
    kRemove = 803,
    kSort = 804,
    kSearch = 805,
    kAdd = 806,
    kAddAll = 807,
    kAddSubTitle = 808,
  };
  enum Buttons { kOkOnly = 0, kYesNo = 4 };
  enum Answer { kYes = 6, kNo = 7 };
  using Lines = std::vector<std::string>;
  using Action = std::function<void(User&)>;

  explicit ContentEditorText(EditorOf what = EditorOf::UserList) : editor(what) {
    standin::Market market = GroupMarket();
    market.groups.push_back({101, "", "OVS", "海外", "海外", {}});
    market.groups.push_back({101, "OVS", "US", "美股", "美股", {"AAPL.NASD", "DIS.NYSE"}});
    standin::SetMarket(market);
  }
  ~ContentEditorText() override { EXPECT_EQ(TakeUnusedScripts(), 0U) << "a dialog did not open"; }

  // Lists of the editor's kind as "id/name/symbols", ASCII.
  void Start(const Lines& lists) {
    if (editor == EditorOf::UserList) {
      StartWith(lists);
      return Mark();
    }
    StartWith({"U/user/2330.TW"});
    for (const std::string& list : lists) {
      const size_t name = list.find('/');
      const size_t symbols = list.find('/', name + 1);
      const int added = manager.AddCloudSymbolList(
          list.substr(0, name).c_str(), list.substr(name + 1, symbols - name - 1).c_str(),
          list.substr(symbols + 1).c_str(), 1);
      EXPECT_NE(added, 0) << list;
    }
    Mark();
  }
  // What happens from now on counts.
  void Mark() {
    WriteWorking(ReadWorking() + "\n");
    fileBefore_ = ReadWorking();
    told_ = standin::Notifications().size();
    logged_ = standin::LogLines().size();
    shown_ = standin::Messages().size();
  }

  // Opens the editor on a copy of that list, which stays in `edited`.
  bool Edit(const char* id, UserScript script) {
    edited = std::make_unique<CSymbolList>();
    for (int i = 0; i < manager.GetSymbolListCount(Kind()); ++i) {
      CString listId;
      CString name;
      CString symbols;
      manager.GetSymbolListInfo(i, listId, name, symbols, Kind());
      if (listId != id)
        continue;
      edited->SetID(listId);
      edited->SetName(name);
      edited->Update1(symbols);
    }
    return Open(std::move(script), 1);
  }
  // Opens the editor for a new list.
  bool EditNew(UserScript script) {
    edited = std::make_unique<CSymbolList>();
    return Open(std::move(script), 0);
  }
  // The same for what is in `edited`.
  bool Open(UserScript script, int mode) {
    WhenDialogOpens(std::move(script));
    return Call(&manager, edited.get(), mode);
  }
  bool Call(CTQSymbolListMgr* lists, CSymbolList* list, int mode) {
    CSymbolTableMgr* const tables = manager.GetSymbolTableMgr();
    if (editor == EditorOf::UserList)
      return CTQSymbolListMgr::DoGroupListUI(lists, tables, list, mode, nullptr, 0);
    return manager.DoCloudGroupListUI(lists, tables, list, mode, nullptr, 0);
  }

  // The symbols of list A that are stored after the user did this in its editor and accepted it.
  std::string After(const Action& action) {
    EXPECT_TRUE(Edit("A", [&action](User& user) {
      action(user);
      user.Click(kDone);
    }));
    return Symbols("A");
  }
  // Opens the editor of list A, looks and cancels.
  void In(const Action& action) {
    EXPECT_FALSE(Edit("A", [&action](User& user) {
      action(user);
      user.Click(kCancel);
    }));
  }

  int Kind() const { return editor == EditorOf::UserList ? 1 : 8; }
  std::string Symbols(const char* id) {
    CString symbols;
    EXPECT_NE(manager.GetSymbolListIDs(Kind(), id, symbols, nullptr), 0);
    return Utf8(symbols);
  }
  // All lists of the kind: "A/one/2330.TW|B/two/".
  std::string All() {
    std::string all;
    for (int i = 0; i < manager.GetSymbolListCount(Kind()); ++i) {
      CString id;
      CString name;
      CString symbols;
      manager.GetSymbolListInfo(i, id, name, symbols, Kind());
      all += (i > 0 ? "|" : "") + Utf8(id) + "/" + Utf8(name) + "/" + Utf8(symbols);
    }
    return all;
  }

  // The message boxes since Mark, blanks between: "48018/0" is an entry with its buttons, others
  // are their texts in brackets.
  std::string Shown() const {
    std::string shown;
    for (size_t i = shown_; i < standin::Messages().size(); ++i) {
      const standin::Message& box = standin::Messages()[i];
      const std::string what =
          box.id != 0 ? std::to_string(box.id) : "[" + standin::FromAnsi(box.text) + "]";
      shown += (shown.empty() ? "" : " ") + what + "/" + std::to_string(box.type);
    }
    return shown;
  }
  // What happened since Mark: "saved; log DoX; told 40:". Lines of other operations are left out.
  std::string Happened() {
    std::string text = ReadWorking() != fileBefore_ ? "saved" : "not saved";
    for (size_t i = logged_; i < standin::LogLines().size(); ++i) {
      const standin::LogLine& line = standin::LogLines()[i];
      if (line.level == 64 && line.text.rfind("Do", 0) == 0)
        text += "; log " + line.text;
    }
    for (size_t i = told_; i < standin::Notifications().size(); ++i) {
      const standin::Notification& note = standin::Notifications()[i];
      EXPECT_EQ(note.target, "");
      EXPECT_EQ(note.reserved, -1);
      text += "; told " + std::to_string(note.code) + ":" + note.reason;
    }
    return text;
  }
  // The user's lists as another manager reads them from the file.
  std::string ReadBack() {
    CTQSymbolListMgr another;
    EXPECT_EQ(another.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 0), 1);
    std::string all;
    for (int i = 0; i < another.GetSymbolListCount(1); ++i) {
      CString id;
      CString name;
      CString symbols;
      another.GetSymbolListInfo(i, id, name, symbols, 1);
      all += (i > 0 ? "|" : "") + Utf8(id) + "/" + Utf8(name) + "/" + Utf8(symbols);
    }
    return all;
  }

  static std::string Text(const char* traditional, const char* simplified) {
    return IsTraditionChinese() != 0 ? traditional : simplified;
  }
  static std::string SymbolName(const std::string& id) {
    for (const standin::Instrument& instrument : standin::CurrentMarket().instruments) {
      for (const standin::Exchange& exchange : standin::CurrentMarket().exchanges) {
        if (exchange.id == instrument.exchId && instrument.code + "." + exchange.name == id)
          return IsTraditionChinese() != 0 ? instrument.nameTw : instrument.nameCn;
      }
    }
    return "no such symbol";
  }
  // The rows of these symbols and the empty one behind them.
  static Lines RowsOf(const Lines& ids) {
    Lines rows;
    for (const std::string& id : ids)
      rows.push_back(id + " " + SymbolName(id));
    rows.push_back("");
    return rows;
  }
  static Lines NamesOf(const Lines& ids) {
    Lines names;
    for (const std::string& id : ids)
      names.push_back(SymbolName(id));
    return names;
  }
  // The names in the results.
  static Lines FoundNames(const User& user) {
    Lines names;
    for (const std::string& row : user.Rows(kFound)) {
      const size_t bar = row.find(" | ");
      names.push_back(bar == std::string::npos ? "no name" : row.substr(bar + 3));
    }
    return names;
  }
  // The results are the symbols of a group of type 1, by the groups' numbers from 0.
  static void ShowGroup(User& user, int market, int group) {
    EXPECT_TRUE(user.Select(kMarket, market + 1));
    EXPECT_TRUE(user.Select(kGroup, group + 1));
  }
  static void SelectNothing(User& user) {
    for (const int row : user.SelectedRows(kRows))
      EXPECT_TRUE(user.ClickRow(kRows, row, Modifier::Control));
    EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{});
  }
  static void Submit(User& user, const std::string& code) {
    EXPECT_TRUE(user.Fill(kCode, code));
    EXPECT_TRUE(user.Click(kAdd));
  }
  static void Search(User& user, const std::string& text) {
    EXPECT_TRUE(user.Fill(kCode, text));
    EXPECT_TRUE(user.Click(kSearch));
  }

  EditorOf editor;
  std::unique_ptr<CSymbolList> edited;

private:
  std::string fileBefore_;
  size_t told_ = 0;
  size_t logged_ = 0;
  size_t shown_ = 0;
};

// What holds for both editors.
class ContentEditorsText : public ContentEditorText, public testing::WithParamInterface<EditorOf> {
protected:
  ContentEditorsText() : ContentEditorText(GetParam()) {}
};
