// One session of each editor, from the entry operation to the manager's lists: what a user would do
// in a minute. A session goes on whatever fails on the way.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"
#include "tests/support/User.h"
#include "tests/support/WindowCount.h"

struct EditorSession {
  const char* name;
  // Opens the editor on the manager; `text` is somewhere to write to.
  int (*open)(CTQSymbolListMgr& manager, CString& text);
  void (*act)(User& user);
};

// As of a test's name.
inline std::string NameOfSession(const testing::TestParamInfo<EditorSession>& session) {
  return session.param.name;
}

// The editors, all of them.
std::vector<EditorSession> EditorSessions();

class SessionTest : public EditTest {
protected:
  SessionTest() {
    standin::SetMarket(GroupMarket());
    StartAgain();
    manager.AddCloudSymbolList("K1", "cloudy", "2330.TW", 0);
    manager.AddCloudSymbolList("K2", "rainy", "2454.TW", 0);
  }
  ~SessionTest() override { TakeUnusedScripts(); } // of dialogs that failed to open

  void StartAgain() {
    StartWith({"A/one/2330.TW,gone.TW", "ZUSYSLIST1/sys/1101.TW", "C/three/Tag:,2454.TW,1101.TW"});
  }
  int Run(const EditorSession& session) {
    TakeUnusedScripts();
    WhenDialogOpens(session.act);
    CString text = "A";
    return session.open(manager, text);
  }
};
