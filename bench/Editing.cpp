#include "bench/Editing.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <fstream>
#include <memory>
#include <utility>
#include <vector>

#include "bench/Heap.h"
#include "bench/Universe.h"
#include "tqSymbol.h"

namespace bench {
namespace {

constexpr std::size_t kRepetitions = 21;
constexpr double kGoalSorting = 1.5;

void WriteLists(const std::string& directory, std::size_t lists, const std::string& symbols) {
  std::ofstream file(directory + "/SymbolList.xml", std::ios::binary);
  file << "<?xml version='1.0' encoding='big5' ?>\n<Result>\n<SymbolList DefaultIdx='0'>\n";
  for (std::size_t i = 0; i < lists; ++i)
    file << "\t<List ID='id" << i << "' Name='name " << i << "' Value='" << symbols
         << "' Flag='0'/>\n";
  file << "</SymbolList>\n</Result>";
}

off_t SizeOf(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY);
  const off_t size = lseek(file, 0, SEEK_END);
  close(file);
  return size;
}

// The least that a save takes.
void WriteAndFlush(const std::string& path, const std::string& bytes) {
  unlink(path.c_str());
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666);
  if (write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()))
    fsync(file);
  close(file);
}

// Adds a list in front of `lists` others and deletes it again: two saves, compared with two writes.
void MeasureWholeLists(Report& report, const std::string& directory, std::size_t lists) {
  WriteLists(directory, lists, "GONE.XX");
  CTQSymbolListMgr manager;
  manager.ReLoadList(directory.c_str());
  const std::string bytes(static_cast<std::size_t>(SizeOf(directory + "/SymbolList.xml")), 'x');
  bool right = true;
  const auto library = [&] {
    return Elapsed([&] {
      right = manager.AddSymbolList("new", 0, "new", "GONE.XX", 0, 0) != 0 && right;
      right = manager.DeleteSymbolList("new") != 0 && right;
    });
  };
  const auto peer = [&] {
    return Elapsed([&] {
      WriteAndFlush(directory + "/Written.xml", bytes);
      WriteAndFlush(directory + "/Written.xml", bytes);
    });
  };
  report.Ratio("add + delete, " + std::to_string(lists) + " lists / two writes",
               Compare(kRepetitions, library, peer), kNoGoal, 2);
  if (!right || manager.GetSymbolListCount(kUserLists) != static_cast<int>(lists))
    report.Wrong("adding and deleting");
}

// Inserts into and deletes from a list of `symbols` ids, which resolves the list again, compared
// with the service's answer for the same ids. Swapping asks no service.
void MeasureEntries(Report& report, const std::vector<std::string>& ids, std::size_t symbols,
                    CTQSymbolListMgr& manager) {
  std::string value;
  for (std::size_t i = 1; i <= symbols; ++i)
    value += (i > 1 ? "," : "") + ids[i % ids.size()];
  CSymbolList* list = nullptr;
  bool right = manager.GetSymbolList("id0", &list, kUserLists) != 0;
  list->Update1(value.c_str());
  const int middle = static_cast<int>(symbols / 2);
  const auto insert = [&] {
    return Computing([&] {
      right = manager.InsertSymbolList("id0", middle, "GONE.XX", 0, 0) != 0 && right;
      list->Update1(value.c_str());
    });
  };
  const auto ask = [&] {
    return Computing([&] {
      for (int i = 0; i < 2; ++i) {
        SymbolInfo* records = nullptr;
        int count = 0;
        right = VLGetSymbolInfos(value.c_str(), &records, &count) != 0 && right;
        VLFree(records);
      }
    });
  };
  const std::string n = std::to_string(symbols);
  report.Ratio("insert + set, list of " + n + " / service", Compare(kRepetitions, insert, ask),
               kNoGoal, 2 * symbols);
  const double seconds =
      Computing([&] { right = manager.SwapSymbolList("id0", 0, middle) != 0 && right; });
  report.Number("swap in a list of " + n, seconds / static_cast<double>(symbols) * 1e9,
                "ns a symbol", kNoGoal);
  if (!right)
    report.Wrong("entry edits");
}

void MeasureQueries(Report& report, CTQSymbolListMgr& manager) {
  const CString id = "id0";
  CString symbols;
  SymbolInfo record;
  TQSymbolListInfo info;
  manager.GetTQSymbolCount(id, kUserLists);
  const auto before = Allocations();
  bool right = manager.GetSymbolListIDs(kUserLists, id, symbols, nullptr) != 0;
  right = manager.GetTQSymbolInfo(id, 0, &record, kUserLists) != 0 && right;
  right = manager.GetTQSymbolListInfo(0, &info, kUserLists) != 0 && right;
  report.Number("queries of a list", static_cast<double>(Allocations() - before), "", 0);
  if (!right)
    report.Wrong("queries");
}

// The service's answers for all exchanges, one behind the other: a single copy of all bytes.
std::size_t CopyAllSymbols() {
  ExchInfo* exchanges = nullptr;
  int exchangeCount = 0;
  VLGetExch(&exchanges, &exchangeCount, 1);
  std::vector<std::pair<SymbolInfo*, std::size_t>> lists;
  std::size_t total = 0;
  for (int i = 0; i < exchangeCount; ++i) {
    SymbolInfo* list = nullptr;
    int count = 0;
    VLGetSymbolInfos2(exchanges[i].id, -1, &list, &count, 0);
    lists.emplace_back(list, static_cast<std::size_t>(count));
    total += static_cast<std::size_t>(count);
  }
  const std::unique_ptr<SymbolInfo[]> all(new SymbolInfo[total]);
  SymbolInfo* to = all.get();
  for (const auto& [list, count] : lists) {
    std::memcpy(to, list, count * sizeof(SymbolInfo));
    to += count;
    VLFree(list);
  }
  VLFree(exchanges);
  return total;
}

} // namespace

void MeasureEditing(Report& report, const standin::Market& market, const std::string& directory,
                    bool quick) {
  report.Section("editing");
  const std::vector<std::string> ids = FullIds(market);
  for (const std::size_t n : {std::size_t{10}, std::size_t{1000}, std::size_t{100'000}}) {
    if (quick && n > 1000)
      continue;
    MeasureWholeLists(report, directory, n);
    WriteLists(directory, 1, ids.front());
    CTQSymbolListMgr manager;
    manager.ReLoadList(directory.c_str());
    MeasureEntries(report, ids, n, manager);
    MeasureQueries(report, manager);
  }
  unlink((directory + "/SymbolList.xml").c_str());
  unlink((directory + "/Written.xml").c_str());
}

void MeasureSorting(Report& report, std::size_t repetitions) {
  CTQSymbolListMgr manager;
  std::size_t copied = 0;
  const auto library = [&] { return Computing([&] { manager.SortAllSymbolByExch(); }); };
  const auto peer = [&] { return Computing([&] { copied = CopyAllSymbols(); }); };
  report.Ratio("all symbols by exchange / service + copy", Compare(repetitions, library, peer),
               kGoalSorting);
  SymbolInfo* all = nullptr;
  int count = 0;
  if (manager.GetAllSymbolInfos(&all, &count) == 0 || static_cast<std::size_t>(count) != copied)
    report.Wrong("all symbols by exchange");
  CTQSymbolListMgr::FreeSymbolInfos(all);
}

} // namespace bench
