// Shared by the window tests: a dialog that records its events, and a fixture that activates the
// test program's templates.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/ResourceContext.h"
#include "terminal/StandIn.h"
#include "tests/support/User.h"

// The test program's templates in the stand-in's current language.
tq::Resources TestResources();

// In Traditional Chinese 許功蓋, whose second bytes are all a backslash in code page 950; in
// Simplified Chinese three characters whose second bytes are a backslash and bars in 936. As bytes
// of the code page.
CString TrickyText();
inline CString Ansi(const char* utf8) {
  return CString(standin::ToAnsi(utf8).c_str());
}

using Log = std::vector<std::string>;

inline constexpr int kTable = 791; // the table of the large templates

class TestDialog : public CDialog {
public:
  explicit TestDialog(unsigned templateId = 100, const CWnd* parent = nullptr)
      : CDialog(templateId, parent) {}

  Log log;
  // Called after the event is recorded; may be null. Without one, OnOK and OnCancel end the dialog.
  std::function<void()> onInit, onOk, onCancel;
  std::function<void(int, WindowEvent)> onCommand;
  std::function<void(int, const WindowListNotice&)> onNotify;
  std::function<void(unsigned)> onTimer;
  std::function<intptr_t(unsigned, intptr_t, intptr_t)> onMessage;
  std::function<bool(int, WindowKey, WindowHeldKeys)>
      onKey; // keys are recorded only if this is set
  std::function<void(int, int, WindowItemLook&)> onItemLook;
  std::function<CString(int, int, int)> onCellText;
  bool focusFirst = true;

  // Returns what was recorded since the last call.
  Log Take();

protected:
  bool OnInitDialog() override;
  void OnOK() override;
  void OnCancel() override;
  void OnCommand(int id, WindowEvent event) override;
  void OnNotify(int id, const WindowListNotice& notice) override;
  void OnTimer(unsigned id) override;
  intptr_t OnMessage(unsigned code, intptr_t first, intptr_t second) override;
  bool OnKey(int id, WindowKey key, WindowHeldKeys held) override;
  void OnItemLook(int id, int row, WindowItemLook& look) override;
  CString OnCellText(int id, int row, int column) override;
};

class WindowTest : public testing::Test {
protected:
  WindowTest();
  ~WindowTest() override;

  // Runs the dialog with the script and then cancels it.
  void In(TestDialog& dialog, const UserScript& script);
  // The same for a new dialog of template 100.
  void InDialog(const std::function<void(User&, TestDialog&)>& script);

private:
  tq::ResourceContext context_;
  const long held_;
};
