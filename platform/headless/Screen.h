// The screen on which windows in memory are shown, where there is one. Memory stays what counts:
// the screen shows what it holds, and says what the user does (user/Actions.h). So every rule of
// the window layer is the same with and without a screen. Internal.
//
// A screen is a library of its own, which is loaded when it is wanted: tqFramework needs no window
// system to be there.
#pragma once

#include <cstdint>

#include "platform/headless/Windows.h"

namespace tq::headless {

class Hands;

class Screen {
public:
  virtual ~Screen() = default;

  // Before the first dialog of a nest, and after it. Begin answers why there can be no windows now,
  // in English, or null.
  virtual const char* Begin() = 0;
  virtual void End() = 0;

  // Makes the windows of a dialog, hidden as yet. The parent is a dialog of memory's, a window of
  // the host's, or null. False when the system makes none.
  virtual bool Open(Dialog& dialog, WindowHandle parent) = 0;
  virtual void Close(const Dialog& dialog) = 0;

  // Shows what memory holds now.
  virtual void Refresh() = 0;
  // Delivers what the system has for the process, after a refresh. While there is nothing it waits,
  // so many milliseconds at most and until the next timer is due. False: nothing came.
  virtual bool Serve(unsigned patience) = 0;
  // Has a Serve that waits return: a message was posted, a timer set, or a dialog ends.
  virtual void Wake() = 0;

  // Whether a text fits into a row of the list.
  virtual bool FitsInRow(const Control& list, const CString& text) = 0;
  virtual void SetCursor(WindowCursor shape) = 0;
  // Whether it is a window of the host's that still exists.
  virtual bool IsHostWindow(WindowHandle handle) = 0;

  virtual Hands& UserHands() = 0;
};

// That of the dialogs which are up; null without one, and while no dialog is up.
TQFRAMEWORK_API Screen* CurrentScreen();
// Whether dialogs are to have a screen and there is none.
bool IsScreenLacking();

// The scope of a modal run: in the outermost one it is decided whether there is a screen.
class ScreenUse {
public:
  ScreenUse();
  ~ScreenUse();
  ScreenUse(const ScreenUse&) = delete;
  ScreenUse& operator=(const ScreenUse&) = delete;
};

// What a screen's library is asked for first, under this name. The screen lives as long as the
// process. Null when the library is of another version than tqFramework's.
inline constexpr char kScreenEntry[] = "tqScreen";
using ScreenEntry = Screen* (*)(int version); // TQSYMBOL_VERSION of tqFramework

} // namespace tq::headless
