// Opens one of the library's dialogs on the stand-in services, as a terminal would, does what a
// user would do there, and leaves it to the real user. Without a window system the dialog closes by
// itself.
#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "terminal/StandIn.h"
#include "terminal/desk/Session.h"
#include "terminal/viewer/Views.h"

namespace {

struct Options {
  std::string market;
  std::string data;
  std::string view;
  bool traditional = true;
};

bool ParseOptions(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view name = argv[i];
    if (name == "--market" && i + 1 < argc)
      options.market = argv[++i];
    else if (name == "--data" && i + 1 < argc)
      options.data = argv[++i];
    else if (name == "--lang" && i + 1 < argc)
      options.traditional = std::string_view(argv[++i]) != "cn";
    else
      options.view = name;
  }
  return !options.market.empty() && !options.data.empty() && !options.view.empty();
}

int Fail(const std::string& reason) {
  std::fprintf(stderr, "tqViewer: %s\n", reason.c_str());
  return 1;
}

void Complain(const std::string& why) {
  Fail(why);
}

std::string Usage() {
  std::string text = "usage: tqViewer --market DIR --data DIR [--lang tw|cn] VIEW, which is one of";
  for (const viewer::View& view : viewer::Views())
    text += " " + view.name;
  return text;
}

int Open(const viewer::View& view, const std::string& data) {
  CTQSymbolListMgr manager;
  if (!desk::StartLibrary(manager, data.c_str()))
    return Fail("the symbol tables could not be built");
  for (const standin::UserScript& script : view.scripts)
    standin::WhenDialogOpens(script, Complain);
  standin::ShowMessages(true);
  const int code = view.open(manager);
  return standin::TakeUnusedScripts() == 0 && code >= 0 ? 0
                                                        : Fail(view.name + " could not be opened");
}

} // namespace

int main(int argc, char** argv) {
  Options options;
  const bool parsed = ParseOptions(argc, argv, options);
  const auto view =
      std::find_if(viewer::Views().begin(), viewer::Views().end(),
                   [&options](const viewer::View& each) { return each.name == options.view; });
  if (!parsed || view == viewer::Views().end())
    return Fail(Usage());
  standin::SetTraditional(options.traditional);
  standin::Market market;
  std::string error;
  if (!standin::LoadMarket(options.market, market, error))
    return Fail(options.market + "/" + error);
  standin::SetMarket(std::move(market));
  return Open(*view, options.data);
}
