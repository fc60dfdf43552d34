// Each step of a save fails in turn: the file is the old one, or the save has found another way.
#include "tests/platform/HookedSteps.h"
#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using tq::SaveResult;
using tqtest::Fate;
using tqtest::HookedSteps;
using tqtest::Step;
using tqtest::TestDirectory;

const std::string kOld = "the old lists";
const std::string kNew = "the new lists, rather longer than the old ones";

struct Trouble {
  Step step;
  Fate fate;
};

// Saves New with these troubles, under a name that is free or holds Old.
SaveResult Save(const TestDirectory& directory, const std::vector<Trouble>& troubles) {
  HookedSteps steps(directory.File("SymbolList.xml").c_str(), [&](Step step) {
    for (const Trouble& trouble : troubles) {
      if (trouble.step == step)
        return trouble.fate;
    }
    return Fate::Proceed;
  });
  return tq::RunSave(steps, kNew.data(), kNew.size());
}

constexpr Trouble kNoReplacing = {Step::ReplaceTarget, Fate::Refuse};

struct Case {
  const char* what;
  std::vector<Trouble> troubles;
  SaveResult whenThere; // the result where there is an old file
  SaveResult whenNew;
};

const Case kKeepingTheOldFile[] = {
    {"target not writable",
     {{Step::OpenTarget, Fate::Fail}},
     SaveResult::NotOpened,
     SaveResult::NotOpened},
    {"temporary file cannot be made",
     {{Step::OpenTemporary, Fate::Fail}},
     SaveResult::Failed,
     SaveResult::NotOpened},
    {"nothing written",
     {{Step::WriteTemporary, Fate::Fail}},
     SaveResult::Failed,
     SaveResult::Failed},
    {"short write", {{Step::WriteTemporary, Fate::Short}}, SaveResult::Failed, SaveResult::Failed},
    {"flush fails", {{Step::FlushTemporary, Fate::Fail}}, SaveResult::Failed, SaveResult::Failed},
    {"replacing fails",
     {{Step::ReplaceTarget, Fate::Fail}},
     SaveResult::Failed,
     SaveResult::Failed},
    {"replacing refused, no room in place",
     {kNoReplacing, {Step::ReserveTarget, Fate::Fail}},
     SaveResult::Failed,
     SaveResult::NotOpened},
    {"temporary file refused, no room in place",
     {{Step::OpenTemporary, Fate::Refuse}, {Step::ReserveTarget, Fate::Fail}},
     SaveResult::Failed,
     SaveResult::NotOpened},
};

TEST(SaveSteps, AFailingStepKeepsTheOldFileAndLeavesNothingBeside) {
  for (const Case& c : kKeepingTheOldFile) {
    SCOPED_TRACE(c.what);
    TestDirectory directory("data");
    directory.Write("SymbolList.xml", kOld);
    EXPECT_EQ(c.whenThere, Save(directory, c.troubles));
    EXPECT_EQ(kOld, directory.Read("SymbolList.xml"));
    EXPECT_EQ("SymbolList.xml", directory.List());
  }
}

TEST(SaveSteps, AFailingStepLeavesNoNewFile) {
  for (const Case& c : kKeepingTheOldFile) {
    SCOPED_TRACE(c.what);
    TestDirectory directory("data");
    EXPECT_EQ(c.whenNew, Save(directory, c.troubles));
    EXPECT_EQ("", directory.List());
  }
}

const Case kInPlace[] = {
    {"temporary file refused",
     {{Step::OpenTemporary, Fate::Refuse}},
     SaveResult::Saved,
     SaveResult::Saved},
    {"replacing refused", {kNoReplacing}, SaveResult::Saved, SaveResult::Saved},
};

TEST(SaveSteps, WhereReplacingIsRefusedTheFileIsWrittenInPlace) {
  for (const Case& c : kInPlace) {
    SCOPED_TRACE(c.what);
    TestDirectory directory("data");
    EXPECT_EQ(c.whenNew, Save(directory, c.troubles));
    EXPECT_EQ(kNew, directory.Read("SymbolList.xml"));
    for (const std::string& before : {kOld, kOld + std::string(1000, 'x'), std::string()}) {
      directory.Write("SymbolList.xml", before);
      EXPECT_EQ(c.whenThere, Save(directory, c.troubles));
      EXPECT_EQ(kNew, directory.Read("SymbolList.xml"));
      EXPECT_EQ("SymbolList.xml", directory.List());
    }
  }
}

TEST(SaveSteps, AFailureInPlaceIsReportedAndLeavesNoNewFile) {
  const Trouble failures[] = {{Step::WriteTarget, Fate::Fail},
                              {Step::WriteTarget, Fate::Short},
                              {Step::FlushTarget, Fate::Fail},
                              {Step::CloseTarget, Fate::Fail}};
  for (const Trouble& failure : failures) {
    TestDirectory directory("data");
    EXPECT_EQ(SaveResult::Failed, Save(directory, {kNoReplacing, failure}));
    EXPECT_EQ("", directory.List());
    directory.Write("SymbolList.xml", kOld);
    EXPECT_EQ(SaveResult::Failed, Save(directory, {kNoReplacing, failure}));
    EXPECT_EQ("SymbolList.xml", directory.List());
  }
}

TEST(SaveSteps, ADirectoryThatCannotBeFlushedIsNoFailure) {
  TestDirectory directory("data");
  EXPECT_EQ(SaveResult::Saved, Save(directory, {{Step::FlushDirectory, Fate::Fail}}));
  EXPECT_EQ(kNew, directory.Read("SymbolList.xml"));
}

TEST(SaveSteps, TheStepsOfAnUndisturbedSaveAreFew) {
  TestDirectory directory("data");
  std::string taken;
  HookedSteps steps(directory.File("SymbolList.xml").c_str(), [&](Step step) {
    taken += static_cast<char>('0' + static_cast<int>(step));
    return Fate::Proceed;
  });
  EXPECT_EQ(SaveResult::Saved, tq::RunSave(steps, kNew.data(), kNew.size()));
  EXPECT_EQ("012345", taken);
}

} // namespace
