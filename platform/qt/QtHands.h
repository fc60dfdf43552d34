// The user's hands by events of Qt, as the mouse and the keyboard make them. Internal.
#pragma once

#include "platform/headless/user/Hands.h"
#include "platform/qt/DialogWindow.h"

namespace tq::qt {

class QtScreen;

class QtHands : public headless::Hands {
public:
  explicit QtHands(QtScreen& screen) : screen_(screen) {}
  bool Click(WindowHandle control) override;
  bool ClickRow(WindowHandle control, int row, headless::Modifier modifier) override;
  bool DoubleClickRow(WindowHandle control, int row, headless::Modifier modifier) override;
  bool HoverRow(WindowHandle control, int row) override;
  bool IsRowInSight(WindowHandle control, int row) override;
  bool PickEntry(WindowHandle control, int index) override;
  bool TypeText(WindowHandle dialog, const char* text) override;
  bool PressKey(WindowHandle dialog, WindowKey key, headless::Modifier modifier) override;
  bool PressLetter(WindowHandle dialog, char letter, headless::Modifier modifier) override;
  bool CloseByTitleBar(WindowHandle dialog) override;

private:
  struct Target; // where the mouse is

  ControlWidget* FindOpen(WindowHandle control);
  DialogWindow* FindListening(WindowHandle dialog);
  bool Reach(ControlWidget& control, const QPoint& point, Target& target);
  bool ReachMiddle(WindowHandle control, Target& target);
  bool ReachRow(WindowHandle control, int row, Target& target);
  bool TypeCharacter(DialogWindow& window, const QString& character);

  QtScreen& screen_;
};

} // namespace tq::qt
