// The list editors and the list selection, opened as the terminal opens them. What they have shown,
// saved, logged and told is read back as text.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/User.h"

// A name that a test types, and what it is called in the test's own name.
struct TypedName {
  const char* testName;
  const char* text; // "@" stands for the mark of system lists
};

struct NameOfTyped {
  std::string operator()(const testing::TestParamInfo<TypedName>& tested) const {
    return tested.param.testName;
  }
};

class EditorTextTest : public EditTest {
protected:
  // Controls of the list editors and, as far as it has them, of the selection.
  static constexpr int kOk = 1;
  static constexpr int kCancel = 2;
  static constexpr int kNameEditor = 741; // laid over a row
  static constexpr int kLists = 781;
  static constexpr int kContents = 782;
  static constexpr int kNew = 801;
  static constexpr int kEdit = 802;
  static constexpr int kDelete = 803;
  static constexpr int kRename = 804;
  static constexpr int kDefault = 805;
  static constexpr int kDone = 806;
  static constexpr int kUp = 807;
  static constexpr int kDown = 808;
  // Of the editor of one list's contents.
  static constexpr int kListName = 742;
  static constexpr int kSubTitle = 743;
  static constexpr int kRemoveRow = 803;

  static constexpr int kYes = 6;
  static constexpr int kNo = 7;

  using Lines = std::vector<std::string>;
  using Numbers = std::vector<int>;

  EditorTextTest() { standin::SetMarket(GroupMarket()); }
  ~EditorTextTest() override { EXPECT_EQ(TakeUnusedScripts(), 0u) << "a dialog did not open"; }

  // Lists as "id/name/symbols", in the process's code page.
  void Start(const Lines& lists, int defaultIndex = 0) {
    StartWith(lists);
    manager.SetDefaultIndex(defaultIndex);
    Mark();
  }
  void StartWithThree(int defaultIndex = 0) {
    Start({"A/one/2330.TW", "B/two/2317.TW", "C/three/1101.TW,2454.TW"}, defaultIndex);
  }
  // With these cloud lists beside a list of the user's own.
  void StartCloud(const Lines& lists) {
    StartWith({"A/mine/2330.TW"});
    for (const std::string& list : lists) {
      const size_t name = list.find('/');
      const size_t symbols = list.find('/', name + 1);
      manager.AddCloudSymbolList(list.substr(0, name).c_str(),
                                 list.substr(name + 1, symbols - name - 1).c_str(),
                                 list.substr(symbols + 1).c_str(), 1);
    }
    Mark();
  }
  // Effects count from here on. The file gets bytes that no save writes.
  void Mark() {
    file_ = ReadWorking() + "\n";
    WriteWorking(file_);
    told_ = standin::Notifications().size();
    logged_ = standin::LogLines().size();
    shown_ = standin::Messages().size();
  }

  int EditLists(UserScript script) {
    WhenDialogOpens(std::move(script));
    return CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr);
  }
  int EditCloudLists(UserScript script) {
    WhenDialogOpens(std::move(script));
    return manager.DoCloudSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr);
  }

  // --- Scripts of the editor of one list's contents ----------------------------------------------

  static UserScript AcceptIt() {
    return [](User& user) { EXPECT_TRUE(user.Click(kOk)); };
  }
  static UserScript CancelIt() {
    return [](User& user) { EXPECT_TRUE(user.Click(kCancel)); };
  }
  static UserScript NameIt(const std::string& name) {
    return [name](User& user) {
      EXPECT_TRUE(user.Fill(kListName, name));
      EXPECT_TRUE(user.Click(kOk));
    };
  }
  static UserScript RemoveItsFirstRow() {
    return [](User& user) {
      EXPECT_TRUE(user.ClickRow(kLists, 0));
      EXPECT_TRUE(user.Click(kRemoveRow));
      EXPECT_TRUE(user.Click(kOk));
    };
  }

  // --- What is seen ------------------------------------------------------------------------------

  static std::string Text(const char* traditional, const char* simplified) {
    return IsTraditionChinese() != 0 ? traditional : simplified;
  }
  static std::string SystemMark() { return Text("(系統)", "(系统)"); }
  static std::string Typed(const TypedName& name) {
    std::string text = name.text;
    const size_t mark = text.find('@');
    return mark == std::string::npos ? text : text.replace(mark, 1, SystemMark());
  }
  static std::string Tsmc() { return Text("2330.TW 台積電", "2330.TW 台积电"); }
  static std::string HonHai() { return Text("2317.TW 鴻海", "2317.TW 鸿海"); }
  static std::string Cement() { return Text("1101.TW 台泥", "1101.TW 台泥"); }
  static std::string MediaTek() { return Text("2454.TW 聯發科", "2454.TW 联发科"); }

  // Rows of the list box of lists that are drawn otherwise than the rest.
  static Numbers MarkedRows(const User& user) {
    std::istringstream screen(user.Screen());
    std::string line;
    while (std::getline(screen, line) && line.rfind("list 781:", 0) != 0) {
    }
    Numbers marked;
    for (int row = 0; std::getline(screen, line) && line.rfind("  ", 0) == 0; ++row) {
      const std::string look = line.substr(4);
      if (look.rfind("(*) ", 0) == 0 || look.rfind("(bold) ", 0) == 0)
        marked.push_back(row);
    }
    return marked;
  }

  // --- What has happened -------------------------------------------------------------------------

  // The message boxes since the last question: "48011/0 48012/4", with the text in the place of an
  // entry of the string table.
  std::string Shown() {
    std::string shown;
    for (; shown_ < standin::Messages().size(); ++shown_) {
      const standin::Message& message = standin::Messages()[shown_];
      const std::string what =
          message.id != 0 ? std::to_string(message.id) : standin::FromAnsi(message.text);
      shown += (shown.empty() ? "" : " ") + what + "/" + std::to_string(message.type);
    }
    return shown;
  }
  // "saved; told 40:ListCntChange; log <line>", of the lines those of the dialogs' operations.
  std::string Happened() {
    std::string text = ReadWorking() == file_ ? "not saved" : "saved";
    for (size_t i = told_; i < standin::Notifications().size(); ++i) {
      const standin::Notification& note = standin::Notifications()[i];
      EXPECT_EQ(note.target, "");
      EXPECT_EQ(note.reserved, -1);
      text += "; told " + std::to_string(note.code) + ":" + note.reason;
    }
    for (size_t i = logged_; i < standin::LogLines().size(); ++i) {
      const standin::LogLine& line = standin::LogLines()[i];
      if (line.level == 64 && line.text.rfind("Do", 0) == 0)
        text += "; log " + line.text;
    }
    return text;
  }
  static std::string Logged(const std::string& operation, const std::string& why = "") {
    return "; log " + operation + " \xA7\xF3\xB0\xCA SymbolList!!" + why; // Big5, always
  }
  static std::string NameDiffers() { return "(bListNameChange)"; }
  static std::string CountDiffers() { return "(nNewSymbolListCnt != nOldSymbolListCnt)"; }

  // The arguments of the last dialog's run.
  static std::string LastRun() {
    std::string arguments;
    for (const standin::Call& call : standin::Calls()) {
      if (call.operation == "tqDoModal")
        arguments = call.arguments;
    }
    return arguments;
  }

  std::string CloudShape() {
    std::string shape;
    for (int i = 0; i < manager.GetSymbolListCount(8); ++i) {
      CString id;
      CString name;
      CString symbols;
      EXPECT_EQ(manager.GetSymbolListInfo(i, id, name, symbols, 8), 1);
      shape +=
          (i > 0 ? "|" : "") + std::string(id) + "/" + name.GetString() + "/" + symbols.GetString();
    }
    return shape;
  }
  // What went into the cloud map, which is what the broker's server gets.
  std::string CloudMap() { return std::string(manager.GetCloudeList()); }

private:
  std::string file_;
  size_t told_ = 0;
  size_t logged_ = 0;
  size_t shown_ = 0;
};

// The selection, which answers in a kind number and a text.
class SelectionTextTest : public EditorTextTest {
protected:
  static constexpr int kSources = 761;
  static constexpr int kNothing = 0; // no kind

  static std::string AllSymbols() { return Text("所有商品", "所有商品"); }
  static std::string MyLists() { return Text("我的商品組合", "我的商品组合"); }
  static std::string Holdings() { return Text("我的庫存股", "我的库存股"); }

  int Choose(UserScript script, bool holdings = false) {
    WhenDialogOpens(std::move(script));
    return CTQSymbolListMgr::DoSelectUI(&manager, manager.GetSymbolTableMgr(), nullptr, &kind, text,
                                        0, holdings);
  }
  // "kind/text" as UTF-8.
  std::string Answer() const {
    return std::to_string(kind) + "/" + standin::FromAnsi(text.GetString());
  }
  // The source that shows these rows, for sources that may share their name with another one.
  static bool SelectShowing(User& user, const Lines& rows) {
    const int count = static_cast<int>(user.Rows(kSources).size());
    for (int source = 0; source < count; ++source) {
      if (user.Select(kSources, source) && user.Rows(kLists) == rows)
        return true;
    }
    return false;
  }

  const std::string untouched = "0/was";
  int kind = kNothing;
  CString text = "was";
};
