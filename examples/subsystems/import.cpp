// Lists of an older product, which Init takes over once from a file in the data directory.
#include <fstream>

#include "Example.h"

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  const std::string file = directory + "/OldOTVList.xml";
  std::ofstream(file) << "<?xml version='1.0'?>\n"
                         "<HaldeUserList>\n"
                         "  <List><IDs>2330.TW,2317.TW</IDs></List>\n"
                         "  <List><IDs>1101.TW</IDs></List>\n"
                         "</HaldeUserList>\n";

  CTQSymbolListMgr manager;
  Expect(manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) != 0, "Init");
  PrintLists(manager, TQListKindUser);

  // Each list is logged and told as if the user had made it.
  Expect(standin::Notifications().size() == 2, "told of two lists");
  // The file has another name now, so that the next start imports nothing.
  Expect(!std::ifstream(file).is_open(), "the file is renamed");
  Expect(std::ifstream(directory + "/Added_OldOTVList.xml").is_open(), "and kept");
  Expect(manager.LoadOtherProductList() == 0, "nothing is left to import");
}
