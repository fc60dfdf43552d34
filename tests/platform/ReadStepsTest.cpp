// Reading a file that is being written in place: the result is never a mixture.
#include "platform/ReadSteps.h"

#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace {

using tq::FileStamp;
using tq::ReadResult;

// A file that is written during some of its reads.
class ChangingFile : public tq::ReadSteps {
public:
  bool Stamp(FileStamp& stamp) override {
    stamp.size = bytes.size();
    stamp.modified = time;
    return !gone;
  }
  bool Read(std::string& out) override {
    const bool whole = out.size() <= bytes.size();
    out = bytes.substr(0, out.size());
    ++reads;
    if (reads <= changes)
      Change();
    return whole;
  }
  void Pause() override { ++pauses; }

  void Change() {
    ++time;
    bytes = longer ? bytes + "more" : std::string(bytes.size(), static_cast<char>('0' + reads));
  }

  std::string bytes = "old";
  std::uint64_t time = 1;
  int changes = 0; // the first so many reads meet a writer
  bool longer = false;
  bool gone = false;
  int reads = 0;
  int pauses = 0;
};

TEST(ReadSteps, AFileAtRestIsReadOnce) {
  ChangingFile file;
  std::string bytes = "before";
  EXPECT_EQ(ReadResult::Ok, tq::RunRead(file, 3, bytes));
  EXPECT_EQ("old", bytes);
  EXPECT_EQ(1, file.reads);
  EXPECT_EQ(0, file.pauses);
}

TEST(ReadSteps, AFileThatChangesIsReadAgainUntilItIsAtRest) {
  for (const bool longer : {false, true}) {
    ChangingFile file;
    file.longer = longer;
    file.changes = tq::kReadTries - 1;
    std::string bytes;
    EXPECT_EQ(ReadResult::Ok, tq::RunRead(file, 100, bytes));
    EXPECT_EQ(file.bytes, bytes);
    EXPECT_EQ(tq::kReadTries, file.reads);
    EXPECT_EQ(tq::kReadTries - 1, file.pauses);
  }
}

TEST(ReadSteps, AFileThatNeverRestsIsNotRead) {
  ChangingFile file;
  file.changes = 1000;
  std::string bytes = "before";
  EXPECT_EQ(ReadResult::Failed, tq::RunRead(file, 100, bytes));
  EXPECT_EQ("", bytes);
  EXPECT_EQ(tq::kReadTries, file.reads);
}

TEST(ReadSteps, AFileThatGrowsOverTheLimitIsTooLarge) {
  ChangingFile file;
  file.changes = 1;
  file.longer = true;
  std::string bytes;
  EXPECT_EQ(ReadResult::TooLarge, tq::RunRead(file, 6, bytes));
  EXPECT_EQ("", bytes);
}

TEST(ReadSteps, WhatIsNoFileFails) {
  ChangingFile file;
  file.gone = true;
  std::string bytes = "before";
  EXPECT_EQ(ReadResult::Failed, tq::RunRead(file, 100, bytes));
  EXPECT_EQ("", bytes);
}

// A large file is overwritten in place, piece by piece, while it is read again and again. What is
// read between two pieces nobody can tell from a whole file: a machine may let the writer wait for
// as long as it likes, so only a read during which a piece was written counts.
TEST(ReadSteps, NoMixtureOfOldAndNewIsRead) {
  constexpr std::size_t piece = 1 << 20;
  constexpr int pieces = 48;
  const tqtest::TestDirectory directory("data");
  directory.Write("SymbolList.xml", std::string(piece * pieces, 'o'));
  std::atomic<int> written = 0;
  std::thread writer([&] {
    std::FILE* file = std::fopen(directory.OsFile("SymbolList.xml").c_str(), "r+b");
    ASSERT_NE(nullptr, file);
    const std::string bytes(piece, 'n');
    for (int i = 0; i < pieces; ++i) {
      std::fwrite(bytes.data(), 1, piece, file);
      std::fflush(file);
      ++written;
      std::this_thread::sleep_for(std::chrono::milliseconds(4));
    }
    std::fclose(file);
  });
  int mixtures = 0;
  std::string bytes;
  do {
    const int before = written;
    const ReadResult result = tq::Files().ReadWholeFile(directory.File("SymbolList.xml").c_str(),
                                                        2 * piece * pieces, bytes);
    if (result == ReadResult::Ok && written != before)
      mixtures += bytes.front() != bytes.back();
  } while (bytes.empty() || bytes.back() != 'n');
  writer.join();
  EXPECT_EQ(0, mixtures);
}

} // namespace
