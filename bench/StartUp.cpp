#include "bench/StartUp.h"

#include <sys/wait.h>
#include <unistd.h>

#include "bench/Heap.h"
#include "platform/services/tqStock.h"
#include "tqSymbol.h"

namespace bench {
namespace {

constexpr double kGoalRatio = 1.5;
constexpr double kGoalBytes = 256;

// Without a data directory, so that no file is read or written.
bool InitManager(CTQSymbolListMgr& manager) {
  return manager.Init("", 0, 1, 0, nullptr, 0, 0) != 0;
}

// What a start-up cannot do without: the service's records, each set up once.
std::size_t ReceiveRecords() {
  std::size_t usable = 0;
  ExchInfo* exchanges = nullptr;
  int exchangeCount = 0;
  VLGetExch(&exchanges, &exchangeCount, 1);
  for (int i = 0; i < exchangeCount; ++i) {
    BaseAttr* records = nullptr;
    int count = 0;
    VLGetBaseAttrs2(exchanges[i].id, -1, &records, &count, 0, 1);
    for (int k = 0; k < count; ++k) {
      CStaticKey key;
      usable += key.Setup(&records[k]) != 0;
    }
    VLFree(records);
  }
  VLFree(exchanges);
  return usable;
}

// A start-up happens once in a process. So each is measured in a process of its own, where memory comes
// from the system and not from what an earlier repetition left behind. Negative when `work` returned
// false or the process failed.
template <typename Work> double InOwnProcess(Work work) {
  int ends[2];
  if (pipe(ends) != 0)
    return -1;
  const pid_t child = fork();
  if (child == 0) {
    bool right = false;
    double seconds = Computing([&] { right = work(); });
    if (!right)
      seconds = -1;
    _exit(write(ends[1], &seconds, sizeof(seconds)) == sizeof(seconds) ? 0 : 1);
  }
  close(ends[1]);
  double seconds = -1;
  if (child < 0 || read(ends[0], &seconds, sizeof(seconds)) != sizeof(seconds))
    seconds = -1;
  close(ends[0]);
  if (child > 0)
    waitpid(child, nullptr, 0);
  return seconds;
}

void MeasureTime(Report& report, std::size_t symbols, std::size_t repetitions) {
  bool right = true;
  const auto checked = [&](double seconds) {
    right = right && seconds > 0;
    return seconds;
  };
  const auto library = [&] {
    return checked(InOwnProcess([] {
      auto* manager = new CTQSymbolListMgr; // the process ends before it does
      return InitManager(*manager);
    }));
  };
  const auto peer = [&] {
    return checked(InOwnProcess([&] { return ReceiveRecords() == symbols; }));
  };
  const Figure figure = Compare(repetitions, library, peer);
  report.Ratio("Init / receiving the records", figure, kGoalRatio);
  if (!right)
    report.Wrong("Init");
}

// What the tables hold once the service's arrays are released.
void MeasureMemory(Report& report, std::size_t symbols) {
  const std::size_t before = HeapInUse();
  CSymbolTableMgr tables;
  const bool built = tables.Init() && tables.InitAllSymbolTable() && tables.InitAuthorizedExch();
  const std::size_t held = HeapInUse() - before;
  report.Number("memory of the tables", static_cast<double>(held) / static_cast<double>(symbols),
                "bytes a symbol", kGoalBytes);
  if (!built)
    report.Wrong("InitAllSymbolTable");
}

} // namespace

void MeasureStartUp(Report& report, std::size_t symbols, std::size_t repetitions) {
  MeasureTime(report, symbols, repetitions);
  MeasureMemory(report, symbols);
}

} // namespace bench
