// Saving where Windows has more to say: files that others hold, attributes.
#include "platform/FileAccess.h"
#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

using tq::Files;
using tq::SaveResult;
using tqtest::TestDirectory;

constexpr char Name[] = "SymbolList.xml";
const std::string Old = "old, and a good deal longer";

SaveResult Save(const TestDirectory& directory) {
  return Files().SaveWholeFile(directory.File(Name).c_str(), "new", 3);
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
  directory.Write(Name, Old);
  for (DWORD share : {0UL, static_cast<DWORD>(FILE_SHARE_READ),
                      static_cast<DWORD>(FILE_SHARE_READ | FILE_SHARE_DELETE)}) {
    const Holder holder(directory.File(Name), share);
    EXPECT_EQ(SaveResult::NotOpened, Save(directory));
  }
  EXPECT_EQ(Old, directory.Read(Name));
  EXPECT_EQ(Name, directory.List());
}

TEST(WindowsSave, AFileHeldWithoutShareDeleteIsWrittenInPlace) {
  const TestDirectory directory("data");
  directory.Write(Name, Old);
  {
    const Holder holder(directory.File(Name), FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_EQ(SaveResult::Saved, Save(directory));
  }
  EXPECT_EQ("new", directory.Read(Name));
  EXPECT_EQ(Name, directory.List());
}

TEST(WindowsSave, AFileHeldWithAllSharingIsSaved) {
  const TestDirectory directory("data");
  directory.Write(Name, Old);
  {
    const Holder holder(directory.File(Name),
                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    EXPECT_EQ(SaveResult::Saved, Save(directory));
  }
  EXPECT_EQ("new", directory.Read(Name));
  EXPECT_EQ(Name, directory.List());
}

TEST(WindowsSave, AReadOnlyFileIsRefused) {
  const TestDirectory directory("data");
  directory.Write(Name, Old);
  ::SetFileAttributesA(directory.File(Name).c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(SaveResult::NotOpened, Save(directory));
  EXPECT_EQ(Old, directory.Read(Name));
  EXPECT_EQ(Name, directory.List());
}

TEST(WindowsSave, WhileAnotherProcessSavesTheSameFileThisOneFails) {
  const TestDirectory directory("data");
  directory.Write(Name, Old);
  {
    const Holder holder(directory.File("SymbolList.xml.tmp"), FILE_SHARE_DELETE, CREATE_NEW);
    EXPECT_EQ(SaveResult::Failed, Save(directory));
    EXPECT_EQ(Old, directory.Read(Name));
  }
  EXPECT_EQ(SaveResult::Saved, Save(directory));
  EXPECT_EQ("new", directory.Read(Name));
  EXPECT_EQ(Name, directory.List());
}

TEST(WindowsSave, AReaderWithoutSharingMakesReadingFail) {
  const TestDirectory directory("data");
  directory.Write(Name, Old);
  const Holder holder(directory.File(Name), 0);
  std::string bytes;
  EXPECT_EQ(tq::ReadResult::Failed,
            Files().ReadWholeFile(directory.File(Name).c_str(), 100, bytes));
}

} // namespace
