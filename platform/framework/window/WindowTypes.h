// The vocabulary of the window layer: handles, events, keys, and how a row looks. It needs no type
// of the operating system's headers: the headers of this layer compile before and after
// <windows.h>, and no method is named like one of its macros (hence SetText and Post, where the
// system's functions are SetWindowText and PostMessage).
#pragma once

// On Windows this is the HWND itself. Elsewhere it is a number that only this layer understands; it
// is never given out twice.
struct HWND__; // NOLINT(bugprone-reserved-identifier): the system names it so
using WindowHandle = HWND__*;

// What a control tells its dialog. Only actions of the user cause events, never an operation of
// this layer that changes a control.
enum class WindowEvent {
  Clicked, // button: clicked, or its key pressed
  // List box, combo box: the user chose. A click on a row tells so always, also where that row was
  // chosen before; a key only when it chose something else.
  SelectionChanged,
  DoubleClicked, // list box: on a row, which is selected by then
  TextChanged,   // edit: after each character, paste or deletion
  FocusGained,   // edit: the user went there
  // Edit: the user went to another control of the same dialog. The handler may take the focus back
  // (SetFocus): then the click, or the letter with Alt, that took it has no effect, and nothing
  // gains the focus.
  FocusLost,
};

// What a list view tells its dialog.
struct WindowListNotice {
  enum class Kind {
    SelectionChanged, // once for what the user did, however many rows changed
    DoubleClicked,
  };
  Kind kind;
  int row; // the row that was double-clicked, -1 below the rows; -1 for SelectionChanged
};

// Keys that a dialog may want for itself before they take their usual way. Letters come only with
// Control.
enum class WindowKey {
  Enter,
  Escape,
  Tab,
  Space,
  Up,
  Down,
  Home,
  End,
  Delete,
  PageUp,
  PageDown,
  F2,
  A,
  Y,
  Z,
};

constexpr bool IsLetterKey(WindowKey key) {
  return key >= WindowKey::A;
}

// What is held down while a key is pressed.
struct WindowHeldKeys {
  bool shift = false;
  bool control = false;
  bool alt = false;
};

// How an owner-drawn list box shows one row. The text is the row's own.
struct WindowItemLook {
  bool bold = false;
  bool marked = false; // a mark in front of the text
};

// The pictures of icon buttons.
enum class WindowButtonIcon { None, Up, Down, Left, Remove, Search };

enum class WindowCursor { Arrow, Wait };
