// Copies of list files and what is known of the files, without a manager.
#include "symbollist/file/KeptFiles.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "symbollist/file/KeptCopies.h"
#include "terminal/StandIn.h"
#include "tests/support/TempDir.h"

namespace {

using tq::KeepResult;
using tq::LoadOutcome;

// The system's files, counted, and failing when told.
class CountedFiles : public tq::FileAccessWrapper {
public:
  CountedFiles() : FileAccessWrapper(tq::Files()), before_(tq::SetFiles(this)) {}
  ~CountedFiles() override { tq::SetFiles(before_); }
  CountedFiles(const CountedFiles&) = delete;
  CountedFiles& operator=(const CountedFiles&) = delete;

  tq::ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    ++reads;
    if (unreadable) {
      bytes.clear();
      return tq::ReadResult::Failed;
    }
    return FileAccessWrapper::ReadWholeFile(path, limit, bytes);
  }
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    ++saves;
    if (refusedSaves > 0) {
      --refusedSaves;
      return refusal;
    }
    return FileAccessWrapper::SaveWholeFile(path, bytes, size);
  }
  tq::FileState StateOf(const char* path, tq::FileStamp& stamp) override {
    ++questions;
    const tq::FileState state = FileAccessWrapper::StateOf(path, stamp);
    if (sameTime && state == tq::FileState::File)
      stamp.modified = 1;
    return silent ? tq::FileState::Unknown : state;
  }

  int reads = 0;
  int saves = 0;
  int questions = 0;
  bool unreadable = false;
  bool silent = false;   // the system does not tell of any file
  bool sameTime = false; // a clock that stands still
  int refusedSaves = 0;
  tq::SaveResult refusal = tq::SaveResult::NotOpened;

private:
  tq::FileAccess* before_;
};

const std::string kList = "<Result><SymbolList><List ID='a'/></SymbolList></Result>";

class KeptFiles : public testing::Test {
protected:
  void SetUp() override { path = directory.Joined("SymbolList.xml").c_str(); }

  void Write(const std::string& bytes) { directory.Write("SymbolList.xml", bytes); }
  std::string Copy(int copy) const {
    return directory.Read("SymbolList_Kept" + (copy > 0 ? std::to_string(copy) : "") + ".xml");
  }
  void Load(LoadOutcome outcome = LoadOutcome::Whole) {
    tq::FileContents contents;
    known.BeginLoad();
    tq::ReadContents(path, tq::kKeptSizeLimit, contents);
    known.EndLoad(path, outcome, std::move(contents));
  }
  void Save(const std::string& bytes) { ASSERT_EQ(tq::SaveResult::Saved, known.Save(path, bytes)); }
  KeepResult Keep(const std::string& bytes) { return tq::KeepCopy(path, bytes, number); }

  TempDir directory;
  CountedFiles files;
  CString path;
  tq::KeptFiles known;
  int number = -1;
};

TEST_F(KeptFiles, CopiesAreNamedAfterTheFile) {
  EXPECT_STREQ("d\\SymbolList_Kept.xml", tq::KeptCopyPath("d\\SymbolList.xml", 0));
  EXPECT_STREQ("d\\SymbolList_Kept9.xml", tq::KeptCopyPath("d\\SymbolList.xml", 9));
  EXPECT_STREQ("d\\SymbolList_Backup_Kept1.xml", tq::KeptCopyPath("d\\SymbolList_Backup.xml", 1));
  EXPECT_STREQ("d\\lists_Kept.xml", tq::KeptCopyPath("d\\lists", 0));
  EXPECT_STREQ("_Kept.xml", tq::KeptCopyPath(".xml", 0));
}

// A save after the manager's own save or load asks the system once and reads nothing.
TEST_F(KeptFiles, AFileThatNobodyHasWrittenSinceCostsOneQuestion) {
  Write(kList);
  Load();
  for (int i = 0; i < 3; ++i) {
    files.questions = files.reads = files.saves = 0;
    EXPECT_TRUE(known.MayWrite(path));
    EXPECT_EQ(1, files.questions);
    EXPECT_EQ(0, files.reads);
    EXPECT_EQ(0, files.saves);
    Save("own " + std::to_string(i));
    EXPECT_EQ(0, files.reads);
    EXPECT_EQ(1, files.saves);
  }
  EXPECT_EQ(std::vector<std::string>{"SymbolList.xml"}, directory.Names());
}

TEST_F(KeptFiles, BytesAreComparedOnlyWhenTheFileLooksChanged) {
  Save(kList);
  Write("x");
  Write(kList);
  files.reads = 0;
  EXPECT_TRUE(known.MayWrite(path));
  EXPECT_EQ(1, files.reads);
  EXPECT_TRUE(known.MayWrite(path));
  EXPECT_EQ(1, files.reads);
  EXPECT_EQ("", Copy(0));
}

// Of two programs that save in one moment the other's bytes may have this one's size and time, but
// not its identity: each save makes a file anew.
TEST_F(KeptFiles, AFileThatWasReplacedBySameSizeAndTimeIsTold) {
  files.sameTime = true;
  Save(kList);
  std::string theirs = kList;
  theirs[theirs.find('a')] = 'b';
  ASSERT_EQ(tq::SaveResult::Saved, tq::Files().SaveWholeFile(path, theirs.data(), theirs.size()));
  EXPECT_TRUE(known.MayWrite(path));
  EXPECT_EQ(theirs, Copy(0));
}

TEST_F(KeptFiles, AfterAnyOutcomeButWholeNoOtherFileIsKnown) {
  const CString other = directory.Joined("Other.xml").c_str();
  for (const LoadOutcome outcome :
       {LoadOutcome::Empty, LoadOutcome::Missing, LoadOutcome::TooLarge, LoadOutcome::Unreadable,
        LoadOutcome::Damaged, LoadOutcome::NoListFile, LoadOutcome::EndedEarly}) {
    const std::string bytes = kList + std::string(static_cast<size_t>(outcome), ' ');
    Write(bytes);
    Load();
    known.BeginLoad();
    known.EndLoad(other, outcome, {});
    EXPECT_TRUE(known.MayWrite(path));
    EXPECT_EQ(bytes, Copy(static_cast<int>(outcome) - 1));
  }
}

// The service lets the terminal save in the middle of a load, when only some of the lists are in
// memory.
TEST_F(KeptFiles, WhileALoadRunsNoFileIsKnown) {
  Write(kList);
  Load();
  tq::FileContents contents;
  known.BeginLoad();
  tq::ReadContents(path, tq::kKeptSizeLimit, contents);
  Save("half of the lists");
  EXPECT_EQ(kList, Copy(0));
  known.EndLoad(path, LoadOutcome::Whole, std::move(contents));
  Save("all lists");
  EXPECT_EQ("half of the lists", Copy(1));
  Save("all lists and more");
  EXPECT_EQ("", Copy(2));
}

TEST_F(KeptFiles, WhatIsKeptIsKnown) {
  Write(kList);
  EXPECT_TRUE(known.MayWrite(path));
  EXPECT_EQ(kList, Copy(0));
  files.reads = files.saves = 0;
  EXPECT_TRUE(known.MayWrite(path));
  EXPECT_EQ(0, files.reads);
  EXPECT_EQ(0, files.saves);
}

TEST_F(KeptFiles, AFileThatCannotBeReadIsNotWrittenOver) {
  Write(kList);
  files.unreadable = true;
  EXPECT_FALSE(known.MayWrite(path));
  files.unreadable = false;
  EXPECT_TRUE(known.MayWrite(path));
}

// A drive that does not respond is not taken for one without the file.
TEST_F(KeptFiles, WhereTheSystemDoesNotTellAndCannotReadNothingIsWritten) {
  files.silent = files.unreadable = true;
  EXPECT_FALSE(known.MayWrite(path));
  files.silent = false;
  EXPECT_TRUE(known.MayWrite(path)) << "there is none";
}

TEST_F(KeptFiles, ACopyThatCannotBeMadeForbidsTheSave) {
  Write(kList);
  for (const tq::SaveResult refusal : {tq::SaveResult::NotOpened, tq::SaveResult::Failed}) {
    files.refusal = refusal;
    files.refusedSaves = tq::kKeptCopies;
    EXPECT_FALSE(known.MayWrite(path));
  }
  files.refusedSaves = 0;
  EXPECT_TRUE(known.MayWrite(path));
  EXPECT_EQ(kList, Copy(0));
}

TEST_F(KeptFiles, ANameThatCannotBeWrittenIsPassedOver) {
  files.refusedSaves = 2;
  EXPECT_EQ(KeepResult::Kept, Keep("bytes"));
  EXPECT_EQ(2, number);
  EXPECT_EQ("bytes", Copy(2));
}

TEST_F(KeptFiles, AFullDiskIsNotTriedUnderEveryName) {
  files.refusal = tq::SaveResult::Failed;
  files.refusedSaves = 100;
  EXPECT_EQ(KeepResult::Failed, Keep("bytes"));
  EXPECT_EQ(1, files.saves);
}

// When all copies have the same time, the order in which they were made decides.
TEST_F(KeptFiles, TheOldestCopyGoesThoughAllAreOfOneTime) {
  files.sameTime = true;
  for (int i = 0; i < 25; ++i) {
    ASSERT_EQ(KeepResult::Kept, Keep("bytes " + std::to_string(i)));
    EXPECT_EQ(i % tq::kKeptCopies, number);
  }
  for (int copy = 0; copy < tq::kKeptCopies; ++copy)
    EXPECT_EQ("bytes " + std::to_string(copy < 5 ? 20 + copy : 10 + copy), Copy(copy));
}

TEST_F(KeptFiles, AFreeNameComesFirst) {
  for (int i = 0; i < tq::kKeptCopies; ++i)
    ASSERT_EQ(KeepResult::Kept, Keep("bytes " + std::to_string(i)));
  tq::Files().RenameFile(tq::KeptCopyPath(path, 7), directory.Joined("Mine.xml").c_str());
  EXPECT_EQ(KeepResult::Kept, Keep("more"));
  EXPECT_EQ("more", Copy(7));
}

TEST_F(KeptFiles, TheSameBytesAreKeptOnce) {
  EXPECT_EQ(KeepResult::Kept, Keep("one"));
  EXPECT_EQ(KeepResult::Kept, Keep("two"));
  EXPECT_EQ(KeepResult::KeptBefore, Keep("one"));
  EXPECT_EQ(KeepResult::KeptBefore, Keep("two"));
  EXPECT_EQ("", Copy(2));
}

TEST_F(KeptFiles, ManyOtherPathsDoNotPileUp) {
  Write(kList);
  Load();
  for (int i = 0; i < 100; ++i)
    known.Save(directory.Joined("Other" + std::to_string(i)).c_str(), "bytes");
  EXPECT_TRUE(known.MayWrite(path));
  EXPECT_EQ(kList, Copy(0)) << "forgotten, and so kept";
}

} // namespace
