// Saving, as far as it is particular to Windows: files that others have open, attributes.
#include "platform/FileAccess.h"
#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <memory>
#include <thread>

namespace {

using tq::Files;
using tq::SaveResult;
using tqtest::TestDirectory;

constexpr char kName[] = "SymbolList.xml";
const std::string kOld = "old, and a good deal longer";

SaveResult Save(const TestDirectory& directory) {
  return Files().SaveWholeFile(directory.File(kName).c_str(), "new", 3);
}

// Another program that has a file open.
class Holder {
public:
  Holder(const std::string& path, DWORD share, DWORD disposition = OPEN_EXISTING)
      : file_(::CreateFileA(path.c_str(), GENERIC_READ, share, nullptr, disposition, 0, nullptr)) {
    EXPECT_NE(INVALID_HANDLE_VALUE, file_);
  }
  ~Holder() { ::CloseHandle(file_); }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

private:
  const HANDLE file_;
};

TEST(WindowsSave, AFileHeldWithoutShareWriteIsRefused) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  for (DWORD share : {0UL, static_cast<DWORD>(FILE_SHARE_READ),
                      static_cast<DWORD>(FILE_SHARE_READ | FILE_SHARE_DELETE)}) {
    const Holder holder(directory.File(kName), share);
    EXPECT_EQ(SaveResult::NotOpened, Save(directory));
  }
  EXPECT_EQ(kOld, directory.Read(kName));
  EXPECT_EQ(kName, directory.List());
}

TEST(WindowsSave, AFileHeldWithoutShareDeleteIsWrittenInPlace) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  {
    const Holder holder(directory.File(kName), FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_EQ(SaveResult::Saved, Save(directory));
  }
  EXPECT_EQ("new", directory.Read(kName));
  EXPECT_EQ(kName, directory.List());
}

TEST(WindowsSave, AFileHeldWithAllSharingIsSaved) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  {
    const Holder holder(directory.File(kName),
                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    EXPECT_EQ(SaveResult::Saved, Save(directory));
  }
  EXPECT_EQ("new", directory.Read(kName));
  EXPECT_EQ(kName, directory.List());
}

TEST(WindowsSave, AReadOnlyFileIsRefused) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  ::SetFileAttributesA(directory.File(kName).c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(SaveResult::NotOpened, Save(directory));
  EXPECT_EQ(kOld, directory.Read(kName));
  EXPECT_EQ(kName, directory.List());
}

TEST(WindowsSave, WhileAnotherProcessSavesTheSameFileThisOneFails) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  {
    const Holder holder(directory.File("SymbolList.xml.tmp"), FILE_SHARE_DELETE, CREATE_NEW);
    EXPECT_EQ(SaveResult::Failed, Save(directory));
    EXPECT_EQ(kOld, directory.Read(kName));
  }
  EXPECT_EQ(SaveResult::Saved, Save(directory));
  EXPECT_EQ("new", directory.Read(kName));
  EXPECT_EQ(kName, directory.List());
}

// Symptom: a save failed at once when another program briefly had the target open without
// share-write.
TEST(WindowsSave, ATargetHeldWithoutShareWriteIsWaitedFor) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  auto holder = std::make_unique<Holder>(directory.File(kName), FILE_SHARE_READ);
  std::thread releaser([&] {
    ::Sleep(100);
    holder.reset();
  });
  EXPECT_EQ(SaveResult::Saved, Save(directory));
  releaser.join();
  EXPECT_EQ("new", directory.Read(kName));
}

// Symptom: a file of the user's, or the list file, was emptied through a hard link under the
// temporary name.
TEST(WindowsSave, ASecondNameUnderTheTemporaryNameIsNotWrittenThrough) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  directory.Write("victim.txt", "precious");
  for (const char* file : {"victim.txt", kName}) {
    ASSERT_TRUE(::CreateHardLinkA(directory.File("SymbolList.xml.tmp").c_str(),
                                  directory.File(file).c_str(), nullptr));
    EXPECT_EQ(SaveResult::Saved, Save(directory));
    EXPECT_EQ("new", directory.Read(kName));
    EXPECT_EQ("precious", directory.Read("victim.txt"));
    EXPECT_EQ("SymbolList.xml victim.txt", directory.List());
  }
}

TEST(WindowsSave, ADirectoryUnderTheTemporaryNameIsPassedBy) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  ASSERT_TRUE(::CreateDirectoryA(directory.File("SymbolList.xml.tmp").c_str(), nullptr));
  EXPECT_EQ(SaveResult::Saved, Save(directory));
  EXPECT_EQ("new", directory.Read(kName));
  ::RemoveDirectoryA(directory.File("SymbolList.xml.tmp").c_str());
}

// When the temporary name is too long for the system, the file is saved in place and stays the same
// file.
TEST(WindowsSave, APathWithoutRoomForTheTemporaryNameIsSavedInPlace) {
  const TestDirectory directory("data");
  const std::size_t start = directory.File("").size();
  for (std::size_t length = 252; length < MAX_PATH; ++length) {
    SCOPED_TRACE(length);
    const std::string name = std::string(length - start - 4, 'n') + ".xml";
    const std::string path = directory.File(name);
    directory.Write(name, kOld);
    tq::FileStamp before;
    tq::FileStamp after;
    Files().StateOf(path.c_str(), before);
    EXPECT_EQ(SaveResult::Saved, Files().SaveWholeFile(path.c_str(), "new", 3));
    Files().StateOf(path.c_str(), after);
    EXPECT_EQ("new", directory.Read(name));
    EXPECT_EQ(before.index == after.index, length + 4 >= MAX_PATH);
    ::DeleteFileA(path.c_str());
  }
}

TEST(WindowsSave, AFileThatSomebodyHoldsIsThereAllTheSame) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  const Holder holder(directory.File(kName), 0);
  tq::FileStamp stamp;
  EXPECT_EQ(tq::FileState::File, Files().StateOf(directory.File(kName).c_str(), stamp));
  EXPECT_EQ(kOld.size(), stamp.size);
}

TEST(WindowsSave, AReaderWithoutSharingMakesReadingFail) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  const Holder holder(directory.File(kName), 0);
  std::string bytes;
  EXPECT_EQ(tq::ReadResult::Failed,
            Files().ReadWholeFile(directory.File(kName).c_str(), 100, bytes));
}

} // namespace
