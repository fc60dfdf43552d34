// A process is killed during a save: the file is the old one or the new one, and leftovers of the
// kill do not disturb later saves.
#include "platform/FileAccess.h"
#include "symbollist/file/KeptFiles.h"
#include "tests/platform/HookedSteps.h"
#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>

namespace tqtest {

namespace {

constexpr size_t kSize = 60'000;
const std::string Old(kSize, 'o');
const std::string New(kSize + 777, 'n');
constexpr char kFileName[] = "SymbolList.xml";

// argument: <'b' or 'a': before or after><step as a letter><path>
void SaveAndEndAtStep(const std::string& argument) {
  const bool before = argument[0] == 'b';
  const auto end = static_cast<Step>(argument[1] - 'A');
  const auto hook = [&](bool now) {
    return [=](Step step) {
      if (now && step == end)
        EndAtOnce();
      return Fate::Proceed;
    };
  };
  HookedSteps steps(argument.c_str() + 2, hook(before), hook(!before));
  tq::RunSave(steps, New.data(), New.size());
}

void SaveForEver(const std::string& path) {
  for (;;) {
    tq::Files().SaveWholeFile(path.c_str(), New.data(), New.size());
    tq::Files().SaveWholeFile(path.c_str(), Old.data(), Old.size());
  }
}

// What a killed process has written survives in the system's cache, so nothing is flushed to the
// disk: more saves fit into the time, which kills can hit.
void SaveForEverWithoutFlushing(const std::string& path) {
  const auto skipFlushing = [](Step step) {
    return step == Step::FlushTemporary || step == Step::FlushDirectory ? Fate::Skip
                                                                        : Fate::Proceed;
  };
  for (;;) {
    for (const std::string* bytes : {&New, &Old}) {
      HookedSteps steps(path.c_str(), skipFlushing);
      tq::RunSave(steps, bytes->data(), bytes->size());
    }
  }
}

// Each save of this process, the one of a copy among them, ends at a step.
class EndingFiles : public tq::FileAccessWrapper {
public:
  EndingFiles(bool before, Step end) : FileAccessWrapper(tq::Files()), before_(before), end_(end) {}
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    const auto hook = [this](bool now) {
      return [this, now](Step step) {
        if (now && step == end_)
          EndAtOnce();
        return Fate::Proceed;
      };
    };
    HookedSteps steps(path, hook(before_), hook(!before_));
    return tq::RunSave(steps, bytes, size);
  }

private:
  const bool before_;
  const Step end_;
};

// The argument is SaveAndEndAtStep's.
void KeepAndEndAtStep(const std::string& argument) {
  EndingFiles files(argument[0] == 'b', static_cast<Step>(argument[1] - 'A'));
  tq::SetFiles(&files);
  tq::KeptFiles().MayWrite(argument.c_str() + 2);
  tq::SetFiles(nullptr);
}

bool IsWhole(const std::string& bytes) {
  return bytes == Old || bytes == New;
}

void ExpectThatSavingGoesOn(const TestDirectory& directory) {
  const std::string path = directory.File(kFileName);
  EXPECT_EQ(tq::SaveResult::Saved, tq::Files().SaveWholeFile(path.c_str(), "short", 5));
  EXPECT_EQ("short", directory.Read(kFileName));
  EXPECT_EQ(kFileName, directory.List()) << "left over";
}

} // namespace

constexpr ChildBody kBodies[] = {SaveAndEndAtStep, SaveForEver, SaveForEverWithoutFlushing,
                                 KeepAndEndAtStep};

// On Windows a child is another process, which knows a body by its number.
int ChildBodyNumber(ChildBody body) {
  const auto* const found = std::find(std::begin(kBodies), std::end(kBodies), body);
  EXPECT_NE(std::end(kBodies), found) << "a body that no child would know";
  return static_cast<int>(found - kBodies);
}

ChildBody ChildBodyByNumber(int number) {
  return kBodies[number];
}

TEST(SaveKill, AKillAroundAnyStepLeavesTheOldFileOrTheNew) {
  const TestDirectory directory("data");
  const std::string path = directory.File(kFileName);
  int killed = 0;
  for (Step step : kAllSteps) {
    if (step > Step::FlushDirectory)
      break; // the rest is cleaning up after failures and saving in place
    for (char when : {'b', 'a'}) {
      SCOPED_TRACE(std::string(1, when) + std::to_string(static_cast<int>(step)));
      directory.Write(kFileName, Old);
      const char letter = static_cast<char>('A' + static_cast<int>(step));
      killed += RunChild(SaveAndEndAtStep, std::string{when, letter} + path) ? 0 : 1;
      const bool replaced =
          step > Step::ReplaceTarget || (step == Step::ReplaceTarget && when == 'a');
      EXPECT_EQ(replaced ? New.size() : Old.size(), directory.Read(kFileName).size());
      EXPECT_TRUE(IsWhole(directory.Read(kFileName)));
      ExpectThatSavingGoesOn(directory);
    }
  }
  EXPECT_EQ(12, killed);
}

// The kept file is unchanged, and its copy is complete or missing; the next save then makes it.
TEST(SaveKill, AKillAroundAnyStepOfKeepingLosesNothing) {
  constexpr char copy[] = "SymbolList_Kept.xml";
  int killed = 0;
  for (Step step : kAllSteps) {
    if (step > Step::FlushDirectory)
      break;
    for (char when : {'b', 'a'}) {
      SCOPED_TRACE(std::string(1, when) + std::to_string(static_cast<int>(step)));
      const TestDirectory directory("data");
      const std::string path = directory.File(kFileName);
      directory.Write(kFileName, Old);
      const char letter = static_cast<char>('A' + static_cast<int>(step));
      killed += RunChild(KeepAndEndAtStep, std::string{when, letter} + path) ? 0 : 1;
      EXPECT_EQ(Old, directory.Read(kFileName));
      const std::string kept = directory.Read(copy);
      EXPECT_TRUE(kept == Old || kept == "(none)") << kept.size();
      EXPECT_TRUE(tq::KeptFiles().MayWrite(path.c_str()));
      EXPECT_EQ(Old, directory.Read(copy));
      EXPECT_EQ("SymbolList.xml SymbolList_Kept.xml", directory.List());
    }
  }
  EXPECT_EQ(12, killed);
}

// Kills `saver` so many times, each time within so many microseconds.
void KillAtRandomTimes(ChildBody saver, int kills, int longest) {
  const TestDirectory directory("data");
  const std::string path = directory.File(kFileName);
  directory.Write(kFileName, Old);
  std::mt19937 random(20'290'101);
  std::uniform_int_distribution<int> microseconds(0, longest);
  int damaged = 0;
  for (int i = 0; i < kills; ++i) {
    RunChild(saver, path, microseconds(random));
    damaged += IsWhole(directory.Read(kFileName)) ? 0 : 1;
  }
  EXPECT_EQ(0, damaged);
  ExpectThatSavingGoesOn(directory);
}

TEST(SaveKill, KillsAtRandomTimesLeaveTheOldFileOrTheNew) {
  KillAtRandomTimes(SaveForEverWithoutFlushing, RandomKills(), LongestLife());
}

TEST(SaveKill, KillsAtRandomTimesWhileFlushingLeaveTheOldFileOrTheNew) {
  KillAtRandomTimes(SaveForEver, RandomKills() / 40 + 4, 10 * LongestLife());
}

} // namespace tqtest
