#include "platform/qt/Application.h"

#include <QThread>

#include <clocale>
#include <string>

#include "platform/qt/Display.h"

namespace tq::qt {

namespace {

// Qt takes the locale of the environment; the host's is put back, by which it writes numbers.
class KeptLocale {
public:
  KeptLocale() : before_(std::setlocale(LC_ALL, nullptr)) {}
  ~KeptLocale() { std::setlocale(LC_ALL, before_.c_str()); }
  KeptLocale(const KeptLocale&) = delete;
  KeptLocale& operator=(const KeptLocale&) = delete;

private:
  std::string before_;
};

} // namespace

const char* Application::Begin() {
  const QCoreApplication* const present = QCoreApplication::instance();
  if (present == nullptr)
    return Make();
  if (qobject_cast<const QApplication*>(present) == nullptr)
    return "the host's application object has no widgets";
  if (present->thread() != QThread::currentThread())
    return "the host's application object belongs to another thread";
  return nullptr;
}

// Qt ends the process when it finds no display, so it is asked only when there is one.
const char* Application::Make() {
  if (const char* const why = WhyNoDisplay())
    return why;
  static char name[] = "tqSymbol";
  static char* arguments[] = {name, nullptr};
  static int count = 1;
  const KeptLocale kept;
  own_ = std::make_unique<QApplication>(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  return nullptr;
}

} // namespace tq::qt
