// What the symbol tables know, and which symbol a typed text means.
#include "Example.h"

namespace {

void Print(CSymbolTableMgr& tables, const char* id) {
  CString name;
  CString price;
  int lot = 0;
  // Without an exchange's name the id's suffix says it, or the user's default exchanges do.
  if (!tables.LookUpSymbolGetString(FieldSymbolName, id, "", name)) {
    std::printf("  %-10s is no symbol\n", id);
    return;
  }
  tables.LookUpSymbolGetString(FieldReferencePrice, id, "", price);
  tables.LookUpSymbolGetInt(FieldTradeLot, id, "", lot);
  std::printf("  %-10s %s, %s, lots of %d\n", id, Shown(name).c_str(), price.GetString(), lot);
}

} // namespace

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr manager;
  Expect(manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) != 0, "Init");
  CSymbolTableMgr& tables = *manager.GetSymbolTableMgr(); // there is one after Init

  std::printf("Attributes\n");
  for (const char* id : {"2330.TW", "2330", "AAPL.NASD", "TXFL6.TF", "NOSUCH.TW"})
    Print(tables, id);

  // Of several symbols that a text may mean, only one whose code it is counts: names that begin
  // alike are left to the dialog of the search.
  std::printf("Typed texts\n");
  for (const char* typed : {"2330", "台積電", "nvda", "nothing"}) {
    SymbolInfo symbol = {};
    const bool found = manager.IsValidSymbol(Text(typed), &symbol) != 0;
    std::printf("  %s: %s\n", typed, found ? symbol.id : "no symbol");
  }

  CString id;
  Expect(tables.LookUpNameGetSymbolID(Text("台積電"), id) != 0, "a symbol of that name");
  Expect(id == "2330.TW", "its id");
}
