// What the terminal is told while the library works: the lines of the log pane, and whether the
// pages have to look at the lists again.
//
// The library tells from within its operations. So a line is only noted here, and the window is
// woken by a message: it looks when the operation has returned, or while a dialog of it waits for
// the user.
#pragma once

#include <deque>

#include "platform/framework/window/CWnd.h"

namespace desk {

class News {
public:
  enum class Kind {
    Told,   // TQSCall
    Logged, // a line of the library's log
    Shown,  // a message box
    Noted,  // by the terminal itself
  };
  enum Column : int { Time, What, Number, Content, ColumnCount };
  // The message that wakes the window.
  enum : unsigned { kMessage = 0x420 };
  // Of more lines the oldest go.
  static constexpr int kMostLines = 1000;

  // `number` is a notification's code, a line's level or a message's entry in the string table; 0
  // when there is none. A notification about lists makes them to be looked at.
  void Add(Kind kind, long number, const CString& text);
  // For what an operation has stored without a word, because its caller knows of it.
  void ListsChanged();

  // The window to be woken; one without a handle: none.
  void Wake(const CWnd& window);
  // What changed since the last call. From then on the window is woken again.
  struct Change {
    bool lists = false;      // of any kind, or groups, or their names
    bool cloudLists = false; // those of the cloud among them
  };
  Change TakeChange();

  int LineCount() const { return static_cast<int>(lines_.size()); }
  CString Cell(int row, int column) const;

private:
  struct Line {
    CString time;
    Kind kind;
    long number;
    CString text;
  };

  void Post();

  std::deque<Line> lines_;
  CWnd window_;
  Change change_;
  bool posted_ = false; // one message is enough until it has come
};

} // namespace desk
