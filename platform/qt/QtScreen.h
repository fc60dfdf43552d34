// The screen on Qt's widgets. Internal.
#pragma once

#include <QObject>

#include <memory>
#include <vector>

#include "platform/headless/Screen.h"
#include "platform/headless/user/Hands.h"
#include "platform/qt/Application.h"
#include "platform/qt/DialogWindow.h"
#include "platform/qt/Pump.h"

namespace tq::qt {

class QtScreen : public headless::Screen {
public:
  QtScreen();
  ~QtScreen() override;
  const char* Begin() override;
  void End() override;
  bool Open(headless::Dialog& dialog, WindowHandle parent) override;
  void Close(const headless::Dialog& dialog) override;
  void Refresh() override;
  bool Serve(unsigned patience) override;
  void Wake() override;
  bool FitsInRow(const headless::Control& list, const CString& text) override;
  void SetCursor(WindowCursor shape) override;
  bool IsHostWindow(WindowHandle handle) override;
  headless::Hands& UserHands() override { return *hands_; }

  // The window and the widget of a handle of memory's; null when there is none.
  DialogWindow* WindowOf(const headless::Dialog* dialog) const;
  ControlWidget* WidgetOf(WindowHandle control) const;

private:
  QWidget* ParentOf(WindowHandle parent) const;

  Application application_;
  std::vector<std::unique_ptr<DialogWindow>> windows_; // the innermost last
  std::unique_ptr<Pump> pump_;
  std::unique_ptr<headless::Hands> hands_;
  bool waits_ = false; // the wait cursor is up
};

} // namespace tq::qt
