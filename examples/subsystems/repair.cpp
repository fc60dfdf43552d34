// A list file that does not load: what the load came to, the lists that a repair brings back, and
// the lists of earlier days.
#include <fstream>

#include "Example.h"

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  const std::string file = directory + "/SymbolList.xml";
  // Another program has written a name with an ampersand, and was ended in the middle of the file.
  std::ofstream(file) << "<?xml version='1.0' encoding='big5' ?>\n<Result>\n"
                         "<SymbolList DefaultIdx='0'>\n"
                         "\t<List ID='TECH' Name='Technology' Value='2330.TW,2317.TW' Flag='0'/>\n"
                         "\t<List ID='RD' Name='R&D' Value='2454.TW' Flag='0'/>\n"
                         "\t<List ID='BANK' Name='Banks' Value='2881.TW,28";

  CTQSymbolListMgr manager;
  Start(manager, directory);
  int line = 0;
  CString reason;
  Expect(manager.GetLoadState(TQListFileWorking, line, reason) == TQLoadDamaged, "damaged");
  std::printf("%s\n", reason.GetString());

  TQRepairCounts counts;
  Expect(manager.RepairSymbolList(counts) != 0, "repaired");
  std::printf("%d whole, %d mended, %d lost\n", counts.whole, counts.mended, counts.lost);
  PrintLists(manager, TQListKindUser);

  // Until the next save the file is as it was. That keeps it beside the new one; with a history it
  // is kept under the name of the day too.
  manager.SetHistory(7);
  Expect(manager.SaveSymbolList() != 0, "saved");
  Expect(std::ifstream(directory + "/SymbolList_Kept.xml").is_open(), "the old file is kept");
  CStringArray days;
  Expect(manager.GetHistory(days) == 1, "one day");
  Expect(manager.RestoreHistory(days[0]) != 0, "loaded as the backup is");
}
