#include "platform/framework/window/CButton.h"

#include "platform/headless/Windows.h"

using namespace tq::headless;

bool CButton::SetIcon(WindowButtonIcon icon) {
  Control* const button = FindControl(handle_, tq::ControlKind::Button);
  if (button == nullptr || (button->style & tq::TemplateIcon) == 0)
    return false;
  button->icon = icon;
  return true;
}

WindowButtonIcon CButton::GetIcon() const {
  const Control* const button = FindControl(handle_, tq::ControlKind::Button);
  return button == nullptr ? WindowButtonIcon::None : button->icon;
}
