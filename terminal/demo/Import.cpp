#include "terminal/demo/Import.h"

#include <cstdio>
#include <vector>

#include "terminal/StandIn.h"
#include "terminal/demo/Files.h"
#include "terminal/demo/ListRows.h"
#include "terminal/demo/Sample.h"
#include "terminal/demo/Steps.h"

namespace demo {
namespace {

// The lists of the older product. The second is empty: it is skipped together with its number.
std::vector<std::string> Lists() {
  return {SomeSymbols(0, 3), "", SomeSymbols(3, 2)};
}

} // namespace

bool WriteImportFile(const std::string& directory) {
  std::string text = "<?xml version='1.0'?>\n<HaldeUserList>\n";
  for (const std::string& symbols : Lists())
    text += "\t<List><IDs>" + symbols + "</IDs></List>\n";
  return WriteFile(directory + "/OldOTVList.xml", text + "</HaldeUserList>\n");
}

bool ShowImport(CTQSymbolListMgr& manager, const std::string& directory, int listsBefore,
                std::string& error) {
  std::printf("\nLists of an older product, the second of three empty\n");
  Steps steps;
  int expected = 0;
  for (const std::string& symbols : Lists())
    expected += symbols.empty() ? 0 : 1;
  const int lists = manager.GetSymbolListCount(kUserLists);
  steps.Step("lists imported at the start: " + std::to_string(lists - listsBefore),
             lists - listsBefore == expected);
  PrintListRows(manager, kUserLists, listsBefore);
  std::string bytes;
  steps.Step("OldOTVList.xml is now Added_OldOTVList.xml",
             ReadFile(directory + "/OldOTVList.xml", bytes) == ReadResult::Missing &&
                 ReadFile(directory + "/Added_OldOTVList.xml", bytes) == ReadResult::Read);
  manager.LoadOtherProductList();
  steps.Step("LoadOtherProductList: nothing left to import",
             manager.GetSymbolListCount(kUserLists) == lists);
  error = steps.Error();
  return error.empty();
}

} // namespace demo
