// A host that has an application object of its own, for test programs that do not know Qt.
#include <QApplication>
#include <QLineEdit>

extern "C" __attribute__((visibility("default"))) void tqTestHost() {
  static int count = 1;
  static char name[] = "host";
  static char* arguments[] = {name, nullptr};
  static auto* const application = new QApplication(count, arguments); // as long as the process
  application->setQuitOnLastWindowClosed(false);
  QLineEdit first; // the first window opens what stays open
  first.show();
  QApplication::processEvents();
}
