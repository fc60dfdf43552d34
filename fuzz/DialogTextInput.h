// Any bytes as what a user types into the text fields of a dialog: names, sub-titles, codes. Every
// list must be whole afterwards, and its file must load again as the same lists, for no dialog
// writes what the file cannot carry.
//
// The second byte of an input chooses the dialog, lines of the rest are the texts in the order in
// which they are typed.
#pragma once

#include <string>
#include <vector>

#include "fuzz/ListFileInput.h"
#include "platform/interface/TQSymbolText.h"
#include "terminal/user/DialogControls.h"
#include "terminal/user/UserScripts.h"

namespace fuzz {

class Typist {
public:
  explicit Typist(std::string_view lines) : lines_(lines) {}

  // Whole characters, as a user types them: the next line, or an empty text behind the last one.
  std::string Next() {
    const std::size_t end = lines_.find('\n');
    const std::string_view line = lines_.substr(0, end);
    lines_.remove_prefix(end == lines_.npos ? lines_.size() : end + 1);
    return standin::Utf8(CString(line.data(), static_cast<int>(line.size())));
  }

  void EditContents(standin::User& user) {
    using namespace standin::controls;
    user.Fill(kName, Next());
    for (int i = 0; i < 2; ++i) {
      user.Fill(kCode, Next());
      user.Press(WindowKey::Enter);
      user.Fill(kHeading, Next());
      user.Click(kAddHeading);
      user.Fill(kCode, Next());
      user.Click(kFind);
      user.DoubleClick(kResults, 0);
    }
    Leave(user);
  }
  void EditLists(standin::User& user) {
    using namespace standin::controls;
    user.ClickRow(kLists, 0);
    user.Press(WindowKey::F2);
    user.Type(Next());
    user.Press(WindowKey::Enter);
    WhenOneOpens([this](standin::User& contents) { EditContents(contents); });
    user.Click(kNewList);
    user.Click(kListsDone);
    Leave(user);
  }
  void Search(standin::User& user) {
    user.Fill(standin::controls::kCode, Next());
    user.Press(WindowKey::Enter);
    Leave(user);
  }
  static void WhenOneOpens(standin::UserScript script) {
    standin::WhenDialogOpens(std::move(script), nullptr);
  }

private:
  static void Leave(standin::User& user) {
    if (user.IsUp())
      user.Click(standin::controls::kDone);
    if (user.IsUp())
      user.CloseByTitleBar();
  }

  std::string_view lines_;
};

inline void OpenDialog(CTQSymbolListMgr& manager, int dialog, Typist& typist) {
  CSymbolTableMgr* const tables = manager.GetSymbolTableMgr();
  const auto edit = [&typist](standin::User& user) { typist.EditContents(user); };
  switch (dialog) {
  case 0:
    Typist::WhenOneOpens([&typist](standin::User& user) { typist.EditLists(user); });
    CTQSymbolListMgr::DoSymbolListUI(&manager, tables, nullptr);
    break;
  case 1:
    Typist::WhenOneOpens([&typist](standin::User& user) { typist.EditLists(user); });
    manager.DoCloudSymbolListUI(&manager, tables, nullptr);
    break;
  case 2: {
    CSymbolList list;
    Typist::WhenOneOpens(edit);
    CTQSymbolListMgr::DoGroupListUI(&manager, tables, &list, 1, nullptr, 0);
    break;
  }
  case 3: {
    SymbolInfo found = {};
    Typist::WhenOneOpens([&typist](standin::User& user) { typist.Search(user); });
    CTQSymbolListMgr::DoSearchUI(&manager, tables, nullptr, typist.Next().c_str(), &found, 1,
                                 nullptr);
    break;
  }
  default: {
    CString name;
    CString code;
    Typist::WhenOneOpens([&typist](standin::User& user) { typist.Search(user); });
    CTQSymbolListMgr::DoSearchFinIndi(nullptr, typist.Next().c_str(), name, code);
    break;
  }
  }
  standin::TakeUnusedScripts();
}

inline std::string CheckDialogText(const unsigned char* data, std::size_t size) {
  constexpr int dialogs = 5;
  const std::string_view bytes = Begin(data, size);
  Typist typist(bytes.substr(bytes.empty() ? 0 : 1));
  MemoryFiles files("<Result><SymbolList DefaultIdx='0'><List ID='a' Name='A' Value='2330.TW'/>"
                    "</SymbolList></Result>");
  {
    CTQSymbolListMgr manager;
    if (!manager.Init(kDirectory, 0, 1, 0, nullptr, 0, 0))
      return "no start";
    OpenDialog(manager, bytes.empty() ? 0 : static_cast<unsigned char>(bytes[0]) % dialogs, typist);
    std::vector<ListState> states;
    std::string broken = ReadLists(manager, states);
    if (!broken.empty())
      return broken;
    if (!AllSurviveSaving(states))
      return "a dialog made a list that its file cannot carry";
    int defaultIndex = 0;
    manager.GetDefaultListIdx(defaultIndex);
    if (!manager.SaveSymbolList())
      return "saving failed";
    manager.GetDefaultListIdx(defaultIndex);
    broken = CheckSavedAgain(files, states, defaultIndex);
    if (!broken.empty())
      return broken;
  }
  return EndOfServices();
}

} // namespace fuzz
