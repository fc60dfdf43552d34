// Opens one of the library's dialogs on the stand-in services, as a terminal would, and prints the
// choice. Without a window system the dialog closes by itself.
#include <cstdio>
#include <string>
#include <string_view>

#include "terminal/StandIn.h"
#include "tqSymbol.h"

namespace {

constexpr char kUsage[] =
    "usage: tqViewer --market DIR [--lang tw|cn] economic|commodities|futures";

struct Options {
  std::string market;
  std::string dialog;
  bool traditional = true;
};

bool ParseOptions(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view name = argv[i];
    if (name == "--market" && i + 1 < argc)
      options.market = argv[++i];
    else if (name == "--lang" && i + 1 < argc)
      options.traditional = std::string_view(argv[++i]) != "cn";
    else
      options.dialog = name;
  }
  return !options.market.empty() && !options.dialog.empty();
}

// The dialog's end code; -2 for an unknown dialog.
int Open(const std::string& dialog, CString& first, CString& second, CString& third) {
  if (dialog == "economic")
    return CTQSymbolListMgr::DoSearchFinIndi(nullptr, "", first, second);
  if (dialog == "commodities")
    return CTQSymbolListMgr::DoSearchCommIndi(nullptr, "", first, second, "", "", InfoCommodities);
  if (dialog == "futures")
    return CTQSymbolListMgr::DoSearchOptionIndi(nullptr, "", first, second, third);
  return -2;
}

} // namespace

int main(int argc, char** argv) {
  Options options;
  if (!ParseOptions(argc, argv, options)) {
    std::fprintf(stderr, "%s\n", kUsage);
    return 2;
  }
  standin::SetTraditional(options.traditional);
  standin::Market market;
  std::string error;
  if (!standin::LoadMarket(options.market, market, error)) {
    std::fprintf(stderr, "tqViewer: %s/%s\n", options.market.c_str(), error.c_str());
    return 1;
  }
  standin::SetMarket(std::move(market));
  CString first;
  CString second;
  CString third;
  const int result = Open(options.dialog, first, second, third);
  if (result < 0) {
    std::fprintf(stderr, "tqViewer: %s could not be opened\n", options.dialog.c_str());
    return 1;
  }
  std::printf("%d: %s %s %s\n", result, standin::FromAnsi(first.GetString()).c_str(),
              standin::FromAnsi(second.GetString()).c_str(),
              standin::FromAnsi(third.GetString()).c_str());
  return 0;
}
