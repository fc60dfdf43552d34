// Saving, as far as it is particular to POSIX: rights, links, owners, full disks, locks.
#include "platform/FileAccess.h"
#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using tq::Files;
using tq::SaveResult;
using tqtest::TestDirectory;

constexpr uid_t kNobody = 65534;
constexpr char kName[] = "SymbolList.xml";

SaveResult Save(const std::string& path, const std::string& bytes) {
  return Files().SaveWholeFile(path.c_str(), bytes.data(), bytes.size());
}

// Missing rights do not stop the superuser, so children drop those privileges.
void BecomeNobody() {
  if (::geteuid() == 0 && ::setuid(kNobody) != 0)
    ::_exit(2);
}

void ExitUnless(bool expected) {
  ::_exit(expected ? 0 : 1);
}

void Own(const std::string& path) {
  ASSERT_TRUE(::geteuid() != 0 || ::chown(path.c_str(), kNobody, kNobody) == 0);
}

// The test's directories lie in one that only their owner may enter.
void LetEverybodyEnter(const TestDirectory& directory) {
  fs::permissions(fs::path(directory.Path()).parent_path(), fs::perms(0755));
}

TEST(PosixSave, AReadOnlyFileIsRefusedThoughItsDirectoryWouldLetUsReplaceIt) {
  const TestDirectory directory("data");
  LetEverybodyEnter(directory);
  directory.Write(kName, "old");
  Own(directory.Path());
  Own(directory.OsFile(kName));
  fs::permissions(directory.OsFile(kName), fs::perms(0444));
  const auto body = [](const std::string& path) {
    BecomeNobody();
    ExitUnless(Save(path, "new") == SaveResult::NotOpened);
  };
  EXPECT_TRUE(tqtest::RunChild(body, directory.File(kName)));
  EXPECT_EQ("old", directory.Read(kName));
  EXPECT_EQ(kName, directory.List());
}

TEST(PosixSave, InADirectoryThatMayNotBeWrittenTheFileIsWrittenInPlace) {
  const TestDirectory directory("data");
  LetEverybodyEnter(directory);
  directory.Write(kName, "an old text that is longer");
  Own(directory.OsFile(kName));
  fs::permissions(directory.Path(), fs::perms(0555));
  const auto body = [](const std::string& path) {
    BecomeNobody();
    ExitUnless(Save(path, "new") == SaveResult::Saved &&
               Save(path + "2", "x") == SaveResult::NotOpened);
  };
  EXPECT_TRUE(tqtest::RunChild(body, directory.File(kName)));
  fs::permissions(directory.Path(), fs::perms(0755));
  EXPECT_EQ("new", directory.Read(kName));
  EXPECT_EQ(kName, directory.List());
}

TEST(PosixSave, ALinkStaysOneAndItsFileIsReplaced) {
  const TestDirectory directory("data");
  directory.Write("real.xml", "old");
  fs::create_symlink("real.xml", directory.OsFile("middle.xml"));
  fs::create_symlink(directory.OsFile("middle.xml"), directory.OsFile(kName));
  EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "new"));
  EXPECT_TRUE(fs::is_symlink(directory.OsFile(kName)));
  EXPECT_TRUE(fs::is_symlink(directory.OsFile("middle.xml")));
  EXPECT_FALSE(fs::is_symlink(directory.OsFile("real.xml")));
  EXPECT_EQ("new", directory.Read("real.xml"));
}

TEST(PosixSave, ALinkToAFileThatIsNotThereYetMakesIt) {
  const TestDirectory directory("data");
  fs::create_symlink("real.xml", directory.OsFile(kName));
  EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "new"));
  EXPECT_TRUE(fs::is_symlink(directory.OsFile(kName)));
  EXPECT_EQ("new", directory.Read("real.xml"));
}

TEST(PosixSave, LinksInACircleAreRefused) {
  const TestDirectory directory("data");
  fs::create_symlink("b.xml", directory.OsFile("a.xml"));
  fs::create_symlink("a.xml", directory.OsFile("b.xml"));
  EXPECT_EQ(SaveResult::NotOpened, Save(directory.File("a.xml"), "new"));
}

TEST(PosixSave, AnotherNameOfTheFileKeepsTheOldBytes) {
  const TestDirectory directory("data");
  directory.Write(kName, "old");
  fs::create_hard_link(directory.OsFile(kName), directory.OsFile("snapshot.xml"));
  EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "new"));
  EXPECT_EQ("new", directory.Read(kName));
  EXPECT_EQ("old", directory.Read("snapshot.xml"));
}

TEST(PosixSave, ModeAndOwnerAreKept) {
  const TestDirectory directory("data");
  directory.Write(kName, "old");
  Own(directory.OsFile(kName));
  for (mode_t mode : {0640U, 0600U, 0664U}) {
    ASSERT_EQ(0, ::chmod(directory.OsFile(kName).c_str(), mode));
    struct stat before;
    struct stat after;
    ASSERT_EQ(0, ::stat(directory.OsFile(kName).c_str(), &before));
    EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "new"));
    ASSERT_EQ(0, ::stat(directory.OsFile(kName).c_str(), &after));
    EXPECT_NE(before.st_ino, after.st_ino) << "replaced";
    EXPECT_EQ(before.st_mode, after.st_mode);
    EXPECT_EQ(before.st_uid, after.st_uid);
    EXPECT_EQ(before.st_gid, after.st_gid);
  }
}

TEST(PosixSave, ANewFileGetsTheModeOfAnyNewFile) {
  const TestDirectory directory("data");
  directory.Write("other.xml", "");
  EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "new"));
  EXPECT_EQ(fs::status(directory.OsFile("other.xml")).permissions(),
            fs::status(directory.OsFile(kName)).permissions());
}

TEST(PosixSave, AFullDiskKeepsTheOldFileAndLeavesNothingBeside) {
  const TestDirectory directory("data");
  const std::string old(3000, 'o');
  directory.Write(kName, old);
  const auto body = [](const std::string& path) {
    const rlimit small = {4096, 4096}; // no file may grow beyond
    ::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    ExitUnless(Save(path, std::string(5000, 'n')) == SaveResult::Failed);
  };
  EXPECT_TRUE(tqtest::RunChild(body, directory.File(kName)));
  EXPECT_EQ(old, directory.Read(kName));
  EXPECT_EQ(kName, directory.List());
}

TEST(PosixSave, AFullDiskInPlaceKeepsTheOldFile) {
  const TestDirectory directory("data");
  LetEverybodyEnter(directory);
  const std::string old(3000, 'o');
  directory.Write(kName, old);
  Own(directory.OsFile(kName));
  fs::permissions(directory.Path(), fs::perms(0555));
  const auto body = [](const std::string& path) {
    const rlimit small = {4096, 4096};
    ::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    BecomeNobody();
    ExitUnless(Save(path, std::string(5000, 'n')) == SaveResult::Failed);
  };
  EXPECT_TRUE(tqtest::RunChild(body, directory.File(kName)));
  fs::permissions(directory.Path(), fs::perms(0755));
  EXPECT_EQ(old, directory.Read(kName));
}

TEST(PosixSave, ADeviceIsWrittenAndNotReplaced) {
  const TestDirectory directory("data");
  fs::create_symlink("/dev/full", directory.OsFile("full"));
  fs::create_symlink("/dev/null", directory.OsFile("null"));
  EXPECT_EQ(SaveResult::Failed, Save(directory.File("full"), "new"));
  EXPECT_EQ(SaveResult::Saved, Save(directory.File("null"), "new"));
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(PosixSave, APipeDoesNotHangTheTerminal) {
  const TestDirectory directory("data");
  ASSERT_EQ(0, ::mkfifo(directory.OsFile(kName).c_str(), 0600));
  std::string bytes;
  EXPECT_EQ(SaveResult::NotOpened, Save(directory.File(kName), "new"));
  EXPECT_EQ(tq::ReadResult::Failed,
            Files().ReadWholeFile(directory.File(kName).c_str(), 100, bytes));
}

TEST(PosixSave, WhileAnotherProcessSavesTheSameFileThisOneFails) {
  const TestDirectory directory("data");
  directory.Write(kName, "old");
  const int other =
      ::open(directory.OsFile("SymbolList.xml.tmp").c_str(), O_CREAT | O_WRONLY, 0600);
  ASSERT_EQ(0, ::flock(other, LOCK_EX));
  EXPECT_EQ(SaveResult::Failed, Save(directory.File(kName), "new"));
  EXPECT_EQ("old", directory.Read(kName));
  ::close(other);
  EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "new"));
  EXPECT_EQ(kName, directory.List());
}

TEST(PosixSave, ALinkUnderTheTemporaryNameIsNotFollowed) {
  const TestDirectory directory("data");
  directory.Write(kName, "old");
  directory.Write("victim.txt", "precious");
  fs::create_symlink("victim.txt", directory.OsFile("SymbolList.xml.tmp"));
  EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "new"));
  EXPECT_EQ("new", directory.Read(kName));
  EXPECT_EQ("precious", directory.Read("victim.txt"));
}

// Symptom: a directory, pipe, socket or device under the temporary file's name made each save fail.
TEST(PosixSave, WhatBearsTheTemporaryNameAndIsNoFileIsPassedBy) {
  constexpr char temporary[] = "SymbolList.xml.tmp";
  const auto makers = {
      +[](const char* path) { ASSERT_EQ(0, ::mkdir(path, 0700)); },
      +[](const char* path) { ASSERT_EQ(0, ::mkfifo(path, 0600)); },
      +[](const char* path) { ASSERT_EQ(0, ::mknod(path, S_IFSOCK | 0600, 0)); },
      +[](const char* path) { ASSERT_EQ(0, ::symlink("/dev/full", path)); },
  };
  for (const auto& make : makers) {
    const TestDirectory directory("data");
    make(directory.OsFile(temporary).c_str());
    struct stat before;
    struct stat after;
    ASSERT_EQ(0, ::lstat(directory.OsFile(temporary).c_str(), &before));
    EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "first"));
    EXPECT_EQ("first", directory.Read(kName));
    EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "second, longer"));
    EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "third"));
    EXPECT_EQ("third", directory.Read(kName));
    ASSERT_EQ(0, ::lstat(directory.OsFile(temporary).c_str(), &after));
    EXPECT_EQ(before.st_ino, after.st_ino) << "it is not ours to remove";
  }
}

TEST(PosixSave, APipeThatSomebodyReadsUnderTheTemporaryNameGetsNoByte) {
  const TestDirectory directory("data");
  const std::string pipe = directory.OsFile("SymbolList.xml.tmp");
  ASSERT_EQ(0, ::mkfifo(pipe.c_str(), 0600));
  const int reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "lists"));
  EXPECT_EQ("lists", directory.Read(kName));
  char byte;
  EXPECT_GE(0, ::read(reader, &byte, 1));
  ::close(reader);
  EXPECT_TRUE(fs::is_fifo(pipe));
}

// Symptom: a file of the user's was overwritten through a hard link under the temporary name.
TEST(PosixSave, ASecondNameUnderTheTemporaryNameIsNotWrittenThrough) {
  const TestDirectory directory("data");
  directory.Write(kName, "old");
  directory.Write("victim.txt", "precious, and longer than the lists");
  for (const char* file : {"victim.txt", kName}) {
    fs::create_hard_link(directory.OsFile(file), directory.OsFile("SymbolList.xml.tmp"));
    const auto node = [&](const char* name) {
      struct stat info;
      EXPECT_EQ(0, ::stat(directory.OsFile(name).c_str(), &info));
      return info.st_ino;
    };
    const ino_t target = node(kName);
    EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), "new"));
    EXPECT_EQ("new", directory.Read(kName));
    EXPECT_NE(target, node(kName)) << "replaced, not written in place";
    EXPECT_EQ("precious, and longer than the lists", directory.Read("victim.txt"));
    EXPECT_EQ("SymbolList.xml victim.txt", directory.List());
  }
}

TEST(PosixSave, ALinkThatLeadsInACircleIsNotMissing) {
  const TestDirectory directory("data");
  fs::create_symlink(kName, directory.OsFile(kName));
  tq::FileStamp stamp;
  EXPECT_EQ(tq::FileState::Unknown, Files().StateOf(directory.File(kName).c_str(), stamp));
  fs::create_symlink("/dev/null", directory.OsFile("null"));
  EXPECT_EQ(tq::FileState::Other, Files().StateOf(directory.File("null").c_str(), stamp));
}

// Directory names may be in any encoding, and a UTF-8 name can end in a byte that is a lead byte.
TEST(PosixSave, DirectoryNamesMayBeInAnyEncoding) {
  for (const char* name :
       {"\xE8\xA8\xB1", "\xB3\x5C\xA5\x5C", "\xA5\x5C", "caf\xE9", "back\\slash", "a b"}) {
    const TestDirectory directory(name);
    EXPECT_TRUE(Files().DirectoryExists(directory.Path().c_str()));
    EXPECT_EQ(SaveResult::Saved, Save(directory.File(kName), name));
    EXPECT_EQ(name, directory.Read(kName));
    EXPECT_EQ(kName, directory.List());
  }
}

} // namespace
