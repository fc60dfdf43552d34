// A test that acts as the user of a dialog, the same on Windows with real windows and elsewhere
// with windows in memory.
//
//   const int code = RunDialog(dialog, [](User& user) {
//     user.Select(761, "美國");
//     EXPECT_EQ(user.Rows(781), (std::vector<std::string>{"聯邦基金利率"}));
//     user.DoubleClick(781, 0);
//   });
//
// What the user can do and see stands in terminal/user/User.h, which script gets which dialog in
// UserScripts.h beside it.
#pragma once

#include "terminal/user/UserScripts.h"

namespace actions = standin::actions;
using standin::Modifier;
using standin::TakeUnusedScripts;
using standin::User;
using standin::UserScript;
using standin::Utf8;

// The script of the next dialog that opens and has none yet. A script that ends while its dialog is
// up fails the test, and so does a dialog without a script.
void WhenDialogOpens(UserScript script);
// WhenDialogOpens and DoModal. Fails the test when a script was left over.
int RunDialog(CDialog& dialog, UserScript script);
