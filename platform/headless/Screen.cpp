// Whether dialogs have a screen: the only place where that is decided.
#include "platform/headless/Screen.h"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <string>

#include "platform/framework/window/WindowKind.h"
#include "platform/headless/Queue.h"
#include "platform/interface/TQSymbolVersion.h"

namespace tq {

namespace {

WindowKind chosen = WindowKind::Automatic;
std::string& Missing() {
  static std::string why;
  return why;
}

// The terminal's choice, unless the environment says something else.
WindowKind Chosen() {
  const char* const said = std::getenv("TQSYMBOL_WINDOWS");
  if (said != nullptr && std::strcmp(said, "memory") == 0)
    return WindowKind::Memory;
  if (said != nullptr && std::strcmp(said, "screen") == 0)
    return WindowKind::Screen;
  return chosen;
}

} // namespace

void ChooseWindows(WindowKind kind) {
  chosen = kind;
}

bool WindowsOnScreen() {
  return headless::CurrentScreen() != nullptr;
}

const char* WindowsMissing() {
  return Missing().c_str();
}

namespace headless {

namespace {

constexpr char kLibrary[] = "libtqScreenQt.so.";

Screen* current = nullptr;
int uses = 0;

// Where this library lies, with the separator.
std::string OwnDirectory() {
  Dl_info info{};
  if (::dladdr(reinterpret_cast<const void*>(&OwnDirectory), &info) == 0 ||
      info.dli_fname == nullptr)
    return {};
  const std::string path = info.dli_fname;
  return path.substr(0, path.rfind('/') + 1);
}

// The library beside this one, else the one that the system finds. It stays: a window system does
// not bear being unloaded.
void* LoadLibrary() {
  const std::string name = kLibrary + std::to_string(TQSYMBOL_VERSION_MAJOR);
  constexpr int kHow = RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE;
  void* const beside = ::dlopen((OwnDirectory() + name).c_str(), kHow);
  return beside != nullptr ? beside : ::dlopen(name.c_str(), kHow);
}

// The screen, loaded when it is wanted for the first time; null, and why, when there is none.
Screen* Load(std::string& why) {
  static Screen* screen = nullptr;
  if (screen != nullptr)
    return screen;
  void* const library = LoadLibrary();
  if (library == nullptr) {
    const char* const error = ::dlerror();
    why = error == nullptr ? "the library for windows cannot be loaded" : error;
    return nullptr;
  }
  const auto entry = reinterpret_cast<ScreenEntry>(::dlsym(library, kScreenEntry));
  screen = entry == nullptr ? nullptr : entry(TQSYMBOL_VERSION);
  if (screen == nullptr)
    why = "the library for windows is of another version";
  return screen;
}

// Whether the environment names one: a server without does not load a window system for nothing.
bool NamesDisplay() {
  for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* const value = std::getenv(name);
    if (value != nullptr && *value != '\0')
      return true;
  }
  return false;
}

Screen* Find(std::string& why) {
  const WindowKind kind = Chosen();
  if (kind == WindowKind::Memory)
    return nullptr;
  if (kind == WindowKind::Automatic && !NamesDisplay()) {
    why = "there is no display";
    return nullptr;
  }
  Screen* const screen = Load(why);
  const char* const refused = screen == nullptr ? nullptr : screen->Begin();
  if (refused != nullptr)
    why = refused;
  return refused == nullptr ? screen : nullptr;
}

} // namespace

Screen* CurrentScreen() {
  return current;
}

ScreenUse::ScreenUse() {
  if (uses++ != 0)
    return;
  std::string why;
  current = Find(why);
  Missing() = why;
}

ScreenUse::~ScreenUse() {
  if (--uses != 0 || current == nullptr)
    return;
  current->End();
  current = nullptr;
}

bool IsScreenLacking() {
  return current == nullptr && Chosen() == WindowKind::Screen;
}

} // namespace headless
} // namespace tq
