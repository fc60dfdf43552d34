// A terminal's start and end as far as watch lists are concerned, on the stand-in services: loads a
// market, starts the library on a data directory, shows what it resolved, saves, and compares the
// list file with the original.
#include <cstdio>
#include <string>

#include "terminal/StandIn.h"
#include "terminal/demo/Combinations.h"
#include "terminal/demo/Editing.h"
#include "terminal/demo/Editors.h"
#include "terminal/demo/Files.h"
#include "terminal/demo/Options.h"
#include "terminal/demo/Report.h"
#include "terminal/demo/Services.h"
#include "tqSymbol.h"

namespace {

int Fail(const std::string& reason) {
  std::fprintf(stderr, "tqDemo: %s\n", reason.c_str());
  return 1;
}

std::string FirstMessage() {
  return standin::Messages().empty() ? "" : "message " + std::to_string(standin::Messages()[0].id);
}

int ShowLibrary(const demo::Options& options, const std::string& path, const std::string& before) {
  CTQSymbolListMgr manager;
  if (!manager.Init(options.data.c_str(), 0, 1, 0, nullptr, 0, 0))
    return Fail("the symbol tables could not be built");
  const bool hasLists = before.find("<List ") != std::string::npos;
  if (hasLists && manager.GetSymbolListCount(1) == 0)
    return Fail(path + ": not a readable list file; it is left as it is");
  demo::PrintExchanges(*manager.GetSymbolTableMgr(), options.traditional);
  demo::PrintAllSymbols(manager);
  demo::PrintLists(manager);
  if (!manager.SaveSymbolList())
    return Fail(path + ": could not be saved (" + FirstMessage() + ")");
  std::string after;
  if (demo::ReadFile(path, after) != demo::ReadResult::Read)
    return Fail(path + ": cannot be read back");
  if (!before.empty() && after != before)
    return Fail(path + ": saved, but not the bytes that were there before");
  std::printf("Saved %s: %zu bytes, %s\n", path.c_str(), after.size(),
              before.empty() ? "new" : "what it was, byte for byte");
  return 0;
}

} // namespace

int main(int argc, char** argv) {
  demo::Options options;
  std::string error;
  if (!demo::ParseOptions(argc, argv, options, error))
    return Fail(error);
  standin::SetTraditional(options.traditional);
  standin::Market market;
  if (!standin::LoadMarket(options.market, market, error))
    return Fail(options.market + "/" + error);
  standin::SetMarket(std::move(market));
  std::string before;
  const std::string path = options.data + "/SymbolList.xml";
  if (!demo::IsDirectory(options.data))
    return Fail(options.data + ": no such directory");
  if (demo::ReadFile(path, before) == demo::ReadResult::Unreadable)
    return Fail(path + ": cannot be read");
  std::printf("tqSymbol on the market in %s, lists in %s, %s\n\n", options.market.c_str(),
              options.data.c_str(),
              options.traditional ? "Traditional Chinese (950)" : "Simplified Chinese (936)");
  const int result = ShowLibrary(options, path, before);
  if (result != 0 || options.edit.empty())
    return result;
  if (!demo::WriteFile(options.edit + "/SymbolList.xml", before))
    return Fail(options.edit + ": cannot be written to");
  if (!demo::ShowEditing(options.edit, error) || !demo::ShowServices(options.edit, error) ||
      !demo::ShowEditors(options.edit, error))
    return Fail(error);
  demo::PrintCombinations();
  return 0;
}
