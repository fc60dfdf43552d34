#include "platform/qt/Display.h"

#include <QFile>
#include <QLibraryInfo>
#include <QStringList>

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tq::qt {

namespace {

bool IsSaid(const char* variable) {
  const char* const value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

bool HasPlugin(const char* name) {
  QStringList folders{QLibraryInfo::path(QLibraryInfo::PluginsPath)};
  folders += qEnvironmentVariable("QT_PLUGIN_PATH").split(u':', Qt::SkipEmptyParts);
  for (const QString& folder : folders) {
    if (QFile::exists(folder + QStringLiteral("/platforms/lib") + QLatin1String(name) +
                      QStringLiteral(".so")))
      return true;
  }
  return false;
}

// Connects as Qt will, by the library that Qt's own plugin for it needs.
bool AnswersX() {
  if (!IsSaid("DISPLAY") || !HasPlugin("qxcb"))
    return false;
  void* const library = ::dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr)
    return false;
  using Connect = void* (*)(const char*, int*);
  using HasError = int (*)(void*);
  using Disconnect = void (*)(void*);
  const auto connect = reinterpret_cast<Connect>(::dlsym(library, "xcb_connect"));
  const auto hasError = reinterpret_cast<HasError>(::dlsym(library, "xcb_connection_has_error"));
  const auto disconnect = reinterpret_cast<Disconnect>(::dlsym(library, "xcb_disconnect"));
  bool answers = false;
  if (connect != nullptr && hasError != nullptr && disconnect != nullptr) {
    void* const connection = connect(nullptr, nullptr);
    answers = hasError(connection) == 0;
    disconnect(connection);
  }
  ::dlclose(library);
  return answers;
}

std::string WaylandSocket() {
  const std::string name = std::getenv("WAYLAND_DISPLAY");
  const char* const folder = std::getenv("XDG_RUNTIME_DIR");
  return name.front() == '/' || folder == nullptr ? name : std::string(folder) + '/' + name;
}

bool AnswersWayland() {
  if (!IsSaid("WAYLAND_DISPLAY") || !HasPlugin("qwayland-generic"))
    return false;
  sockaddr_un address{};
  const std::string path = WaylandSocket();
  if (path.size() >= sizeof address.sun_path)
    return false;
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, path.c_str(), path.size());
  const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (socket < 0)
    return false;
  const bool answers =
      ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  ::close(socket);
  return answers;
}

} // namespace

const char* WhyNoDisplay() {
  if (IsSaid("QT_QPA_PLATFORM")) // somebody knows better
    return nullptr;
  if (AnswersX() || AnswersWayland())
    return nullptr;
  return IsSaid("DISPLAY") || IsSaid("WAYLAND_DISPLAY") ? "the display does not answer"
                                                        : "there is no display";
}

} // namespace tq::qt
