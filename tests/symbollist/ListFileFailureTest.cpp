// Saves that fail and files that cannot be read, through the manager over the file layer.
#include <string>

#include "platform/FileAccess.h"
#include "platform/Module.h"
#include "terminal/StandIn.h"
#include "tests/interface/ManagerTest.h"

namespace {

// The system's files, except that a save ends as told.
class FailingFiles : public tq::FileAccessWrapper {
public:
  explicit FailingFiles(tq::FileAccess& files) : FileAccessWrapper(files) {}
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, size_t size) override {
    ++saves;
    lastPath = path;
    lastBytes.assign(static_cast<const char*>(bytes), size);
    return result;
  }
  tq::ReadResult ReadWholeFile(const char* path, size_t limit, std::string& bytes) override {
    bytes.clear();
    return unreadable ? tq::ReadResult::Failed
                      : FileAccessWrapper::ReadWholeFile(path, limit, bytes);
  }
  // What a network drive says that does not answer, or a disk with an error.
  bool FileExists(const char* path) override {
    return !silent && FileAccessWrapper::FileExists(path);
  }
  tq::FileState StateOf(const char* path, tq::FileStamp& stamp) override {
    return silent ? tq::FileState::Unknown : FileAccessWrapper::StateOf(path, stamp);
  }
  bool unreadable = false;
  bool silent = false;
  tq::SaveResult result = tq::SaveResult::Saved;
  int saves = 0;
  std::string lastPath;
  std::string lastBytes;
};

class ListFileFailureTest : public ManagerTest {
protected:
  ListFileFailureTest() : files(tq::Files()), before(tq::SetFiles(&files)) {}
  ~ListFileFailureTest() override { tq::SetFiles(before); }

  void StartOn(const std::string& text) {
    WriteWorking(text);
    StartWithoutTables();
  }

  FailingFiles files;
  tq::FileAccess* before;
};

std::string OneList(const char* index) {
  return std::string("<Result><SymbolList DefaultIdx='") + index +
         "'><List ID='a' Name='A' Value='2330.TW' Flag='0'/></SymbolList></Result>";
}

void ExpectSaveFailedMessage(size_t count) {
  ASSERT_EQ(standin::Messages().size(), count);
  EXPECT_EQ(standin::Messages().back().id, 48026u);
  EXPECT_EQ(standin::Messages().back().type, 0u);
  EXPECT_EQ(standin::Messages().back().resources, tq::OwnModule());
}

TEST_F(ListFileFailureTest, FileThatCannotBeOpenedGivesTheMessageAndChangesNothing) {
  StartOn(OneList("-1"));
  files.result = tq::SaveResult::NotOpened;
  EXPECT_EQ(manager.SaveSymbolList(), 0);
  ExpectSaveFailedMessage(1);
  EXPECT_EQ(manager.BackupSymbolList(), 0);
  ExpectSaveFailedMessage(2);
  EXPECT_EQ(manager.CreateEmptySymbolListFile(), 0);
  ExpectSaveFailedMessage(3);
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
  int index = 0;
  manager.GetDefaultListIdx(index);
  EXPECT_EQ(index, -1);
  EXPECT_EQ(ReadWorking(), OneList("-1"));
}

TEST_F(ListFileFailureTest, FailedWriteGivesTheMessageAndKeepsTheRepairedIndex) {
  StartOn(OneList("-1"));
  files.result = tq::SaveResult::Failed;
  EXPECT_EQ(manager.SaveSymbolList(), 0);
  ExpectSaveFailedMessage(1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
  int index = -9;
  manager.GetDefaultListIdx(index);
  EXPECT_EQ(index, 0);
}

TEST_F(ListFileFailureTest, ASaveIsOneWriteOfTheWholeDocument) {
  StartOn(OneList("0"));
  files.saves = 0;
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(files.saves, 1);
  EXPECT_EQ(files.lastPath, directory.Path() + "\\SymbolList.xml");
  EXPECT_EQ(files.lastBytes.substr(files.lastBytes.size() - 9), "</Result>");
  manager.BackupSymbolList();
  EXPECT_EQ(files.lastPath, directory.Path() + "\\SymbolList_Backup.xml");
}

TEST_F(ListFileFailureTest, FailureAtStartDoesNotStopTheStart) {
  files.result = tq::SaveResult::NotOpened;
  EXPECT_EQ(StartWithoutTables(), 1);
  ExpectSaveFailedMessage(1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
}

// A file that is not whole is not read at all, wherever it was cut, and stays on the disk as it is.
TEST_F(ListFileFailureTest, FileCutAtAnyByteYieldsNoListsAndStays) {
  const std::string whole = OneList("0");
  StartOn(whole);
  for (size_t length = 0; length < whole.size(); ++length) {
    SCOPED_TRACE(length);
    WriteWorking(whole.substr(0, length));
    files.saves = 0;
    EXPECT_EQ(manager.LoadSymbolList(), 1);
    EXPECT_EQ(manager.GetSymbolListCount(1), 0);
    EXPECT_EQ(files.saves, 0);
  }
  WriteWorking(whole);
  manager.LoadSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
}

TEST_F(ListFileFailureTest, BadFilesYieldNoListsNoMessageAndNoSave) {
  const std::string list = "<List ID='a' Name='A' Value='2330.TW' Flag='0'/>";
  const std::string body = "<Result><SymbolList DefaultIdx='0'>" + list + "</SymbolList></Result>";
  std::string deep = "<Result><SymbolList DefaultIdx='0'>" + list;
  for (int i = 0; i < 10000; ++i)
    deep += "<a>";
  const std::string inBig5 = "<?xml version='1.0' encoding='utf-8' ?><Result>"
                             "<SymbolList DefaultIdx='0'><List ID='a' Name='\xB3\x5C' Value=''/>"
                             "</SymbolList></Result>";
  const std::string files_[] = {
      "",
      " ",
      std::string("\0\1\2\xFF\xFE", 5),
      std::string(5000, '\0'),
      "MZ\x90 not a list file",
      body + "trailing",
      body + body,
      "<!DOCTYPE Result [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;'>]>" + body,
      "<!DOCTYPE Result SYSTEM 'http://127.0.0.1/x.dtd'>" + body,
      "<?xml version='1.0' encoding='klingon' ?>" + body,
      inBig5,
      "<Result><SymbolList DefaultIdx='0'><List ID='a' Name='it's' "
      "Value=''/></SymbolList></Result>",
      "<Result><SymbolList DefaultIdx='0'><List ID='a' Name='A & B'/></SymbolList></Result>",
      "<Result><SymbolList DefaultIdx='0'><List ID='a' Name='A < B'/></SymbolList></Result>",
      "<Result><SymbolList DefaultIdx='0'><List ID='a' ID='b'/></SymbolList></Result>",
      "<Result><SymbolList DefaultIdx='0'><List ID='&a;'/></SymbolList></Result>",
      deep,
  };
  StartWithoutTables();
  files.saves = 0;
  for (const std::string& file : files_) {
    SCOPED_TRACE(file.substr(0, 200));
    WriteWorking(file);
    EXPECT_EQ(manager.LoadSymbolList(), 1);
    EXPECT_EQ(manager.GetSymbolListCount(1), 0);
    EXPECT_EQ(ReadWorking(), file);
  }
  EXPECT_EQ(files.saves, 0);
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(ListFileFailureTest, AHundredMegabyteFileIsNotReadAndStays) {
  const std::string list = "<List ID='a' Name='A' Value='2330.TW' Flag='0'/>";
  std::string file = "<Result><SymbolList DefaultIdx='0'>" + list;
  file.append(100u << 20, ' ');
  file += "</SymbolList></Result>";
  WriteWorking(file);
  EXPECT_EQ(StartWithoutTables(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(ReadWorking().size(), file.size());
}

// A single failed status query at a start replaced all lists by an empty file.
TEST_F(ListFileFailureTest, WhereTheSystemDoesNotTellOfAFileNoneIsMade) {
  WriteWorking(OneList("0"));
  files.silent = true;
  EXPECT_EQ(StartWithoutTables(), 1);
  EXPECT_EQ(files.saves, 0);
  EXPECT_TRUE(standin::Messages().empty());
  EXPECT_EQ(manager.GetSymbolListCount(1), 1) << "what can be read is read";
}

TEST_F(ListFileFailureTest, AFileThatCannotBeReadIsNotWrittenOver) {
  WriteWorking(OneList("0"));
  files.unreadable = true;
  EXPECT_EQ(StartWithoutTables(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_TRUE(standin::Messages().empty());
  EXPECT_EQ(manager.AddSymbolList("", 0, "added", "2330.TW", 1, 0), 1);
  ExpectSaveFailedMessage(1);
  EXPECT_EQ(files.saves, 0);
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
  EXPECT_EQ(ReadWorking(), OneList("0"));
}

// A refused copy is a file that could not be opened: the default index is not repaired either.
TEST_F(ListFileFailureTest, ARefusedCopyLeavesTheIndex) {
  StartOn(OneList("-1"));
  WriteWorking("damaged");
  files.result = tq::SaveResult::Failed;
  EXPECT_EQ(manager.SaveSymbolList(), 0);
  ExpectSaveFailedMessage(1);
  EXPECT_EQ(files.lastPath, directory.Joined("SymbolList_Kept.xml"));
  EXPECT_EQ(files.saves, 1);
  int index = 0;
  manager.GetDefaultListIdx(index);
  EXPECT_EQ(index, -1);
}

// A file saved beyond 64 MiB could not be loaded again.
TEST_F(ListFileFailureTest, ListsThatWouldNotLoadAgainAreNotSaved) {
  StartOn(OneList("-1"));
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("a", &list, 1), 1);
  std::string empty;
  {
    list->Update1("x");
    files.saves = 0;
    ASSERT_EQ(manager.SaveSymbolList(), 1);
    empty = files.lastBytes;
  }
  const size_t most = (size_t{64} << 20) - (empty.size() - 1);
  list->Update1(std::string(most, 'x').c_str());
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(files.lastBytes.size(), size_t{64} << 20);
  files.saves = 0;
  manager.SetDefaultIndex(-1);
  list->Update1(std::string(most + 1, 'x').c_str());
  EXPECT_EQ(manager.SaveSymbolList(), 0);
  ExpectSaveFailedMessage(1);
  EXPECT_EQ(files.saves, 0);
  int index = 0;
  manager.GetDefaultListIdx(index);
  EXPECT_EQ(index, -1);
}

TEST_F(ListFileFailureTest, AFileTooLargeToBeLoadedIsKeptBeforeItIsWrittenOver) {
  const std::string file = OneList("0") + std::string(65u << 20, ' ');
  StartOn(file);
  ASSERT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(files.saves, 2);
  EXPECT_NE(standin::LogLines().back().text.find("too large to be loaded"), std::string::npos);
}

} // namespace
