// A manager that has some of everything, on files in memory and a market of its own, and the
// invariants that must hold whatever is called.
#pragma once

#include <bitset>
#include <memory>
#include <string>

#include "manager/TQSymbolListMgr.h"
#include "terminal/StandIn.h"
#include "tests/operations/MemoryDisk.h"

namespace operations {

// Three exchanges with a few symbols (6488 has moved from TW to TE), groups of the types 1, 2, 7
// and 201, two trading systems, and an info row for each dialog.
standin::Market SmallestMarket();
// Makes the services serve that market, and has a user press everything in each dialog and end it.
void PrepareServices();

// What Populate creates and no operation aims at: the list z of each kind in memory and in the
// file, other groups, symbol tables, default exchanges. An operation may remove some of it (by
// clearing all lists, say); two operations that each leave it alone must leave it together.
using Probes = std::bitset<32>;
// The meaning of each bit.
const char* NameOfProbe(std::size_t bit);

class Subject {
public:
  Subject(); // starts the manager with tables, system lists, trading lists and lists "a" to "z"
  ~Subject();
  Subject(const Subject&) = delete;
  Subject& operator=(const Subject&) = delete;

  CTQSymbolListMgr& Manager() { return *manager_; }
  MemoryDisk& Disk() { return disk_; }
  // Deletes the manager.
  void End() { manager_.reset(); }

  Probes Probe();
  // The broken invariant of lists, rows, groups, tables or the saved file in words; else empty.
  std::string Broken();

private:
  MemoryDisk disk_;
  std::unique_ptr<CTQSymbolListMgr> manager_;
};

// Broken() for any manager: checks its lists, the result of saving and loading them again, and all
// queries.
std::string BrokenLists(CTQSymbolListMgr& manager);
std::string BrokenSave(CTQSymbolListMgr& manager, MemoryDisk& disk);
std::string BrokenAnswers(CTQSymbolListMgr& manager);

} // namespace operations
