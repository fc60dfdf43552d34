#include "terminal/demo/Report.h"

#include <cstdio>
#include <cstring>
#include <map>
#include <string>

#include "terminal/StandIn.h"
#include "terminal/demo/ListRows.h"
#include "terminal/demo/Table.h"

namespace demo {
namespace {

constexpr int kPairCells = 20;

void PrintRow(const std::string& number, const std::string& first, const std::string& second) {
  std::printf("  %s  %s%s\n", PaddedLeft(number, 7).c_str(),
              second.empty() ? first.c_str() : Padded(first, kPairCells).c_str(), second.c_str());
}

// The tokens hold what the records lack: unknown ids and the texts of headings.
int PrintRows(CSymbolList& list) {
  const int count = list.GetCount();
  const CStringArray& tokens = list.GetTokens();
  int row = 0;
  int unknown = 0;
  for (int i = 0; i < tokens.GetSize(); ++i) {
    const std::string token = standin::FromAnsi(tokens[i].GetString());
    SymbolInfo record = {};
    const bool heading = token.find(':', 1) != std::string::npos;
    const bool has = row < count && list.GetAt(row, &record);
    if (has && heading && std::strcmp(record.id, ":") == 0) {
      PrintRow(std::to_string(++row), "── " + token.substr(0, token.rfind(':')) + " ──", "");
    } else if (has && !heading && tokens[i] == record.id) {
      PrintRow(std::to_string(++row), token, standin::FromAnsi(record.name));
    } else {
      PrintRow("?", token, "(unknown, kept)");
      ++unknown;
    }
  }
  return unknown;
}

} // namespace

void PrintExchanges(CSymbolTableMgr& tables, bool traditional) {
  const standin::Market& market = standin::CurrentMarket();
  std::map<int, int> resolved;
  std::map<int, std::string> names;
  for (const standin::Exchange& exchange : market.exchanges)
    names[exchange.id] = exchange.name;
  for (const standin::Instrument& instrument : market.instruments) {
    const CString id = standin::ToAnsi(instrument.code + "." + names[instrument.exchId]).c_str();
    CString found;
    resolved[instrument.exchId] += tables.LookUpSymbolGetString(1, id, CString(), found) != 0;
  }
  std::printf("Exchanges\n  %s  %s%s  %s%s\n", "  id", Padded("name", 7).c_str(), "symbols",
              Padded("entitled", 10).c_str(), "title");
  for (const standin::Exchange& exchange : market.exchanges) {
    const bool entitled = tables.IsAuthorizedExch(exchange.name.c_str()) != 0;
    std::printf("  %4d  %s%7d  %s%s\n", exchange.id, Padded(exchange.name, 7).c_str(),
                resolved[exchange.id], Padded(entitled ? "yes" : "no", 10).c_str(),
                (traditional ? exchange.titleTw : exchange.titleCn).c_str());
  }
}

void PrintAllSymbols(CTQSymbolListMgr& manager) {
  SymbolInfo* all = nullptr;
  int count = 0;
  manager.GetAllSymbolInfos(&all, &count);
  std::printf("\nAll symbols: %d, of exchanges", count);
  for (int i = 0; i < count; ++i)
    if (i == 0 || all[i].exchId != all[i - 1].exchId)
      std::printf(" %d", all[i].exchId);
  std::printf("\n");
  CTQSymbolListMgr::FreeSymbolInfos(all);
}

void PrintLists(CTQSymbolListMgr& manager) {
  int shownFirst = -1;
  manager.GetDefaultListIdx(shownFirst);
  const int lists = manager.GetSymbolListCount(kUserLists);
  std::printf("\nLists: %d\n", lists);
  int unknown = 0;
  for (int i = 0; i < lists; ++i) {
    TQSymbolListInfo info;
    CSymbolList* list = nullptr;
    if (!manager.GetTQSymbolListInfo(i, &info, kUserLists) ||
        !manager.GetSymbolList(info.ID, &list, kUserLists))
      continue;
    std::printf("\n%3d  %s  [%s]%s%s  %d rows\n", i, standin::FromAnsi(info.Name).c_str(), info.ID,
                list->GetFlag() ? "  system" : "", i == shownFirst ? "  shown first" : "",
                list->GetCount());
    unknown += PrintRows(*list);
  }
  std::printf("\nIds that no exchange knows: %d, all kept in their lists\n", unknown);
}

} // namespace demo
