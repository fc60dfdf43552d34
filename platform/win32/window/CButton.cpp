#include "platform/framework/window/CButton.h"

#include <cstdint>

#include "platform/win32/window/WindowRun.h"

namespace {

constexpr int kSize = 16;
constexpr int kIcons = 6;

// One row of the picture is one number, its left end the highest bit. In the order of
// WindowButtonIcon.
constexpr uint16_t kPictures[kIcons][kSize] = {
    {},
    {0, 0, 0, 0x0180, 0x03C0, 0x07E0, 0x0FF0, 0x1FF8, 0x3FFC, 0x03C0, 0x03C0, 0x03C0, 0x03C0, 0, 0,
     0},
    {0, 0, 0, 0x03C0, 0x03C0, 0x03C0, 0x03C0, 0x3FFC, 0x1FF8, 0x0FF0, 0x07E0, 0x03C0, 0x0180, 0, 0,
     0},
    {0, 0, 0x0100, 0x0300, 0x0700, 0x0F00, 0x1FFC, 0x3FFC, 0x3FFC, 0x1FFC, 0x0F00, 0x0700, 0x0300,
     0x0100, 0, 0},
    {0, 0, 0x300C, 0x381C, 0x1C38, 0x0E70, 0x07E0, 0x03C0, 0x03C0, 0x07E0, 0x0E70, 0x1C38, 0x381C,
     0x300C, 0, 0},
    {0, 0x0F00, 0x3FC0, 0x30C0, 0x6060, 0x6060, 0x6060, 0x6060, 0x30C0, 0x3FE0, 0x0F70, 0x0038,
     0x001C, 0x000E, 0x0006, 0},
};

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
    icons[number] = MakeIcon(kPictures[number]);
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
