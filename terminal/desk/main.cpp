// The stand-in terminal as a program: `./run terminal`. Without a window system its window closes
// by itself.
#include <cstdio>
#include <string>
#include <string_view>

#include "terminal/StandIn.h"
#include "terminal/desk/DeskDialog.h"
#include "terminal/desk/Session.h"

namespace {

struct Options {
  std::string market;
  std::string data;
  bool traditional = true;
};

int Fail(const std::string& reason) {
  std::fprintf(stderr, "tqTerminal: %s\n", reason.c_str());
  return 1;
}

bool ParseOptions(int argc, char** argv, Options& options) {
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string_view name = argv[i];
    const std::string value = argv[i + 1];
    if (name == "--market")
      options.market = value;
    else if (name == "--data")
      options.data = value;
    else if (name == "--lang" && (value == "tw" || value == "cn"))
      options.traditional = value == "tw";
    else
      return false;
  }
  return argc % 2 == 1 && !options.market.empty() && !options.data.empty();
}

// The manager lives as long as the terminal, and its end saves nothing: all was saved when it was
// changed.
int Run(const Options& options) {
  CTQSymbolListMgr manager;
  if (!desk::StartLibrary(manager, options.data.c_str()))
    return Fail("the symbol tables could not be built");
  return desk::RunDesk(manager) == CDialog::Failed ? Fail("the window could not be opened") : 0;
}

} // namespace

int main(int argc, char** argv) {
  Options options;
  if (!ParseOptions(argc, argv, options))
    return Fail("usage: tqTerminal --market DIR --data DIR [--lang tw|cn]");
  standin::SetTraditional(options.traditional);
  standin::Market market;
  std::string error;
  if (!standin::LoadMarket(options.market, market, error))
    return Fail(options.market + "/" + error);
  standin::SetMarket(std::move(market));
  standin::RecordCalls(false); // nobody looks at them, and a terminal runs all day
  standin::ShowMessages(true);
  return Run(options);
}
