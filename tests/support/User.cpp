#include "tests/support/User.h"

#include <gtest/gtest.h>

#include <utility>

void WhenDialogOpens(UserScript script) {
  standin::WhenDialogOpens(std::move(script), [](const std::string& why) { ADD_FAILURE() << why; });
}

int RunDialog(CDialog& dialog, UserScript script) {
  WhenDialogOpens(std::move(script));
  const int code = dialog.DoModal();
  EXPECT_EQ(TakeUnusedScripts(), 0U) << "a dialog that the test has a script for did not open";
  return code;
}
