// The application object: the host's, or one of this library's for as long as dialogs run.
// Internal.
#pragma once

#include <QApplication>

#include <memory>

namespace tq::qt {

class Application {
public:
  // Sees to it that there is one. Null, or why there can be none, in English.
  const char* Begin();
  // Ends its own.
  void End() { own_.reset(); }
  bool IsOwn() const { return own_ != nullptr; }

private:
  const char* Make();

  std::unique_ptr<QApplication> own_;
};

} // namespace tq::qt
