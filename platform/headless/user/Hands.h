// What a user's hands do: to windows in memory, or to the screen that shows them. The operations
// are those of UserInput.h. Internal.
#pragma once

#include "platform/headless/user/UserInput.h"

namespace tq::headless {

class Hands {
public:
  virtual ~Hands() = default;
  virtual bool Click(WindowHandle control) = 0;
  virtual bool ClickRow(WindowHandle control, int row, Modifier modifier) = 0;
  virtual bool DoubleClickRow(WindowHandle control, int row, Modifier modifier) = 0;
  virtual bool HoverRow(WindowHandle control, int row) = 0;
  virtual bool IsRowInSight(WindowHandle control, int row) = 0;
  virtual bool PickEntry(WindowHandle control, int index) = 0;
  virtual bool TypeText(WindowHandle dialog, const char* text) = 0;
  virtual bool PressKey(WindowHandle dialog, WindowKey key, Modifier modifier) = 0;
  virtual bool PressLetter(WindowHandle dialog, char letter, Modifier modifier) = 0;
  virtual bool CloseByTitleBar(WindowHandle dialog) = 0;
};

// Those that act on memory itself, where there is no screen.
Hands& MemoryHands();

} // namespace tq::headless
