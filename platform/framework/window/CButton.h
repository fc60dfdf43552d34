// CButton: a button with a text, or with a picture where the template says icon.
#pragma once

#include "platform/framework/window/CWnd.h"

class TQFRAMEWORK_API CButton : public CWnd {
public:
  using CWnd::CWnd;

  // The picture of an icon button; false for another button. Its text stays unseen.
  bool SetIcon(WindowButtonIcon icon);
  WindowButtonIcon GetIcon() const;
};
