#include "bench/StartUp.h"

#include <sys/wait.h>
#include <unistd.h>

#include <iterator>

#include "bench/Heap.h"
#include "platform/services/tqStock.h"
#include "tqSymbol.h"

namespace bench {
namespace {

constexpr double kGoalRatio = 1.5;
constexpr double kGoalBytes = 256;

// Without a data directory no file is read or written.
bool InitManager(CTQSymbolListMgr& manager) {
  return manager.Init("", 0, 1, 0, nullptr, 0, 0) != 0;
}

// Calls visit(key) for each record of the service that can be set up as a key, and returns their
// number.
template <typename Visit> std::size_t ForEachRecord(Visit visit) {
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
      if (key.Setup(&records[k]) == 0)
        continue;
      ++usable;
      visit(key);
    }
    VLFree(records);
  }
  VLFree(exchanges);
  return usable;
}

// The least that a start-up takes: receiving the service's records and setting each up once.
std::size_t ReceiveRecords() {
  return ForEachRecord([](const CStaticKey&) {});
}

// The same, and reading each attribute that a table keeps into memory that is already allocated.
std::size_t ReadRecords() {
  constexpr int kTexts[] = {FieldSymbolName, FieldMark,        FieldLegExchange,
                            FieldIndustry,   FieldUnderlying,  FieldContractMonth,
                            FieldCurrency,   FieldExchangeCode};
  constexpr int kNumbers[] = {FieldKind,       FieldBoard,    FieldExchangeName, FieldLegExchange,
                              FieldExpiryDate, FieldTradeLot, FieldDecimals,     FieldPriceScale};
  CString id;
  CString texts[std::size(kTexts)];
  int numbers[std::size(kNumbers)];
  return ForEachRecord([&](const CStaticKey& key) {
    key.GetID(id, 1);
    for (std::size_t i = 0; i < std::size(kTexts); ++i)
      key.GetFieldString(kTexts[i], texts[i]);
    for (std::size_t i = 0; i < std::size(kNumbers); ++i)
      key.GetFieldInt(kNumbers[i], numbers[i]);
  });
}

// A start-up happens once in a process, so each is measured in a new process, whose memory comes
// from the system and not from an earlier repetition. Negative when `work` returns false or the
// process fails.
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
      auto* manager = new CTQSymbolListMgr; // never deleted: the process ends first
      return InitManager(*manager);
    }));
  };
  const auto peer = [&] {
    return checked(InOwnProcess([&] { return ReceiveRecords() == symbols; }));
  };
  const auto reading = [&] {
    return checked(InOwnProcess([&] { return ReadRecords() == symbols; }));
  };
  report.Ratio("Init / receiving the records", Compare(repetitions, library, peer), kGoalRatio);
  report.Ratio("reading the attributes / receiving", Compare(repetitions, reading, peer), kNoGoal);
  if (!right)
    report.Wrong("Init");
}

// What the tables hold after the service's arrays are released.
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
