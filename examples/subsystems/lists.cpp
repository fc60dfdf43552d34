// The user's lists: makes one, edits it, saves it and reads it again.
#include "Example.h"

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr manager;
  Expect(manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) != 0, "Init");

  // Adds the list, or gives the one of this identifier and name these symbols; saves.
  Expect(manager.AddSymbolList("CHIPS", 0, Text("半導體"), "2330.TW,2454.TW", 1, 0) != 0, "added");
  // A heading in front of the first row, and a symbol behind the last. These do not save.
  Expect(manager.InsertSymbolList("CHIPS", 0, Text("上市"), 1, 1) != 0, "a heading");
  Expect(manager.InsertSymbolList("CHIPS", 2, "6488.TE", 0, 0) != 0, "a symbol");
  Expect(manager.InsertSymbolList("CHIPS", 2, "2330.TW", 0, 0) == 0, "a list has a symbol once");
  Expect(manager.SaveSymbolList() != 0, "saved");

  // What another start finds on the disk.
  CTQSymbolListMgr later;
  Expect(later.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) != 0, "the second Init");
  CString name;
  Expect(later.GetSymbolListName("CHIPS", name, TQListKindUser) != 0, "the list is there");
  std::printf("%s\n", Shown(name).c_str());
  // Its rows: ids that the service knows, and headings, which have a ":" behind their text.
  CString rows;
  Expect(later.GetSymoblIDList("CHIPS", rows, TQListKindUser) != 0, "its rows");
  int at = 0;
  for (CString row = rows.Tokenize(",", at); at >= 0; row = rows.Tokenize(",", at)) {
    CString symbol;
    later.GetSymbolTableMgr()->LookUpSymbolGetString(FieldSymbolName, row, "", symbol);
    std::printf("  %s %s\n", Shown(row).c_str(), Shown(symbol).c_str());
  }
}
