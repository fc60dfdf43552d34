// CWaitCursor: the wait cursor while the object lives; then the shape that was there before.
#pragma once

#include "platform/framework/window/CWnd.h"

class CWaitCursor {
public:
  CWaitCursor() : before_(GetWindowCursor()) { SetWindowCursor(WindowCursor::Wait); }
  ~CWaitCursor() { SetWindowCursor(before_); }
  CWaitCursor(const CWaitCursor&) = delete;
  CWaitCursor& operator=(const CWaitCursor&) = delete;

private:
  WindowCursor before_;
};
