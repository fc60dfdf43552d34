// Reading a file that is being written in place: the result is never a mixture.
#include "platform/ReadSteps.h"

#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using tq::FileStamp;
using tq::ReadResult;

// A file that is written during some of its reads.
class ChangingFile : public tq::ReadSteps {
public:
  ReadResult Open() override { return opens; }
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
  ReadResult opens = ReadResult::Ok;
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

TEST(ReadSteps, WhatCannotBeOpenedIsNotRead) {
  for (const ReadResult why : {ReadResult::Missing, ReadResult::Failed}) {
    ChangingFile file;
    file.opens = why;
    std::string bytes = "before";
    EXPECT_EQ(why, tq::RunRead(file, 100, bytes));
    EXPECT_EQ("", bytes);
    EXPECT_EQ(0, file.reads);
  }
}

// Overwrites a file of 'o' with 'n' in place, piece by piece, in a thread of its own.
class PieceWriter {
public:
  PieceWriter(const tqtest::TestDirectory& directory, int pieces)
      : path_(directory.File(kName)), osPath_(directory.OsFile(kName)), pieces_(pieces),
        bytes_(kPiece, 'n') {
    directory.Write(kName, std::string(Size(), 'o'));
  }
  ~PieceWriter() {
    if (thread_.joinable())
      thread_.join();
  }

  const char* Path() const { return path_.c_str(); }
  std::size_t Size() const { return kPiece * static_cast<std::size_t>(pieces_); }
  // What runs already goes on.
  void Start() {
    if (thread_.joinable())
      return;
    thread_ = std::thread([this] {
      for (int i = 0; i < pieces_ && good_; ++i)
        WritePiece(i);
      ended_ = true;
    });
  }
  // How many pieces have been begun, and the number, from 1, of the latest that is written.
  int Begun() const { return begun_; }
  int Written() const { return written_; }
  bool HasEnded() const { return ended_; }
  bool IsGood() const { return good_; }

private:
  static constexpr std::size_t kPiece = 1 << 20;
  static constexpr char kName[] = "SymbolList.xml";

  // The clock of a file may be coarse: a piece that left the time as it was is not told, as nobody
  // could see it.
  void WritePiece(int number) {
    FileStamp before;
    FileStamp after;
    begun_ = number + 1;
    tq::Files().StateOf(Path(), before);
    std::FILE* file = std::fopen(osPath_.c_str(), "r+b");
    good_ = file != nullptr &&
            std::fseek(file, static_cast<long>(kPiece) * number, SEEK_SET) == 0 &&
            std::fwrite(bytes_.data(), 1, kPiece, file) == kPiece;
    good_ = file != nullptr && std::fclose(file) == 0 && good_;
    tq::Files().StateOf(Path(), after);
    if (after != before)
      written_ = number + 1;
    std::this_thread::sleep_for(std::chrono::milliseconds(4));
  }

  const std::string path_;
  const std::string osPath_;
  const int pieces_;
  const std::string bytes_;
  std::atomic<int> begun_ = 0;
  std::atomic<int> written_ = 0;
  std::atomic<bool> ended_ = false;
  std::atomic<bool> good_ = true;
  std::thread thread_;
};

// The system's steps. Knows of each try whether a piece was begun behind its first stamp and
// written before its second one. The first try sees to it that the writer runs, and waits for such
// a piece in the middle of its read.
class WatchedRead : public tq::ReadSteps {
public:
  explicit WatchedRead(PieceWriter& writer)
      : real_(tq::MakeReadSteps(writer.Path())), writer_(writer) {}

  ReadResult Open() override { return real_->Open(); }
  bool Stamp(FileStamp& stamp) override {
    torn = hasRead_ && writer_.Written() > begun_;
    const bool file = real_->Stamp(stamp);
    begun_ = writer_.Begun();
    hasRead_ = false;
    return file;
  }
  bool Read(std::string& bytes) override {
    std::string first(bytes.size() / 2, '\0');
    bool whole = real_->Read(first);
    writer_.Start();
    while (!waited_ && writer_.Written() <= begun_ && !writer_.HasEnded())
      std::this_thread::yield();
    waited_ = true;
    whole = real_->Read(bytes) && whole;
    bytes.replace(0, first.size(), first);
    hasRead_ = true;
    tornTries += writer_.Written() > begun_;
    return whole;
  }
  void Pause() override { real_->Pause(); }

  bool torn = false;
  int tornTries = 0;

private:
  const std::unique_ptr<tq::ReadSteps> real_;
  PieceWriter& writer_;
  int begun_ = 0; // at the first stamp of the try
  bool hasRead_ = false;
  bool waited_ = false;
};

// A large file is overwritten in place while it is read again and again. What is read between two
// pieces nobody can tell from a whole file: a machine may let the writer wait for as long as it
// likes. So only a try counts in which a piece came between its two stamps.
TEST(ReadSteps, NoMixtureOfOldAndNewIsRead) {
  const tqtest::TestDirectory directory("data");
  PieceWriter writer(directory, 48);
  int mixtures = 0;
  int tornTries = 0;
  bool last = false;
  std::string bytes;
  do {
    last = writer.HasEnded();
    WatchedRead read(writer);
    const ReadResult result = tq::RunRead(read, writer.Size(), bytes);
    if (result == ReadResult::Ok && read.torn)
      mixtures += bytes.front() != bytes.back();
    tornTries += read.tornTries;
  } while (!last);
  EXPECT_TRUE(writer.IsGood());
  EXPECT_EQ(0, mixtures);
  EXPECT_GT(tornTries, 0); // there was something to find
  EXPECT_EQ(std::string(writer.Size(), 'n'), bytes);
}

} // namespace
