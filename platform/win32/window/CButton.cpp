#include "platform/framework/window/CButton.h"

#include <cstdint>

#include "platform/framework/window/ButtonPictures.h"
#include "platform/win32/window/WindowRun.h"

namespace {

constexpr int kSize = tq::kPictureSize;
constexpr int kIcons = tq::kPictures;

// Black on a transparent background. A colour bitmap, although two colours would do: Wine takes the
// size of an icon from its colour bitmap and does not centre one that has none.
HICON MakeIcon(const uint16_t (&picture)[kSize]) {
  BYTE keep[kSize * 2];
  static constexpr BYTE black[kSize * kSize * 4] = {};
  for (int row = 0; row < kSize; ++row) {
    keep[row * 2] = static_cast<BYTE>(~(picture[row] >> 8));
    keep[row * 2 + 1] = static_cast<BYTE>(~picture[row]);
  }
  return ::CreateIcon(nullptr, kSize, kSize, 1, 32, keep, black);
}

// Created once and kept until the process ends: every dialog shows the same few.
HICON IconOf(int number) {
  static HICON icons[kIcons] = {};
  if (number != 0 && icons[number] == nullptr)
    icons[number] = MakeIcon(tq::kButtonPictures[number]);
  return icons[number];
}

} // namespace

bool CButton::SetIcon(WindowButtonIcon icon) {
  if (handle_ == nullptr || !tq::HasStyle(handle_, BS_ICON))
    return false;
  ::SendMessageW(handle_, BM_SETIMAGE, IMAGE_ICON,
                 reinterpret_cast<LPARAM>(IconOf(static_cast<int>(icon))));
  return true;
}

WindowButtonIcon CButton::GetIcon() const {
  const LRESULT shown = ::SendMessageW(handle_, BM_GETIMAGE, IMAGE_ICON, 0);
  for (int number = 1; number < kIcons && shown != 0; ++number) {
    if (reinterpret_cast<LRESULT>(IconOf(number)) == shown)
      return static_cast<WindowButtonIcon>(number);
  }
  return WindowButtonIcon::None;
}
