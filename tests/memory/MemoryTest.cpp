// When memory runs out, an operation ends well or the process is stopped. In either case, at
// whatever moment, the user's lists are on the disk.
#include <gtest/gtest.h>

#include "tests/interface/ManagerTest.h"
#include "tests/memory/ScarceMemory.h"
#include "tests/support/TradingMarket.h"

namespace {

constexpr int kLists = 60;
constexpr int kIdsOfList = 400;
constexpr std::size_t kKilobyte = 1024;

std::string ListId(int number) {
  return "{list-" + std::to_string(number) + "}";
}

// About 250 kilobytes.
std::string UserLists() {
  std::string text = "<?xml version='1.0' encoding='utf-8' ?>\n<Result>\n"
                     "<SymbolList DefaultIdx='0'>\n";
  for (int i = 0; i < kLists; ++i) {
    text += "\t<List ID='" + ListId(i) + "' Name='list " + std::to_string(i) + "' Value='";
    for (int k = 0; k < kIdsOfList; ++k)
      text += (k % 2 == 0 ? "2330.TW," : "NONE" + std::to_string(k) + ".TW,");
    text += "' Flag='0'/>\n";
  }
  return text + "</SymbolList>\n</Result>";
}

bool HoldsAll(const std::string& file) {
  bool all = file.ends_with("</SymbolList>\n</Result>");
  for (int i = 0; i < kLists; ++i)
    all = all && file.find("ID='" + ListId(i) + "'") != std::string::npos;
  return all;
}

class MemoryTest : public ManagerTest {
protected:
  MemoryTest() : lists_(UserLists()) {
    standin::SetMarket(TradingMarket());
    WriteWorking(lists_);
  }

  // A typical sequence of a terminal's operations.
  void WorkOn(int initSymbolTables) {
    manager.Init(directory.Path().c_str(), 0, initSymbolTables, 0, nullptr, 0, 1);
    manager.AddSymbolList("{new}", 0, "new", "2330.TW,2317.TW", 1, 0);
    manager.UpdateTSLogin("VTS01");
    manager.SetCloudeList("{cloud}", "cloud", "2330.TW");
    manager.LoadGroupList();
    manager.SaveSymbolList();
    manager.BackupSymbolList();
    SymbolInfo* infos = nullptr;
    int count = 0;
    if (manager.GetAllSymbolInfos(&infos, &count) != 0)
      manager.FreeSymbolInfos(infos);
    manager.LoadSymbolList();
    manager.AddSymbolList("{newer}", 0, "newer", "1101.TW", 1, 0);
  }

  // Whether every user list is in the file or in its copy.
  void ExpectNothingLost() {
    EXPECT_TRUE(HoldsAll(ReadWorking()) || HoldsAll(directory.Read("SymbolList_Kept.xml")));
  }

  void StartOver() {
    for (const std::string& name : directory.Names())
      std::remove(directory.Native(name).c_str());
    WriteWorking(lists_);
  }

  // Counts the endings, so that a test can check that both occurred.
  void Note(Ending ending) {
    EXPECT_NE(ending, Ending::Thrown);
    EXPECT_NE(ending, Ending::Crashed);
    done_ += ending == Ending::Done;
    stopped_ += ending == Ending::Stopped;
    ExpectNothingLost();
    StartOver();
  }

  const std::string lists_;
  int done_ = 0;
  int stopped_ = 0;
};

TEST_F(MemoryTest, NothingIsLostInALimitedAddressSpace) {
  constexpr std::size_t kStep = 48 * kKilobyte;
  constexpr std::size_t kMost = 8'000 * kKilobyte;
  for (std::size_t bytes = 0; bytes < kMost && !HasFailure(); bytes += kStep) {
    SCOPED_TRACE(bytes);
    Note(RunWithin(bytes, [this] { WorkOn(1); }));
  }
  EXPECT_GT(stopped_, 3);
  EXPECT_GT(done_, 3);
}

TEST_F(MemoryTest, NothingIsLostWhicheverAllocationFails) {
  constexpr long kRuns = 250;
  const Work work = [this] { WorkOn(1); };
  const long count = CountAllocations(work);
  StartOver();
  ASSERT_GT(count, kRuns);
  for (long n = 0; n < count && !HasFailure(); n += 1 + count / kRuns) {
    SCOPED_TRACE(n);
    Note(RunWithout(n, false, work));
    Note(RunWithout(n, true, work));
  }
  EXPECT_GT(stopped_, 100);
}

// The lists need more memory than is left, and the terminal goes on.
TEST_F(MemoryTest, AFileThatDoesNotFitIsKeptBeforeASave) {
  constexpr std::size_t kFileSize = 24 * kKilobyte * kKilobyte;
  const std::size_t end = lists_.rfind("</SymbolList>");
  const std::string large =
      lists_.substr(0, end) + std::string(kFileSize, ' ') + lists_.substr(end);
  WriteWorking(large);
  const Ending ending = RunWithin(kFileSize / 2, [this] {
    manager.Init(directory.Path().c_str(), 0, 0, 0, nullptr, 0, 0);
    if (manager.GetSymbolListCount(1) != 0)
      std::abort();
    manager.AddSymbolList("{new}", 0, "new", "2330.TW", 1, 0);
  });
  EXPECT_EQ(ending, Ending::Done);
  EXPECT_EQ(ReadWorking(), large);
}

} // namespace
