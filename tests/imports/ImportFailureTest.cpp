// Imports whose file cannot be renamed, or whose lists cannot be saved.
#include <cstdint>
#include <string>

#include "platform/FileAccess.h"
#include "tests/interface/EditTest.h"

namespace {

// The system's files, except that renaming and saving can be told to fail.
class StubbornFiles : public tq::FileAccessWrapper {
public:
  explicit StubbornFiles(tq::FileAccess& files) : FileAccessWrapper(files) {}
  bool RenameFile(const char* from, const char* to) override {
    return !renameFails && FileAccessWrapper::RenameFile(from, to);
  }
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, size_t size) override {
    if (!failing.empty() && std::string(path).find(failing) != std::string::npos)
      return tq::SaveResult::Failed;
    ++saves;
    return FileAccessWrapper::SaveWholeFile(path, bytes, size);
  }
  tq::FileState StateOf(const char* path, tq::FileStamp& stamp) override {
    const tq::FileState state = FileAccessWrapper::StateOf(path, stamp);
    stamp.modified += later;
    return state;
  }
  bool renameFails = false;
  std::uint64_t later = 0; // as if every file had been written that much later
  std::string failing;     // part of the path whose saves fail
  int saves = 0;
};

class ImportFailureTest : public EditTest {
protected:
  ImportFailureTest() : files(tq::Files()), before(tq::SetFiles(&files)) {}
  ~ImportFailureTest() override { tq::SetFiles(before); }

  void WriteImport(const std::string& ids) {
    directory.Write("OldOTVList.xml",
                    "<HaldeUserList><L><IDs>" + ids + "</IDs></L></HaldeUserList>");
  }

  StubbornFiles files;
  tq::FileAccess* before;
};

TEST_F(ImportFailureTest, AFileThatCannotBeRenamedIsImportedOnceAllTheSame) {
  WriteImport("2330.TW");
  files.renameFails = true;
  StartWith({});
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW");
  EXPECT_EQ(directory.Read("Added_OldOTVList.xml").find(directory.Read("OldOTVList.xml")), 0u);
  // What the user does to the list stays over the next start.
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("eOrvel 1", &list, 1), 1);
  list->Update1("1101.TW");
  ASSERT_EQ(manager.SaveSymbolList(), 1);
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/1101.TW");
  ASSERT_EQ(manager.DeleteSymbolList("eOrvel 1"), 1);
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(Shape(), "");
}

// The comment behind a copy in UTF-16 was written in single bytes, and nobody could read the copy.
TEST_F(ImportFailureTest, ACopyInUtf16CanBeReadAgain) {
  const std::string ascii = "<HaldeUserList><L><IDs>2330.TW</IDs></L></HaldeUserList>";
  for (const bool littleEndian : {true, false}) {
    std::string wide = littleEndian ? "\xFF\xFE" : "\xFE\xFF";
    for (const char byte : ascii)
      wide += littleEndian ? std::string{byte, '\0'} : std::string{'\0', byte};
    directory.Write("OldOTVList.xml", wide);
    files.renameFails = true;
    StartWith({});
    EXPECT_EQ(manager.LoadOtherProductList(), 0) << "imported once";
    CString copy = directory.Joined("Added_OldOTVList.xml").c_str();
    EXPECT_EQ(manager.DoLoadOtherProductList(copy, 0), 1);
    EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW|PellarPlus 1/PellarPlus 1/2330.TW");
    manager.ClearSymbolList();
  }
}

TEST_F(ImportFailureTest, TheRenameIsTriedAgainAtTheNextStart) {
  WriteImport("2330.TW");
  files.renameFails = true;
  StartWith({});
  files.renameFails = false;
  EXPECT_EQ(manager.LoadOtherProductList(), 0);
  EXPECT_FALSE(directory.Exists("OldOTVList.xml"));
  EXPECT_TRUE(directory.Exists("Added_OldOTVList.xml"));
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW");
}

TEST_F(ImportFailureTest, TheSameListsExportedAgainAreImportedThoughTheFirstFileWasNotRenamed) {
  WriteImport("2330.TW");
  files.renameFails = true;
  StartWith({});
  ASSERT_EQ(manager.DeleteSymbolList("eOrvel 1"), 1);
  EXPECT_EQ(manager.LoadOtherProductList(), 0);
  files.later = 1;
  EXPECT_EQ(manager.LoadOtherProductList(), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW");
  ASSERT_EQ(manager.DeleteSymbolList("eOrvel 1"), 1);
  EXPECT_EQ(manager.LoadOtherProductList(), 0) << "once only, this one too";
}

// The copy made of a file that could not be renamed is still a well-formed document.
TEST_F(ImportFailureTest, TheMarkedCopyCanBeImportedItself) {
  WriteImport("2330.TW");
  files.renameFails = true;
  StartWith({});
  files.renameFails = false;
  const std::string copy = directory.Read("Added_OldOTVList.xml");
  EXPECT_EQ(manager.LoadOtherProductList(), 0);
  ASSERT_EQ(manager.DeleteSymbolList("eOrvel 1"), 1);
  directory.Write("OldOTVList.xml", copy);
  EXPECT_EQ(manager.LoadOtherProductList(), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW");
}

TEST_F(ImportFailureTest, AnotherFileThatComesLaterIsImported) {
  WriteImport("2330.TW");
  files.renameFails = true;
  StartWith({});
  WriteImport("2317.TW");
  EXPECT_EQ(manager.LoadOtherProductList(), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2317.TW");
}

TEST_F(ImportFailureTest, WithoutACopyTheNextStartImportsAgainButLeavesRenamedLists) {
  WriteImport("2330.TW");
  files.renameFails = true;
  files.failing = "Added_OldOTVList";
  StartWith({});
  EXPECT_FALSE(directory.Exists("Added_OldOTVList.xml"));
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("eOrvel 1", &list, 1), 1);
  list->SetName("Mine");
  list->Update1("1101.TW");
  EXPECT_EQ(manager.LoadOtherProductList(), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/Mine/1101.TW");
}

TEST_F(ImportFailureTest, ListsThatCouldNotBeSavedKeepTheirFile) {
  StartWith({});
  WriteImport("2330.TW");
  files.failing = "\\SymbolList.xml";
  EXPECT_EQ(manager.LoadOtherProductList(), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW");
  EXPECT_TRUE(directory.Exists("OldOTVList.xml"));
  EXPECT_FALSE(directory.Exists("Added_OldOTVList.xml"));
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages()[0].id, 48026u);
  files.failing.clear();
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW");
  EXPECT_FALSE(directory.Exists("OldOTVList.xml"));
}

TEST_F(ImportFailureTest, ManyListsAreSavedOnce) {
  StartWith({});
  std::string file = "<HaldeUserList>";
  for (int i = 0; i < 50; ++i)
    file += "<L><IDs>2330.TW</IDs></L>";
  directory.Write("OldOTVList.xml", file + "</HaldeUserList>");
  files.saves = 0;
  EXPECT_EQ(manager.LoadOtherProductList(), 1);
  EXPECT_EQ(files.saves, 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 50);
}

// The file of trading systems is for others: when it cannot be written, nothing is said and the
// lists are there.
TEST_F(ImportFailureTest, ATradingFileThatCannotBeWrittenHoldsUpNothing) {
  standin::Market market = SmallMarket();
  market.tradingSystems = {{"T1", "one", "one", true, {{1, "a", "A", "2330.TW"}}}};
  standin::SetMarket(market);
  ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 1);
  files.failing = "TSList.xml";
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(manager.GetSymbolListCount(6), 2);
  EXPECT_TRUE(standin::Messages().empty());
  EXPECT_FALSE(directory.Exists("TSList.xml"));
  files.failing.clear();
  manager.UpdateTSLogin("T1");
  EXPECT_TRUE(directory.Exists("TSList.xml"));
}

} // namespace
