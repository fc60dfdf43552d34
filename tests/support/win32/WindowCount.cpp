#include "tests/support/WindowCount.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "tests/support/LanguageTurn.h"

namespace {

// Handles have numbers that are reused after an object is freed. After creating more objects than
// there can be reusable numbers, the highest number tells how many objects exist. (Wine's
// GetGuiResources returns 0.)
constexpr int kNewObjects = 200;

size_t NumberOf(HANDLE handle) {
  return reinterpret_cast<size_t>(handle) & 0xFFFF;
}

size_t HighestWindow() {
  std::array<HWND, kNewObjects> windows{};
  size_t highest = 0;
  for (HWND& window : windows) {
    window = ::CreateWindowExW(0, L"Static", nullptr, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                               nullptr, nullptr);
    highest = std::max(highest, NumberOf(window));
  }
  for (const HWND window : windows)
    ::DestroyWindow(window);
  return highest;
}

size_t HighestPen() {
  std::array<HPEN, kNewObjects> pens{};
  size_t highest = 0;
  for (HPEN& pen : pens) {
    pen = ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    highest = std::max(highest, NumberOf(pen));
  }
  for (const HPEN pen : pens)
    ::DeleteObject(pen);
  return highest;
}

} // namespace

int ManyRuns() {
  return 500;
}

bool TakesCase(size_t number) {
  return IsThisLanguagesTurn(number);
}

int RandomActions(size_t walk) {
  return IsThisLanguagesTurn(walk) ? 2000 : 200;
}

int ManyFailures() {
  return IsTraditionChinese() != 0 ? 10 : 3;
}

size_t ResourceSlack() {
  return 100; // handle numbers are not strictly in order
}

size_t WindowResources() {
  return HighestWindow() + HighestPen();
}
