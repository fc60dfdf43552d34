// A manager that has something of everything, on files in memory and a market of its own, and what
// must hold of it whatever was called.
#pragma once

#include <bitset>
#include <memory>
#include <string>

#include "manager/TQSymbolListMgr.h"
#include "terminal/StandIn.h"
#include "tests/operations/MemoryDisk.h"

namespace operations {

// Three exchanges with a few symbols (6488 went over from TW to TE), groups of the types 1, 2, 7
// and 201, two trading systems, and a row for each dialog.
standin::Market SmallestMarket();
// Puts that market behind the services, and ends each dialog as soon as it opens.
void PrepareServices();

// What is there after Populate and that no operation aims at: the lists called z of each kind, in
// memory and in the file, other groups, tables of symbols, default exchanges. An operation may take
// one away (it clears all lists, say); two may not lose one that each of them leaves alone.
using Probes = std::bitset<32>;
// What a bit is about.
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
  // What does not hold of lists, rows, groups, tables or the saved file, in words; else empty.
  std::string Broken();

private:
  MemoryDisk disk_;
  std::unique_ptr<CTQSymbolListMgr> manager_;
};

// Broken() for any manager: of its lists, of what saving and loading again makes of them, and of
// everything else that can be asked.
std::string BrokenLists(CTQSymbolListMgr& manager);
std::string BrokenSave(CTQSymbolListMgr& manager, MemoryDisk& disk);
std::string BrokenAnswers(CTQSymbolListMgr& manager);

} // namespace operations
