// Import of an older product's lists, and the texts of a broker's edition.
#include <cstdio>

#include "tests/interface/EditTest.h"

namespace {

class ImportTest : public EditTest {
protected:
  static std::string File(const std::string& inner) {
    return "<HaldeUserList>" + inner + "</HaldeUserList>";
  }
  void WriteImport(const std::string& bytes) { directory.Write("OldOTVList.xml", bytes); }
  int Import(const std::string& bytes, int product) {
    directory.Write("Any.xml", bytes);
    CString path = directory.Joined("Any.xml").c_str();
    return manager.DoLoadOtherProductList(path, product);
  }
};

TEST_F(ImportTest, AStartImportsTheFileAndRenamesIt) {
  const std::string file = File("<L><IDs>2330.TW,2317.TW</IDs></L><L><IDs>1101.TW</IDs></L>");
  WriteImport(file);
  StartWith({"a/A/2454.TW"});
  EXPECT_EQ(Shape(), "a/A/2454.TW|eOrvel 1/eOrvel 1/2330.TW,2317.TW|eOrvel 2/eOrvel 2/1101.TW");
  EXPECT_FALSE(directory.Exists("OldOTVList.xml"));
  EXPECT_EQ(directory.Read("Added_OldOTVList.xml"), file);
  EXPECT_NE(ReadWorking().find("<List ID='eOrvel 2' Name='eOrvel 2' Value='1101.TW' Flag='0'/>"),
            std::string::npos);
}

TEST_F(ImportTest, ASecondCallOrStartImportsNothing) {
  WriteImport(File("<L><IDs>2330.TW</IDs></L>"));
  StartWith({});
  ASSERT_EQ(manager.DeleteSymbolList("eOrvel 1"), 1);
  EXPECT_EQ(manager.LoadOtherProductList(), 0);
  EXPECT_EQ(Shape(), "");
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(Shape(), "");
}

// Symptom: exporting the same lists again, or putting the same file back, imported nothing.
TEST_F(ImportTest, TheSameListsExportedAgainAreImportedAgain) {
  const std::string file = File("<L><IDs>2330.TW</IDs></L>");
  WriteImport(file);
  StartWith({});
  ASSERT_EQ(manager.DeleteSymbolList("eOrvel 1"), 1);
  WriteImport(file);
  EXPECT_EQ(manager.LoadOtherProductList(), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW");
  ASSERT_EQ(manager.DeleteSymbolList("eOrvel 1"), 1);
  ASSERT_EQ(std::rename(directory.Native("Added_OldOTVList.xml").c_str(),
                        directory.Native("OldOTVList.xml").c_str()),
            0);
  directory.Write("Added_OldOTVList.xml", file);
  EXPECT_EQ(manager.LoadOtherProductList(), 1) << "the imported file itself, put there again";
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW");
}

// The lists are saved before the file is renamed, so a process killed in between leaves this.
TEST_F(ImportTest, AStartThatEndedBeforeTheRenameIsMadeGoodByTheNext) {
  const std::string file = File("<L><IDs>2330.TW</IDs></L><L><IDs>2317.TW</IDs></L>");
  WriteImport(file);
  StartWith({"a/A/2454.TW"});
  directory.Write("Added_OldOTVList.xml", "an older import");
  WriteImport(file);
  const std::string lists = Shape();
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(Shape(), lists);
  EXPECT_EQ(manager.GetSymbolListCount(1), 3);
  EXPECT_FALSE(directory.Exists("OldOTVList.xml"));
  EXPECT_EQ(directory.Read("Added_OldOTVList.xml"), file);
}

TEST_F(ImportTest, SystemListsComeFirst) {
  WriteImport(File("<L><IDs>2330.TW</IDs></L>"));
  ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 0, 1, nullptr, 0, 0), 1);
  ASSERT_EQ(manager.GetSymbolListCount(1), 7);
  EXPECT_EQ(IdAt(6), "eOrvel 1");
}

TEST_F(ImportTest, ANodeWithoutIdsKeepsItsNumber) {
  WriteImport(File("<L><IDs>2330.TW</IDs></L><L><IDs/></L><L><IDs>2317.TW</IDs></L>"));
  StartWith({});
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/2330.TW|eOrvel 3/eOrvel 3/2317.TW");
}

TEST_F(ImportTest, WithoutAFileNothingHappens) {
  StartWith({"a/A/2454.TW"});
  EXPECT_EQ(manager.LoadOtherProductList(), 0);
  EXPECT_EQ(Shape(), "a/A/2454.TW");
  EXPECT_FALSE(directory.Exists("Added_OldOTVList.xml"));
  ExpectNotNotified();
}

TEST_F(ImportTest, AMalformedFileKeepsItsNameUntilItIsReadable) {
  WriteImport("<HaldeUserList><L><IDs>2330.TW</IDs></L>");
  StartWith({"a/A/2454.TW"});
  EXPECT_EQ(Shape(), "a/A/2454.TW");
  EXPECT_TRUE(directory.Exists("OldOTVList.xml"));
  EXPECT_FALSE(directory.Exists("Added_OldOTVList.xml"));
  WriteImport(File("<L><IDs>2330.TW</IDs></L>"));
  EXPECT_EQ(manager.LoadOtherProductList(), 1);
  EXPECT_EQ(Shape(), "a/A/2454.TW|eOrvel 1/eOrvel 1/2330.TW");
}

TEST_F(ImportTest, ADocumentOfAnotherKindAddsNothingAndIsDoneWith) {
  WriteImport("<Result><L><IDs>2330.TW</IDs></L></Result>");
  StartWith({"a/A/2454.TW"});
  EXPECT_EQ(Shape(), "a/A/2454.TW");
  EXPECT_TRUE(directory.Exists("Added_OldOTVList.xml"));
}

TEST_F(ImportTest, AnEmptyDirectoryOrPathImportsNothing) {
  ASSERT_EQ(manager.Init("", 0, 0, 0, nullptr, 0, 0), 1);
  EXPECT_EQ(manager.LoadOtherProductList(), 0);
  CString none;
  EXPECT_EQ(manager.DoLoadOtherProductList(none, 1), 0);
}

TEST_F(ImportTest, EachProductHasItsIdsAndNames) {
  StartWith({});
  const std::string file = File("<L><IDs>2330.TW</IDs></L>");
  for (int product : {0, 1, 2})
    EXPECT_EQ(Import(file, product), 1);
  EXPECT_EQ(Shape(), "PellarPlus 1/PellarPlus 1/2330.TW|eOrvel 1/eOrvel 1/2330.TW|"
                     "eTamsin 1/eTamsin 1/2330.TW");
  EXPECT_EQ(Import(file, 3), 0);
  EXPECT_EQ(Import(file, -1), 0);
  EXPECT_EQ(manager.GetSymbolListCount(1), 3);
}

TEST_F(ImportTest, TheResultSaysWhetherTheFileWasRead) {
  StartWith({});
  EXPECT_EQ(Import("<HaldeUserList>", 1), 0);
  EXPECT_EQ(Import("<Other/>", 1), 1);
  EXPECT_EQ(Import("<HaldeUserList/>", 1), 1);
  CString missing = directory.Joined("Missing.xml").c_str();
  EXPECT_EQ(manager.DoLoadOtherProductList(missing, 1), 0);
  EXPECT_EQ(Shape(), "");
  ExpectNotNotified();
}

TEST_F(ImportTest, DoLoadLeavesTheFile) {
  StartWith({});
  ASSERT_EQ(Import(File("<L><IDs>2330.TW</IDs></L>"), 1), 1);
  EXPECT_TRUE(directory.Exists("Any.xml"));
}

TEST_F(ImportTest, EachListIsLoggedAndTheTerminalTold) {
  StartWith({});
  const size_t lines = standin::LogLines().size();
  Import(File("<L><IDs>2330.TW</IDs></L><L/><L><IDs>2317.TW</IDs></L>"), 1);
  ASSERT_EQ(standin::LogLines().size(), lines + 2);
  EXPECT_EQ(standin::LogLines().back().text, "Add SymbolList");
  EXPECT_EQ(standin::LogLines().back().level, 64);
  ExpectNotified(2, 40, "");
}

TEST_F(ImportTest, ADefaultIndexOfNoneBecomesTheFirstList) {
  StartWith({});
  manager.SetDefaultIndex(-1);
  Import(File("<L><IDs/></L>"), 1);
  EXPECT_EQ(DefaultIndex(), -1);
  Import(File("<L><IDs>2330.TW</IDs></L>"), 1);
  EXPECT_EQ(DefaultIndex(), 0);
}

TEST_F(ImportTest, ATakenNameGetsANumber) {
  StartWith({"a/EORVEL 1/2454.TW", "b/eOrvel 1(1)/2454.TW"});
  Import(File("<L><IDs>2330.TW</IDs></L>"), 1);
  EXPECT_EQ(NameAt(2), "eOrvel 1(2)");
  EXPECT_EQ(IdAt(2), "eOrvel 1");
}

TEST_F(ImportTest, AListOfThatIdUnderAnotherNameIsNotTouched) {
  StartWith({"EORVEL 1/Mine/2454.TW"});
  Import(File("<L><IDs>2330.TW</IDs></L><L><IDs>2317.TW</IDs></L>"), 1);
  EXPECT_EQ(Shape(), "EORVEL 1/Mine/2454.TW|eOrvel 2/eOrvel 2/2317.TW");
  ExpectNotified(1, 40, "");
}

TEST_F(ImportTest, AListOfThatIdAndNameGetsTheSymbols) {
  StartWith({"eOrvel 1/EORVEL 1/2454.TW"});
  Import(File("<L><IDs>2330.TW</IDs></L>"), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/EORVEL 1/2330.TW");
  ExpectNotified(1, 40, "");
}

TEST_F(ImportTest, SymbolsThatWentOverAreRenamed) {
  StartWith({});
  Import(File("<L><IDs>6488.TW,2330.TW</IDs></L>"), 1);
  EXPECT_EQ(Shape(), "eOrvel 1/eOrvel 1/6488.TE,2330.TW");
}

TEST_F(ImportTest, AnImportDoesWhatAddingTheListsDoes) {
  StartWith({"a/eOrvel 2/2454.TW", "eOrvel 3/Other/2454.TW", "eOrvel 4/eOrvel 4/2454.TW"});
  Import(File("<L><IDs>2330.TW</IDs></L><L><IDs>2317.TW</IDs></L><L><IDs>1101.TW</IDs></L>"
              "<L><IDs>6488.TW</IDs></L>"),
         1);
  const std::string imported = Shape();
  CTQSymbolListMgr other;
  TempDir second;
  second.Write("SymbolList.xml", "<Result><SymbolList DefaultIdx='0'>"
                                 "<List ID='a' Name='eOrvel 2' Value='2454.TW'/>"
                                 "<List ID='eOrvel 3' Name='Other' Value='2454.TW'/>"
                                 "<List ID='eOrvel 4' Name='eOrvel 4' Value='2454.TW'/>"
                                 "</SymbolList></Result>");
  ASSERT_EQ(other.Init(second.Path().c_str(), 0, 1, 0, nullptr, 0, 0), 1);
  other.AddSymbolList("eOrvel 1", 1, "eOrvel 1", "2330.TW", 1, 0);
  other.AddSymbolList("eOrvel 2", 1, "eOrvel 2", "2317.TW", 1, 0);
  other.AddSymbolList("eOrvel 3", 1, "eOrvel 3", "1101.TW", 1, 0);
  other.AddSymbolList("eOrvel 4", 1, "eOrvel 4", "6488.TW", 1, 0);
  EXPECT_EQ(second.Read("SymbolList.xml"), ReadWorking());
  EXPECT_NE(imported.find("eOrvel 2/eOrvel 2(1)/2317.TW"), std::string::npos);
}

TEST_F(ImportTest, TenThousandListsAreImported) {
  StartWith({});
  standin::RecordCalls(false);
  std::string inner;
  for (int i = 0; i < 10'000; ++i)
    inner += "<L><IDs>2330.TW</IDs></L>";
  WriteImport(File(inner));
  EXPECT_EQ(manager.LoadOtherProductList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 10'000);
  EXPECT_EQ(IdAt(9'999), "eOrvel 10000");
  ExpectNotified(10'000, 40, "");
  EXPECT_FALSE(directory.Exists("OldOTVList.xml"));
}

TEST_F(ImportTest, IdsThatTheListFileCannotCarryDoNotSpoilIt) {
  WriteImport(File("<L><IDs>2330.TW,it&apos;s,A&amp;B</IDs></L>"));
  StartWith({"a/A/2454.TW"});
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_EQ(Shape(), "a/A/2454.TW|eOrvel 1/eOrvel 1/2330.TW");
}

std::string Joined(const std::vector<CString>& texts) {
  std::string joined;
  for (const CString& text : texts)
    joined += (joined.empty() ? "" : "|") + std::string(text);
  return joined;
}

TEST_F(ImportTest, ExtraInformationIsKeptOnceInOrder) {
  EXPECT_TRUE(manager.GetExtraTQInfo().empty());
  for (const char* info : {"OTV01", "B", "", "OTV01", "b"})
    manager.AddExtraTQInfo(info);
  EXPECT_EQ(Joined(manager.GetExtraTQInfo()), "OTV01|B|b");
}

TEST_F(ImportTest, ExtraInformationIsRemovedByItsWholeText) {
  for (const char* info : {"A", "B", "C"})
    manager.AddExtraTQInfo(info);
  for (const char* info : {"", "b", "none", "B"})
    manager.RemoveExtraTQInfo(info);
  EXPECT_EQ(Joined(manager.GetExtraTQInfo()), "A|C");
  manager.RemoveExtraTQInfo("B");
  manager.AddExtraTQInfo("B");
  EXPECT_EQ(Joined(manager.GetExtraTQInfo()), "A|C|B");
}

TEST_F(ImportTest, ExtraInformationOutlivesAStart) {
  manager.AddExtraTQInfo("OTV01");
  StartWith({});
  EXPECT_EQ(Joined(manager.GetExtraTQInfo()), "OTV01");
}

} // namespace
