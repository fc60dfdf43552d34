// Damage at every place of a list file: what was not hit comes back as it was, and no id is made
// up.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "tests/recovery/RecoveryFiles.h"

namespace {

using recovery::KnownIds;
using recovery::Line;
using recovery::LinesOf;
using recovery::Outcome;
using recovery::Recover;
using recovery::Sample;
using recovery::StoredList;

// The first id that no list has, unless `allowed` is in it.
std::string MadeUp(const Outcome& outcome, const std::set<std::string>& known, char allowed) {
  return recovery::FindMadeUp(outcome, [&](const std::string& id) {
    return known.count(id) != 0 || (allowed != '\0' && id.find(allowed) != std::string::npos);
  });
}

bool ComesBack(const Outcome& outcome, const StoredList& wanted) {
  const std::vector<StoredList> kept = outcome.Kept();
  return std::count(kept.begin(), kept.end(), wanted) == 1;
}

// A list with a stray ampersand of its own is repaired.
bool IsWholeIn(const Outcome& outcome, const StoredList& wanted) {
  const bool stray = wanted.symbols.find('&') != std::string::npos;
  const tq::ListFate fate = stray ? tq::ListFate::Repaired : tq::ListFate::Whole;
  return std::any_of(outcome.lists.begin(), outcome.lists.end(), [&](const auto& list) {
    return list.fate == fate && list.id == wanted.id && list.name == wanted.name &&
           list.symbols == wanted.symbols;
  });
}

// Every list whose line lies outside of [begin, end) is whole in the outcome.
void ExpectUntouchedWhole(const Sample& sample, const Outcome& outcome, std::size_t begin,
                          std::size_t end) {
  const std::vector<Line> lines = LinesOf(sample.file);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const bool touched = lines[i].begin < end && begin < lines[i].end;
    if (!touched) {
      EXPECT_TRUE(IsWholeIn(outcome, sample.lists[i])) << sample.lists[i].id;
      EXPECT_TRUE(ComesBack(outcome, sample.lists[i])) << sample.lists[i].id;
    }
  }
}

TEST(RecoveryDamage, FilesAreCutAtEveryByte) {
  for (const Sample& sample : recovery::Samples()) {
    const std::set<std::string> known = KnownIds(sample.lists);
    for (std::size_t length = 0; length < sample.file.size(); ++length) {
      SCOPED_TRACE(length);
      const Outcome outcome = Recover(sample.file.substr(0, length), sample.encoding);
      EXPECT_FALSE(outcome.sound);
      EXPECT_EQ(MadeUp(outcome, known, '\0'), "");
      const std::vector<Line> lines = LinesOf(sample.file);
      for (std::size_t i = 0; i < lines.size() && lines[i].end <= length; ++i)
        EXPECT_TRUE(IsWholeIn(outcome, sample.lists[i]));
      ASSERT_FALSE(HasFailure());
    }
  }
}

// The symbols of the list that the cut hits come back up to the last whole one.
TEST(RecoveryDamage, SymbolsInFrontOfACutComeBack) {
  const std::vector<StoredList> lists = {{"A", "Name", "2330.TW,2317.TW,1101.TW"}};
  const std::string file = recovery::FileOf(lists, "big5");
  const std::size_t symbols = file.find("2330.TW");
  const auto of = [&](std::size_t length) {
    const Outcome outcome = Recover(file.substr(0, symbols + length), tq::TextEncoding::Big5);
    EXPECT_EQ(outcome.lists.size(), 1U);
    EXPECT_EQ(outcome.lists.front().id, "A");
    EXPECT_EQ(outcome.lists.front().name, "Name");
    EXPECT_EQ(outcome.lists.front().fate, tq::ListFate::Repaired);
    return outcome.lists.front().symbols;
  };
  EXPECT_EQ(of(3), "");
  EXPECT_EQ(of(7), "");
  EXPECT_EQ(of(8), "2330.TW");
  EXPECT_EQ(of(15), "2330.TW");
  EXPECT_EQ(of(16), "2330.TW,2317.TW");
  EXPECT_EQ(of(23), "2330.TW,2317.TW");
  EXPECT_EQ(of(24), "2330.TW,2317.TW,1101.TW"); // the closing mark stands
}

class RecoveryByte : public testing::TestWithParam<char> {};

TEST_P(RecoveryByte, IsReplacedEverywhere) {
  for (const Sample& sample : recovery::Samples()) {
    std::set<std::string> known = KnownIds(sample.lists);
    for (std::size_t at = 0; at < sample.file.size(); ++at) {
      if (sample.file[at] == GetParam())
        continue;
      SCOPED_TRACE(at);
      std::string file = sample.file;
      file[at] = GetParam();
      const Outcome outcome = Recover(file, sample.encoding);
      const bool kept = GetParam() == '\'' || GetParam() == '&' || GetParam() == '<';
      EXPECT_EQ(MadeUp(outcome, known, kept ? GetParam() : '\0'), "");
      ExpectUntouchedWhole(sample, outcome, at, at + 1);
      EXPECT_LE(outcome.Kept().size(), sample.lists.size());
      ASSERT_FALSE(HasFailure()) << file.substr(at > 40 ? at - 40 : 0, 80);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Any, RecoveryByte, testing::Values('\'', '&', '<', '\0', '\xFF'));

// A byte of damage costs the identifier, or a character of the name, or one symbol: two when it
// hits the comma between them.
TEST_P(RecoveryByte, CostsNoMoreThanWhatItHits) {
  for (const Sample& sample : recovery::Samples()) {
    const std::vector<Line> lines = LinesOf(sample.file);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      for (std::size_t at = lines[i].begin; at < lines[i].end; ++at) {
        SCOPED_TRACE(at);
        std::string file = sample.file;
        file[at] = GetParam();
        const Outcome outcome = Recover(file, sample.encoding);
        ASSERT_EQ(outcome.lists.size(), sample.lists.size());
        const tq::RecoveredList& list = outcome.lists[i];
        const int otherId = list.id != sample.lists[i].id ? 1 : 0;
        const int otherName = list.name != sample.lists[i].name ? 1 : 0;
        const int otherSymbols = list.symbols != sample.lists[i].symbols ? 1 : 0;
        EXPECT_LE(otherId + otherName + otherSymbols, 1) << file.substr(lines[i].begin, 90);
        const std::size_t ids = recovery::IdsOf(sample.lists[i].symbols).size();
        const std::size_t most = sample.file[at] == ',' ? 2 : 1;
        EXPECT_GE(recovery::IdsOf(list.symbols).size() + most, ids);
        ASSERT_FALSE(HasFailure()) << list.id << "|" << list.name << "|" << list.symbols;
      }
    }
  }
}

TEST(RecoveryDamage, RunsOfZeroBytesAnywhere) {
  for (const Sample& sample : recovery::Samples()) {
    const std::set<std::string> known = KnownIds(sample.lists);
    for (std::size_t begin = 0; begin < sample.file.size(); ++begin) {
      for (std::size_t length : {1U, 2U, 3U, 5U, 8U, 9U, 10U, 13U, 21U, 34U, 55U, 89U, 144U}) {
        length = std::min(length, sample.file.size() - begin);
        SCOPED_TRACE(testing::Message() << begin << " for " << length);
        std::string file = sample.file;
        file.replace(begin, length, length, '\0');
        const Outcome outcome = Recover(file, sample.encoding);
        EXPECT_FALSE(outcome.sound);
        EXPECT_EQ(MadeUp(outcome, known, '\0'), "");
        ExpectUntouchedWhole(sample, outcome, begin, begin + length);
        ASSERT_FALSE(HasFailure());
      }
    }
  }
}

// What is left of an older file behind a newer, shorter one.
TEST(RecoveryDamage, FilesAreWrittenOverEachOther) {
  const Sample sample = recovery::Samples().front();
  const std::vector<StoredList> older = {{"OLD1", recovery::kBig5Name, "1101.TW,1102.TW,1103.TW"},
                                         {"OLD2", recovery::kBig5Other, "AA.TW,BB.TW"},
                                         {"OLD3", "Third", ""}};
  std::vector<StoredList> all = sample.lists;
  all.insert(all.end(), older.begin(), older.end());
  const std::set<std::string> known = KnownIds(all);
  const std::string rest = recovery::FileOf(older, "big5");
  const std::size_t second = rest.find("\t<List ID='OLD2'");
  for (std::size_t from = 1; from < rest.size(); ++from) {
    SCOPED_TRACE(from);
    const Outcome outcome = Recover(sample.file + rest.substr(from), tq::TextEncoding::Big5);
    EXPECT_FALSE(outcome.sound);
    EXPECT_EQ(MadeUp(outcome, known, '\0'), "");
    ExpectUntouchedWhole(sample, outcome, 0, 0);
    if (from <= second) {
      EXPECT_TRUE(IsWholeIn(outcome, older[1]));
      EXPECT_TRUE(outcome.Has(tq::Fault::Overwritten));
    }
    EXPECT_LE(outcome.Kept().size(), all.size());
    ASSERT_FALSE(HasFailure());
  }
}

// The beginning of one file, then the rest of another one from the same byte on.
TEST(RecoveryDamage, AWriteThatStoppedInTheMiddleLeavesTheListsOfBoth) {
  const std::vector<Sample> samples = recovery::Samples();
  const Sample& newer = samples[0];
  std::vector<StoredList> older = {{"OLD1", "One", "1101.TW,1102.TW,1103.TW,1104.TW"},
                                   {"OLD2", "Two", "1201.TW"},
                                   {"OLD3", "Three", "1301.TW,1302.TW,1303.TW"},
                                   {"OLD4", "Four", "1401.TW"},
                                   {"OLD5", "Five", "1501.TW"}};
  const std::string rest = recovery::FileOf(older, "big5");
  for (std::size_t at = 0; at < std::min(rest.size(), newer.file.size()); ++at) {
    SCOPED_TRACE(at);
    const std::string file = newer.file.substr(0, at) + rest.substr(at);
    const Outcome outcome = Recover(file, tq::TextEncoding::Big5);
    const std::vector<Line> lines = LinesOf(newer.file);
    for (std::size_t i = 0; i < lines.size() && lines[i].end <= at; ++i)
      EXPECT_TRUE(IsWholeIn(outcome, newer.lists[i]));
    const std::vector<Line> oldLines = LinesOf(rest);
    for (std::size_t i = 0; i < oldLines.size(); ++i)
      EXPECT_TRUE(oldLines[i].begin < at || IsWholeIn(outcome, older[i])) << i;
    ASSERT_FALSE(HasFailure()) << file;
  }
}

} // namespace
