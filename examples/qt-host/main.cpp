// Opens the editor of the user's lists over the terminal's own Qt window. The library takes the
// terminal's application object, its style and its event loop; the window is named by its number.
#include <cstdio>
#include <string>

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

#include <StandIn.h>
#include <UserScripts.h>
#include <WindowKind.h>
#include <tqSymbol.h>

using standin::User;
using standin::WhenDialogOpens;

namespace {

int Fail(const std::string& why) {
  std::fprintf(stderr, "%s\n", why.c_str());
  return 1;
}

void Complain(const std::string& why) {
  Fail(why);
}

const char* YesOrNo(bool yes) {
  return yes ? "yes" : "no";
}

// As the library takes windows.
WindowHandle HandleOf(const QWidget& widget) {
  return reinterpret_cast<WindowHandle>(widget.winId());
}

} // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow terminal;
  terminal.setWindowTitle(QStringLiteral("terminal"));
  terminal.resize(640, 480);
  terminal.show();

  std::string error;
  const std::string lists = standin::SampleLists();
  TQInitOptions options;
  options.dataDirectory = lists.c_str();
  CTQSymbolListMgr manager;
  if (!standin::ServeSampleMarket(error) || !manager.Init(options))
    return Fail("no sample market");

  // The terminal goes on while the dialog is up.
  int ticks = 0;
  QTimer quotes;
  QObject::connect(&quotes, &QTimer::timeout, [&ticks] { ++ticks; });
  quotes.start(1);

  WhenDialogOpens(
      [&](User& user) {
        std::printf("on the screen: %s\n", YesOrNo(tq::WindowsOnScreen()));
        const QWidget* const dialog = QApplication::activeModalWidget();
        std::printf("modal: %s\n", YesOrNo(dialog != nullptr));
        std::printf("the terminal goes on: %s\n",
                    YesOrNo(user.WaitFor([&ticks] { return ticks > 3; })));
        user.CloseByTitleBar();
      },
      Complain);
  const int code =
      CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), HandleOf(terminal));
  std::printf("closed: %s\n", YesOrNo(code == CDialog::Cancelled));
  std::printf("the terminal is still there: %s\n", YesOrNo(terminal.isVisible()));
}
