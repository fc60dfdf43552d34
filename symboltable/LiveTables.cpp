#include "symboltable/LiveTables.h"

#include <algorithm>
#include <iterator>

namespace tq {
namespace {

// Plain values, which outlive everything: a terminal may have tables of its own until the end.
// There are seldom more than two. Of those that find no room here nothing is known but their
// number.
const CSymbolTableMgr* live[64];
int unknown = 0;

const CSymbolTableMgr** Find(const CSymbolTableMgr* tables) {
  return std::find(std::begin(live), std::end(live), tables);
}

} // namespace

void NoteMade(const CSymbolTableMgr* tables) {
  const CSymbolTableMgr** const room = Find(nullptr);
  if (room != std::end(live))
    *room = tables;
  else
    ++unknown;
}

void NoteGone(const CSymbolTableMgr* tables) {
  const CSymbolTableMgr** const found = Find(tables);
  if (found != std::end(live))
    *found = nullptr;
  else
    --unknown;
}

bool AreLive(const CSymbolTableMgr* tables) {
  return unknown > 0 || Find(tables) != std::end(live);
}

CSymbolTableMgr* LiveTables(const char* operation, CSymbolTableMgr* tables) {
  if (!IsDebugging() || tables == nullptr || AreLive(tables))
    return tables;
  ReportMistake(TQProblemMisuse, "%s: tables are gone", operation);
  return nullptr;
}

} // namespace tq
