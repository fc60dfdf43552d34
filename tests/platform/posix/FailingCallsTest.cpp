// Every call of the file system that a read or a save makes fails in turn, with every error.
#include "tests/platform/posix/FailingCalls.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "platform/FileAccess.h"
#include "tests/platform/HookedSteps.h"
#include "tests/platform/TestSystem.h"

namespace {

using tq::ReadResult;
using tq::SaveResult;
using tqtest::Failure;
using tqtest::Fault;
using tqtest::Faults;
using tqtest::TestDirectory;

using Calls = std::map<std::string, int>;

const std::string kOld = "the old lists";
const std::string kNew = "the new lists, rather longer than the old ones";
constexpr int kErrors[] = {EIO, EACCES, ENOMEM, ENOSPC, EINTR, EROFS};
const Fault kNoReplacing = {"rename", 0, EACCES};

SaveResult Save(const TestDirectory& directory) {
  return tq::Files().SaveWholeFile(directory.File("SymbolList.xml").c_str(), kNew.data(),
                                   kNew.size());
}

ReadResult Read(const TestDirectory& directory, std::string& bytes) {
  return tq::Files().ReadWholeFile(directory.File("SymbolList.xml").c_str(), 1 << 20, bytes);
}

// The outcome of a save over an old file with these faults.
Calls CallsOfASave(const std::vector<Fault>& faults) {
  const TestDirectory directory("data");
  directory.Write("SymbolList.xml", kOld);
  Faults counting(faults);
  Save(directory);
  return counting.Made();
}

// Calls body(fault) for each call that was made and each way in which it can fail.
template <typename Body> void ForEachFault(const Calls& calls, const Body& body) {
  for (const auto& [call, count] : calls) {
    for (int turn = 1; turn <= count; ++turn) {
      for (const int error : kErrors) {
        SCOPED_TRACE(testing::Message() << call << " " << turn << " fails with " << error);
        body(Fault{call, turn, error});
      }
      if (call == "write" || call == "pread") {
        SCOPED_TRACE(testing::Message() << call << " " << turn << " is short");
        body(Fault{call, turn, 0, Failure::Short});
      }
    }
  }
}

void ExpectTheNextSaveWorks(const TestDirectory& directory) {
  EXPECT_EQ(SaveResult::Saved, Save(directory));
  EXPECT_EQ(kNew, directory.Read("SymbolList.xml"));
  EXPECT_EQ("SymbolList.xml", directory.List());
}

TEST(FailingCalls, TheCallsOfASaveAreSeen) {
  const Calls calls = CallsOfASave({});
  for (const char* call : {"open", "fstat", "stat", "flock", "write", "fsync", "rename", "close"})
    EXPECT_GT(calls.count(call), 0U) << call;
  EXPECT_GT(CallsOfASave({kNoReplacing}).count("posix_fallocate"), 0U);
}

TEST(FailingCalls, ASaveLeavesTheOldFileOrTheNewAndSaysWhich) {
  ForEachFault(CallsOfASave({}), [](const Fault& fault) {
    const TestDirectory directory("data");
    directory.Write("SymbolList.xml", kOld);
    SaveResult result;
    {
      const Faults faults({fault});
      result = Save(directory);
    }
    EXPECT_EQ(result == SaveResult::Saved ? kNew : kOld, directory.Read("SymbolList.xml"));
    ExpectTheNextSaveWorks(directory);
  });
}

TEST(FailingCalls, ASaveOfANewFileLeavesNoneOrTheWholeOne) {
  const TestDirectory empty("data");
  Calls calls;
  {
    Faults counting({});
    Save(empty);
    calls = counting.Made();
  }
  ForEachFault(calls, [](const Fault& fault) {
    const TestDirectory directory("data");
    SaveResult result;
    {
      const Faults faults({fault});
      result = Save(directory);
    }
    EXPECT_EQ(result == SaveResult::Saved ? kNew : "(none)", directory.Read("SymbolList.xml"));
    ExpectTheNextSaveWorks(directory);
  });
}

// Once bytes are written in place a failure damages the file; until then the old file is untouched.
TEST(FailingCalls, InPlaceTheOldFileStaysUntilItIsWritten) {
  ForEachFault(CallsOfASave({kNoReplacing}), [](const Fault& fault) {
    const TestDirectory directory("data");
    directory.Write("SymbolList.xml", kOld);
    SaveResult result;
    int written = 0;
    {
      Faults faults({fault, kNoReplacing});
      result = Save(directory);
      const auto made = faults.Made().find("write");
      written = made == faults.Made().end() ? 0 : made->second;
    }
    const std::string bytes = directory.Read("SymbolList.xml");
    const bool begun = written > 1; // the first write is the temporary file's
    if (result == SaveResult::Saved || !begun) {
      EXPECT_EQ(result == SaveResult::Saved ? kNew : kOld, bytes);
    }
    ExpectTheNextSaveWorks(directory);
  });
}

TEST(FailingCalls, AReadGivesTheWholeFileOrNothing) {
  const TestDirectory directory("data");
  directory.Write("SymbolList.xml", kOld);
  std::string bytes;
  Calls calls;
  {
    Faults counting({});
    Read(directory, bytes);
    calls = counting.Made();
  }
  ForEachFault(calls, [&](const Fault& fault) {
    const Faults faults({fault});
    bytes = "before";
    const ReadResult result = Read(directory, bytes);
    EXPECT_NE(ReadResult::Missing, result);
    EXPECT_EQ(result == ReadResult::Ok ? kOld : "", bytes);
  });
}

TEST(FailingCalls, AnInterruptedOrShortReadGoesOn) {
  const TestDirectory directory("data");
  directory.Write("SymbolList.xml", kOld);
  std::string bytes;
  for (const Fault& fault : {Fault{"pread", 1, EINTR}, Fault{"pread", 1, 0, Failure::Short}}) {
    const Faults faults({fault});
    EXPECT_EQ(ReadResult::Ok, Read(directory, bytes));
    EXPECT_EQ(kOld, bytes);
  }
}

TEST(FailingCalls, AnInterruptedWriteIsMadeAgain) {
  const TestDirectory directory("data");
  const Faults faults({{"write", 1, EINTR}});
  EXPECT_EQ(SaveResult::Saved, Save(directory));
  EXPECT_EQ(kNew, directory.Read("SymbolList.xml"));
}

TEST(FailingCalls, NoErrorMakesAFileMissing) {
  const TestDirectory directory("data");
  directory.Write("SymbolList.xml", kOld);
  const std::string path = directory.File("SymbolList.xml");
  for (const int error : {EIO, EACCES, ENOMEM, ELOOP, EINTR, ESTALE, ETIMEDOUT}) {
    SCOPED_TRACE(error);
    const Faults faults({{"stat", 0, error}, {"open", 0, error}});
    tq::FileStamp stamp;
    std::string bytes;
    EXPECT_EQ(tq::FileState::Unknown, tq::Files().StateOf(path.c_str(), stamp));
    EXPECT_EQ(ReadResult::Failed, Read(directory, bytes));
    EXPECT_FALSE(tq::Files().RenameFile(path.c_str(), directory.File("Other.xml").c_str()));
  }
  EXPECT_EQ("SymbolList.xml", directory.List());
}

// Another file gets the name after the reader asked for the size and before it reads.
TEST(FailingCalls, AFileThatIsReplacedWhileItIsReadIsReadWhole) {
  for (const char* call : {"fstat", "pread"}) {
    for (const int turn : {1, 2}) {
      const TestDirectory directory("data");
      directory.Write("SymbolList.xml", kOld);
      directory.Write("Other.xml", kNew);
      const auto replace = [&] {
        std::rename(directory.OsFile("Other.xml").c_str(),
                    directory.OsFile("SymbolList.xml").c_str());
      };
      const Faults faults({{call, turn, 0, Failure::Error, replace}});
      std::string bytes;
      EXPECT_EQ(ReadResult::Ok, Read(directory, bytes));
      EXPECT_TRUE(bytes == kOld || bytes == kNew) << bytes;
    }
  }
}

// The directory is renamed away between two calls, and later restored.
TEST(FailingCalls, ADirectoryThatGoesKeepsAWholeFile) {
  for (const auto& [call, count] : CallsOfASave({})) {
    for (int turn = 1; turn <= count; ++turn) {
      SCOPED_TRACE(testing::Message() << "in front of " << call << " " << turn);
      const TestDirectory directory("data");
      directory.Write("SymbolList.xml", kOld);
      const std::string away = directory.Path() + "away";
      SaveResult result;
      {
        const auto go = [&] { std::rename(directory.Path().c_str(), away.c_str()); };
        const Faults faults({{call, turn, 0, Failure::Error, go}});
        result = Save(directory);
      }
      std::rename(away.c_str(), directory.Path().c_str());
      EXPECT_EQ(result == SaveResult::Saved ? kNew : kOld, directory.Read("SymbolList.xml"));
      ExpectTheNextSaveWorks(directory);
    }
  }
}

// A limit on the size of files stands for a full disk.
TEST(FailingCalls, ADiskThatIsFullAtAnyByteKeepsTheOldFile) {
  rlimit before = {};
  ASSERT_EQ(0, ::getrlimit(RLIMIT_FSIZE, &before));
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  for (const bool inPlace : {false, true}) {
    for (rlim_t room = 0; room <= kNew.size(); ++room) {
      SCOPED_TRACE(testing::Message() << room << (inPlace ? " in place" : ""));
      const TestDirectory directory("data");
      directory.Write("SymbolList.xml", kOld);
      SaveResult result;
      {
        const rlimit full = {room, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
        const Faults faults(inPlace ? std::vector<Fault>{{"open", 2, EACCES}}
                                    : std::vector<Fault>());
        result = Save(directory);
        ::setrlimit(RLIMIT_FSIZE, &before);
      }
      EXPECT_EQ(room == kNew.size(), result == SaveResult::Saved);
      EXPECT_EQ(room == kNew.size() ? kNew : kOld, directory.Read("SymbolList.xml"));
      EXPECT_EQ("SymbolList.xml", directory.List());
    }
  }
  std::signal(SIGXFSZ, handler);
}

} // namespace
