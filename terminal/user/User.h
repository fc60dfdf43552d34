// The user of a dialog: hands and eyes, the same on Windows with real windows and elsewhere with
// windows in memory. Tests, the demo and the program of the pictures act through it, from the modal
// handler of the dialog (tq::SetModalHandler).
//
// Text is UTF-8 here. What a user could not do (the control is disabled, hidden or not there,
// another control lies in front of where the mouse would be, the dialog is closed or lies behind
// another one) returns false and does nothing. The mouse is in the middle of the control or row,
// and scrolls there first. An action returns when all that follows from it has happened, timers
// excepted: see WaitFor.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/framework/window/DialogAccess.h"
#include "terminal/user/UserActions.h"

namespace standin {

// The text as scripts have it.
std::string Utf8(const CString& text);

class User {
public:
  explicit User(CDialog& dialog) : dialog_(dialog) {}

  bool Click(int id); // a button, or an edit to go there
  // Row -1 is beside the rows, which is nowhere while they fill the list.
  bool ClickRow(int id, int row, Modifier modifier = Modifier::None);
  bool DoubleClick(int id, int row, Modifier modifier = Modifier::None);
  // The mouse comes and rests for the table's hover time, in which timers are heard.
  bool Hover(int id, int row);
  // The entry of a combo box, or the row of a list, by number or as the first with that text.
  bool Select(int id, int index);
  bool Select(int id, const std::string& text);
  // Into the edit that has the focus, in the place of what is selected; "\b" takes back.
  bool Type(const std::string& text);
  // In the place of the text of that edit.
  bool Fill(int id, const std::string& text);
  bool Press(WindowKey key, Modifier modifier = Modifier::None);
  // A letter or digit, with Alt as a rule: Alt and A press the button whose text has "&A". With
  // Control only A, Y and Z. Without Alt and Control not where a list has the focus.
  bool PressLetter(char letter, Modifier modifier = Modifier::Alt);
  bool CloseByTitleBar();

  // What can be seen. Rows of a list view have their columns joined by " | ".
  std::vector<std::string> Rows(int id) const;
  std::vector<int> SelectedRows(int id) const;
  bool IsInSight(int id, int row) const; // without scrolling
  std::string Text(int id) const;        // of a combo box the chosen entry
  std::string Title() const;
  std::string ToolTip(int id) const;
  bool IsEnabled(int id) const;
  bool IsVisible(int id) const;
  bool HasFocus(int id) const;
  // The whole dialog as text, a line for each control and, up to that number in each list, for each
  // row. Ends with a line end.
  std::string Screen(int rows = 20) const;

  // The dialog itself, for what only a program can ask.
  const CDialog& Dialog() const { return dialog_; }

  bool IsUp() const { return dialog_.IsRunning() && !tq::DialogAccess::HasEnded(dialog_); }
  // Has messages and timers arrive until `condition` holds. False when the dialog ends first, or
  // nothing more can happen (on Windows: nothing does for ten seconds).
  bool WaitFor(const std::function<bool()>& condition);
  // The dialog may stay up when the user has done: something else will end it.
  void LeaveUp() { leaveUp_ = true; }
  bool MayStayUp() const { return leaveUp_; }

private:
  CWnd Control(int id) const { return CWnd(dialog_, id); }
  tq::ControlKind KindOf(int id) const;
  std::string ScreenRows(int id, int rows) const;

  CDialog& dialog_;
  bool leaveUp_ = false;
};

} // namespace standin
