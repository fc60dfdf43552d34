#include "platform/FileAccess.h"
#include "platform/Encoding.h"
#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

namespace {

using tq::Files;
using tq::ReadResult;
using tq::SaveResult;
using tqtest::TestDirectory;

constexpr size_t kPlenty = 1 << 20;

SaveResult Save(const TestDirectory& directory, const std::string& bytes) {
  return Files().SaveWholeFile(directory.File("SymbolList.xml").c_str(), bytes.data(),
                               bytes.size());
}

ReadResult Read(const std::string& path, std::string& bytes, size_t limit = kPlenty) {
  bytes = "before";
  return Files().ReadWholeFile(path.c_str(), limit, bytes);
}

TEST(FileAccess, WhatIsSavedIsRead) {
  const TestDirectory directory("data");
  std::string every;
  for (int byte = 0; byte < 256; ++byte)
    every += static_cast<char>(byte);
  for (const std::string& bytes : {every, std::string(), std::string(300'000, '\r'), every}) {
    std::string read;
    EXPECT_EQ(SaveResult::Saved, Save(directory, bytes));
    EXPECT_EQ(bytes, directory.Read("SymbolList.xml"));
    EXPECT_EQ(ReadResult::Ok, Read(directory.File("SymbolList.xml"), read));
    EXPECT_EQ(bytes, read);
    EXPECT_EQ("SymbolList.xml", directory.List());
  }
}

TEST(FileAccess, MissingFilesAndDirectoriesReadAsMissing) {
  const TestDirectory directory("data");
  std::string bytes;
  EXPECT_EQ(ReadResult::Missing, Read(directory.File("SymbolList.xml"), bytes));
  EXPECT_EQ("", bytes);
  EXPECT_EQ(ReadResult::Missing, Read(directory.Path() + "none\\SymbolList.xml", bytes));
  EXPECT_EQ(ReadResult::Missing, Read("", bytes));
}

TEST(FileAccess, ADirectoryIsNoFile) {
  const TestDirectory directory("data");
  std::string bytes;
  EXPECT_EQ(ReadResult::Failed, Read(directory.Path(), bytes));
  EXPECT_FALSE(Files().FileExists(directory.Path().c_str()));
  EXPECT_TRUE(Files().DirectoryExists(directory.Path().c_str()));
  EXPECT_EQ(SaveResult::NotOpened, Files().SaveWholeFile(directory.Path().c_str(), "x", 1));
}

TEST(FileAccess, AFileIsNoDirectory) {
  const TestDirectory directory("data");
  directory.Write("SymbolList.xml", "x");
  EXPECT_TRUE(Files().FileExists(directory.File("SymbolList.xml").c_str()));
  EXPECT_FALSE(Files().DirectoryExists(directory.OsFile("SymbolList.xml").c_str()));
  EXPECT_FALSE(Files().FileExists(directory.File("Other.xml").c_str()));
  EXPECT_FALSE(Files().DirectoryExists(""));
}

// A file that could not be asked for, as on a drive that does not answer, counted as missing.
TEST(FileAccess, OnlyWhatTheSystemCallsMissingIsMissing) {
  using tq::FileState;
  const TestDirectory directory("data");
  const std::string path = directory.File("SymbolList.xml");
  tq::FileStamp stamp;
  stamp.size = 7;
  EXPECT_EQ(FileState::Missing, Files().StateOf(path.c_str(), stamp));
  EXPECT_EQ(tq::FileStamp(), stamp);
  const std::string nowhere = directory.Path() + "none\\SymbolList.xml";
  EXPECT_EQ(FileState::Missing, Files().StateOf(nowhere.c_str(), stamp));
  EXPECT_EQ(FileState::Other, Files().StateOf(directory.Path().c_str(), stamp));
  EXPECT_EQ(tq::FileStamp(), stamp);
  EXPECT_EQ(SaveResult::Saved, Save(directory, "12345"));
  EXPECT_EQ(FileState::File, Files().StateOf(path.c_str(), stamp));
  EXPECT_EQ(5u, stamp.size);
}

TEST(FileAccess, AStampTellsAFileFromWhatItWasAndFromOthers) {
  const TestDirectory directory("data");
  const std::string path = directory.File("SymbolList.xml");
  tq::FileStamp first;
  tq::FileStamp again;
  ASSERT_EQ(SaveResult::Saved, Save(directory, "12345"));
  Files().StateOf(path.c_str(), first);
  std::string bytes;
  EXPECT_EQ(ReadResult::Ok, Read(path, bytes));
  Files().StateOf(path.c_str(), again);
  EXPECT_EQ(first, again) << "reading changes nothing";
  ASSERT_EQ(SaveResult::Saved, Save(directory, "54321"));
  Files().StateOf(path.c_str(), again);
  EXPECT_NE(first, again) << "another file of the same size";
  EXPECT_LE(first.modified, again.modified);
  directory.Write("Other.xml", "12345");
  tq::FileStamp other;
  Files().StateOf(directory.File("Other.xml").c_str(), other);
  EXPECT_NE(other.index, again.index);
}

TEST(FileAccess, TheLimitIsTheLargestSizeThatIsRead) {
  const TestDirectory directory("data");
  directory.Write("SymbolList.xml", "12345");
  std::string bytes;
  EXPECT_EQ(ReadResult::Ok, Read(directory.File("SymbolList.xml"), bytes, 5));
  EXPECT_EQ("12345", bytes);
  EXPECT_EQ(ReadResult::TooLarge, Read(directory.File("SymbolList.xml"), bytes, 4));
  EXPECT_EQ("", bytes);
}

TEST(FileAccess, AMissingDirectoryIsNotCreated) {
  const TestDirectory directory("data");
  const std::string path = directory.Path() + "none\\SymbolList.xml";
  EXPECT_EQ(SaveResult::NotOpened, Files().SaveWholeFile(path.c_str(), "x", 1));
  EXPECT_FALSE(Files().DirectoryExists((directory.Path() + "none").c_str()));
}

TEST(FileAccess, WhatAKilledSaveLeftIsOverwrittenAndGone) {
  const TestDirectory directory("data");
  directory.Write("SymbolList.xml", "old");
  directory.Write("SymbolList.xml.tmp", std::string(5000, 'x'));
  EXPECT_EQ(SaveResult::Saved, Save(directory, "new"));
  EXPECT_EQ("new", directory.Read("SymbolList.xml"));
  EXPECT_EQ("SymbolList.xml", directory.List());
}

// A directory name may end in a double-byte character whose trail byte is a backslash, and hold
// others.
TEST(FileAccess, DirectoryNamesMayEndInATrailByteBackslash) {
  const bool big5 = tq::AnsiCodePage() == tq::kCodePageBig5;
  const std::string names[] = {big5 ? "\xB3\x5C\xA5\x5C\xBB\x5C" : "\x97\x5C",
                               big5 ? "\xA5\x5C" : "\x90\x5C", big5 ? "\xA5\x7C" : "\x8D\x5C"};
  for (const std::string& name : names) {
    const TestDirectory directory(name);
    std::string read;
    EXPECT_TRUE(Files().DirectoryExists(directory.Path().c_str()));
    EXPECT_EQ(SaveResult::Saved, Save(directory, "lists"));
    EXPECT_EQ("lists", directory.Read("SymbolList.xml"));
    EXPECT_TRUE(Files().FileExists(directory.File("SymbolList.xml").c_str()));
    EXPECT_EQ(ReadResult::Ok, Read(directory.File("SymbolList.xml"), read));
    EXPECT_EQ("SymbolList.xml", directory.List());
  }
}

TEST(FileAccess, OnlyTheLibrarysOwnSeparatorIsOne) {
  const auto none = std::string::npos;
  EXPECT_EQ(1U, tq::SeparatorOf("d\\a.xml"));
  EXPECT_EQ(0U, tq::SeparatorOf("\\a.xml"));
  EXPECT_EQ(6U, tq::SeparatorOf("/x/\xB3\x5C\\a.xml") + 1) << "behind a trail byte";
  EXPECT_EQ(7U, tq::SeparatorOf("/x/\xE8\xA8\xB1\\a.xml") + 1) << "behind UTF-8";
  EXPECT_EQ(none, tq::SeparatorOf("/x/\xB3\x5C"));
  EXPECT_EQ(none, tq::SeparatorOf("/x\\y/a.xml"));
  EXPECT_EQ(none, tq::SeparatorOf("/x/a.xml"));
  EXPECT_EQ(none, tq::SeparatorOf(""));
}

class FailingThirdSave : public tq::FileAccessWrapper {
public:
  using FileAccessWrapper::FileAccessWrapper;
  SaveResult SaveWholeFile(const char* path, const void* bytes, size_t size) override {
    if (++saves_ == 3)
      return SaveResult::Failed;
    return FileAccessWrapper::SaveWholeFile(path, bytes, size);
  }

private:
  int saves_ = 0;
};

TEST(FileAccess, ATestPutsItsOwnInPlaceAndTakesItBack) {
  const TestDirectory directory("data");
  FailingThirdSave failing(Files());
  tq::FileAccess* const before = tq::SetFiles(&failing);
  EXPECT_EQ(&failing, &Files());
  EXPECT_EQ(SaveResult::Saved, Save(directory, "1"));
  EXPECT_EQ(SaveResult::Saved, Save(directory, "2"));
  EXPECT_EQ(SaveResult::Failed, Save(directory, "3"));
  EXPECT_EQ(SaveResult::Saved, Save(directory, "4"));
  EXPECT_EQ(&failing, tq::SetFiles(before));
  EXPECT_EQ(before, &Files());
}

} // namespace
