// Saving where Windows has more to say: files that others hold, attributes.
#include "platform/FileAccess.h"
#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

using tq::Files;
using tq::SaveResult;
using tqtest::TestDirectory;

constexpr char kName[] = "SymbolList.xml";
const std::string kOld = "old, and a good deal longer";

SaveResult Save(const TestDirectory& directory) {
  return Files().SaveWholeFile(directory.File(kName).c_str(), "new", 3);
}

// Another program that holds a file.
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

TEST(WindowsSave, AReaderWithoutSharingMakesReadingFail) {
  const TestDirectory directory("data");
  directory.Write(kName, kOld);
  const Holder holder(directory.File(kName), 0);
  std::string bytes;
  EXPECT_EQ(tq::ReadResult::Failed,
            Files().ReadWholeFile(directory.File(kName).c_str(), 100, bytes));
}

} // namespace
