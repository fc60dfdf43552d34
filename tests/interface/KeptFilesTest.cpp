// Lists that are on the disk and not in memory are never lost: a save that would overwrite them
// makes a copy first.
#include <algorithm>
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

constexpr char kCopy[] = "SymbolList_Kept.xml";
constexpr char kBackupCopy[] = "SymbolList_Backup_Kept.xml";

class KeptFilesTest : public EditTest {
protected:
  static std::string Declaration() {
    return std::string("<?xml version='1.0' encoding='") +
           (IsTraditionChinese() ? "big5" : "gb2312") + "' ?>\n";
  }
  // As the library writes it.
  static std::string File(const std::string& lists, const std::string& index = "0") {
    return Declaration() + "<Result>\n<SymbolList DefaultIdx='" + index + "'>\n" + lists +
           "</SymbolList>\n</Result>";
  }
  static std::string List(const std::string& id) {
    return "\t<List ID='" + id + "' Name='" + id + "' Value='2330.TW' Flag='0'/>\n";
  }
  static std::string TwoLists() { return File(List("a") + List("b")); }

  int Add(const char* name) { return manager.AddSymbolList("", 0, name, "2317.TW", 1, 0); }
  bool Saved(const std::string& name) { return ReadWorking().find(name) != std::string::npos; }

  // The names of the copies in the directory, joined by blanks.
  std::string Copies() const {
    std::string copies;
    for (const std::string& name : directory.Names()) {
      if (name.find("_Kept") != std::string::npos)
        copies += (copies.empty() ? "" : " ") + name;
    }
    return copies;
  }
  static std::string LastLine() {
    return standin::LogLines().empty() ? "" : standin::LogLines().back().text;
  }
  // The last line of level 64 about a copy.
  static std::string KeptLine() {
    const auto lines = standin::LogLines();
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
      if (line->text.find("List file ") == 0)
        return line->level == 64 ? line->text : "of another level";
    }
    return "";
  }
  void ExpectLine(const std::string& copy, const std::string& why) {
    EXPECT_EQ(KeptLine(), "List file " + directory.Joined("SymbolList.xml") + " is kept as " +
                              directory.Joined(copy) + ": " + why);
  }
};

// Symptom: the symbol-data service was down at the start, the manager had no lists, and the list
// that the user added replaced all lists in the file.
TEST_F(KeptFilesTest, AStartThatFailsAtTheTablesDoesNotCostTheListsOfTheFile) {
  for (const char* operation : {"VLGetExch", "VLGetBaseAttrs2", "TQSGetUserInfo"}) {
    SCOPED_TRACE(operation);
    const std::string lists = File(List(operation));
    WriteWorking(lists);
    standin::FailCall(operation, 1);
    ASSERT_EQ(StartWithTables(), 0);
    EXPECT_EQ(Add("added"), 1);
    EXPECT_TRUE(Saved("added"));
    EXPECT_FALSE(Saved(operation));
    EXPECT_NE(Copies(), "");
    std::string kept;
    for (const char* copy : {kCopy, "SymbolList_Kept1.xml", "SymbolList_Kept2.xml"})
      kept += directory.Read(copy);
    EXPECT_NE(kept.find(lists), std::string::npos);
  }
  EXPECT_EQ(Copies(), "SymbolList_Kept.xml SymbolList_Kept1.xml SymbolList_Kept2.xml");
  ExpectLine("SymbolList_Kept2.xml", "the lists in memory do not come from it");
}

// The same for a manager that has read the file before: the second Init removes its lists from
// memory.
TEST_F(KeptFilesTest, AFailingStartOfALiveManagerDoesNotCostThemEither) {
  WriteWorking(TwoLists());
  ASSERT_EQ(StartWithTables(), 1);
  ASSERT_EQ(manager.GetSymbolListCount(1), 2);
  standin::FailCall("VLGetExch", 1);
  ASSERT_EQ(StartWithTables(), 0);
  EXPECT_EQ(Add("added"), 1);
  EXPECT_EQ(directory.Read(kCopy), TwoLists());
}

// Symptom: one stray apostrophe kept all lists from loading, and the next save overwrote the file.
TEST_F(KeptFilesTest, AFileThatCannotBeLoadedIsKept) {
  const struct {
    std::string file;
    const char* why;
  } rows[] = {
      {File("\t<List ID='a' Name='it's' Value=''/>\n"), "it is damaged"},
      {TwoLists().substr(0, 100), "it is damaged"},
      {"MZ\x90", "it is damaged"},
      {"<Other><List ID='a'/></Other>", "it is no list file"},
      {File(List("a") + "\t<List/>\n" + List("b")), "a bad list ended its load"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.file);
    TempDir data;
    data.Write("SymbolList.xml", row.file);
    CTQSymbolListMgr fresh;
    ASSERT_EQ(fresh.Init(data.Path().c_str(), 0, 0, 0, nullptr, 0, 0), 1);
    EXPECT_FALSE(data.Exists(kCopy));
    EXPECT_EQ(fresh.AddSymbolList("", 0, "added", "2317.TW", 1, 0), 1);
    EXPECT_EQ(data.Read(kCopy), row.file);
    EXPECT_NE(data.Read("SymbolList.xml").find("added"), std::string::npos);
    EXPECT_EQ(KeptLine(), "List file " + data.Joined("SymbolList.xml") + " is kept as " +
                              data.Joined(kCopy) + ": " + row.why);
    EXPECT_EQ(fresh.SaveSymbolList(), 1);
    EXPECT_EQ(data.Names(), (std::vector<std::string>{"SymbolList.xml", kCopy}));
  }
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(KeptFilesTest, WhatAnotherProgramHasWrittenSinceIsKept) {
  WriteWorking(TwoLists());
  StartWithoutTables();
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(Copies(), "");
  const std::string theirs = File(List("theirs"));
  WriteWorking(theirs);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), TwoLists());
  EXPECT_EQ(directory.Read(kCopy), theirs);
  ExpectLine(kCopy, "another program has written it");
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(Copies(), kCopy);
}

TEST_F(KeptFilesTest, TwoManagersOfOneDirectoryKeepEachOthersLists) {
  StartWithoutTables();
  CTQSymbolListMgr other;
  other.Init(directory.Path().c_str(), 0, 0, 0, nullptr, 0, 0);
  EXPECT_EQ(Add("mine"), 1);
  const std::string mine = ReadWorking();
  EXPECT_EQ(other.AddSymbolList("", 0, "theirs", "2317.TW", 1, 0), 1);
  EXPECT_EQ(directory.Read(kCopy), mine);
}

// A file that was rewritten with the same bytes counts as read.
TEST_F(KeptFilesTest, TheSameBytesUnderALaterTimeAreKnown) {
  WriteWorking(TwoLists());
  StartWithoutTables();
  WriteWorking(TwoLists().substr(0, 10));
  WriteWorking(TwoLists());
  EXPECT_EQ(Add("added"), 1);
  EXPECT_EQ(Copies(), "");
}

TEST_F(KeptFilesTest, NothingIsKeptOfFilesThatWereReadOrHoldNoList) {
  StartWithoutTables(); // makes an empty file
  EXPECT_EQ(Add("one"), 1);
  EXPECT_EQ(manager.LoadSymbolList(), 1);
  EXPECT_EQ(Add("two"), 1);
  ASSERT_EQ(StartWithoutTables(), 1);
  EXPECT_EQ(Add("three"), 1);
  EXPECT_EQ(manager.BackupSymbolList(), 1);
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(manager.CreateEmptySymbolListFile(), 1);
  EXPECT_EQ(manager.UpdateTQSymbolList(), 1);
  EXPECT_EQ(Add("four"), 1);
  for (const std::string& file : {std::string(), File(""), File("", "-1")}) {
    WriteWorking(file); // by another program
    EXPECT_EQ(manager.SaveSymbolList(), 1);
  }
  EXPECT_EQ(directory.Names(),
            (std::vector<std::string>{"SymbolList.xml", "SymbolList_Backup.xml"}));
}

TEST_F(KeptFilesTest, ADirectoryThatTheManagerGoesOverToIsReadFirst) {
  StartWithoutTables();
  EXPECT_EQ(Add("here"), 1);
  TempDir other;
  other.Write("SymbolList.xml", TwoLists());
  manager.ReLoadList(other.Path().c_str());
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(other.Read("SymbolList.xml"), TwoLists());
  EXPECT_FALSE(other.Exists(kCopy));
  other.Write("SymbolList.xml", "damaged");
  manager.ReLoadList(other.Path().c_str());
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(other.Read(kCopy), "damaged");
}

// Restoring a missing or damaged backup empties the manager; the working file's lists are then only
// in the file.
TEST_F(KeptFilesTest, ARestoreThatFailsDoesNotCostTheWorkingFile) {
  WriteWorking(TwoLists());
  StartWithoutTables();
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  ASSERT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(Add("added"), 1);
  EXPECT_EQ(directory.Read(kCopy), TwoLists());
}

// Restoring a backup without lists overwrites the working file at once.
TEST_F(KeptFilesTest, ARestoreOfNothingKeepsTheWorkingFile) {
  WriteWorking(TwoLists());
  WriteBackup(File("", "-1"));
  StartWithoutTables();
  EXPECT_EQ(manager.RestorSymbolList(), 1);
  EXPECT_EQ(ReadWorking(), File("", "-1"));
  EXPECT_EQ(directory.Read(kCopy), TwoLists());
}

TEST_F(KeptFilesTest, ABackupThatNobodyHasReadIsKept) {
  const std::string backup = File(List("old"));
  WriteWorking(TwoLists());
  WriteBackup(backup);
  StartWithoutTables();
  EXPECT_EQ(manager.BackupSymbolList(), 1);
  EXPECT_EQ(ReadBackup(), TwoLists());
  EXPECT_EQ(directory.Read(kBackupCopy), backup);
  EXPECT_EQ(manager.BackupSymbolList(), 1);
  EXPECT_EQ(Copies(), kBackupCopy);
}

TEST_F(KeptFilesTest, TheTenthCopyIsTheLastAndThenTheOldestGoes) {
  StartWithoutTables();
  constexpr int kFiles = 13;
  const auto damaged = [](int number) { return "damaged " + std::to_string(number); };
  for (int number = 0; number < kFiles; ++number) {
    WriteWorking(damaged(number));
    manager.LoadSymbolList();
    ASSERT_EQ(manager.SaveSymbolList(), 1);
  }
  std::string expected = "SymbolList_Kept.xml";
  for (int copy = 1; copy <= 9; ++copy)
    expected += " SymbolList_Kept" + std::to_string(copy) + ".xml";
  EXPECT_EQ(Copies(), expected);
  EXPECT_EQ(directory.Read(kCopy), damaged(10));
  for (int copy = 1; copy <= 9; ++copy) {
    EXPECT_EQ(directory.Read("SymbolList_Kept" + std::to_string(copy) + ".xml"),
              damaged(copy <= 2 ? 10 + copy : copy));
  }
}

TEST_F(KeptFilesTest, BytesThatAreKeptAlreadyAreNotKeptAgain) {
  for (int start = 0; start < 3; ++start) {
    for (const char* file : {"damaged one", "damaged two"}) {
      WriteWorking(file);
      StartWithoutTables();
      EXPECT_EQ(manager.SaveSymbolList(), 1);
    }
  }
  EXPECT_EQ(Copies(), "SymbolList_Kept.xml SymbolList_Kept1.xml");
}

// A name with "&" can be read but is written unescaped, and the file can then no longer be read.
TEST_F(KeptFilesTest, AFileThatCannotBeWrittenBackIsKept) {
  const struct {
    const char* list;
    bool kept;
  } rows[] = {
      {"<List ID='a' Name='R&amp;D' Value='2330.TW'/>", true},
      {"<List ID='a' Name='R&#38;D' Value='2330.TW'/>", true},
      {"<List ID='a' Name=\"it's\" Value='2330.TW'/>", true},
      {"<List ID='a' Name='a' Value='2330.TW&lt;'/>", true},
      {"<List ID='a&apos;' Name='a' Value='2330.TW'/>", true},
      {"<List ID='a' Name='a&#10;b' Value='2330.TW'/>", true},
      {"<List ID='a' Name='&#x6C49;&#x5B57;&#xE000;' Value='2330.TW'/>", true}, // one is lost
      {"<List ID='123456789012345678901234567890123456789' Name='a' Value=''/>", true}, // cut
      {"<List Name=\"a\" ID=\"a\"\nValue='2330.TW' Other='x'/><!-- by hand -->", false},
      {"<List ID='a' Name='&gt;&quot;&#65;?' Value='2330.TW'/>", true}, // lost or not: "?"
      {"<List ID='a' Name='&gt;&quot;&gt;' Value='2330.TW'/>", false},
      {"<List ID='a' Name='a?' Value='2330.TW'/>", false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.list);
    TempDir data;
    const std::string file = File(row.list, "-1");
    data.Write("SymbolList.xml", file);
    CTQSymbolListMgr fresh;
    ASSERT_EQ(fresh.Init(data.Path().c_str(), 0, 0, 0, nullptr, 0, 0), 1);
    ASSERT_EQ(fresh.GetSymbolListCount(1), 1);
    EXPECT_EQ(fresh.SaveSymbolList(), 1);
    EXPECT_EQ(fresh.SaveSymbolList(), 1);
    EXPECT_EQ(data.Read(kCopy), row.kept ? file : "");
    EXPECT_EQ(KeptLine().find(data.Path()) != std::string::npos, row.kept);
    if (row.kept) {
      EXPECT_NE(KeptLine().find("it holds what cannot be written back"), std::string::npos);
    }
  }
}

TEST_F(KeptFilesTest, TextThatTheCodePageLacksIsKept) {
  const std::string file =
      "<?xml version='1.0' encoding='utf-8'?>" +
      File("<List ID='a' Name='\xED\x95\x9C' Value=''/>").substr(Declaration().size());
  WriteWorking(file);
  StartWithoutTables();
  EXPECT_EQ(NameAt(0), "?");
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(directory.Read(kCopy), file);
}

// The copy is of the file as it is when it is overwritten, not as it was when it was loaded.
TEST_F(KeptFilesTest, TheBytesOfTheMomentAreKept) {
  WriteWorking("damaged");
  StartWithoutTables();
  WriteWorking(TwoLists());
  EXPECT_EQ(Add("added"), 1);
  EXPECT_EQ(directory.Read(kCopy), TwoLists());
}

TEST_F(KeptFilesTest, WhatBearsACopysNameAndIsNoFileIsPassedOver) {
  directory.MakeDirectory(kCopy);
  WriteWorking("damaged");
  StartWithoutTables();
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(directory.Read("SymbolList_Kept1.xml"), "damaged");
}

// When the copy cannot be made, the file stays, and so do the lists in memory.
TEST_F(KeptFilesTest, WithoutACopyTheSaveIsRefused) {
  for (int copy = 0; copy <= 9; ++copy)
    directory.MakeDirectory("SymbolList_Kept" + (copy > 0 ? std::to_string(copy) : "") + ".xml");
  WriteWorking("damaged");
  StartWithoutTables();
  EXPECT_EQ(Add("added"), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
  EXPECT_EQ(ReadWorking(), "damaged");
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages().back().id, 48026u);
  EXPECT_EQ(KeptLine(), "List file " + directory.Joined("SymbolList.xml") +
                            " is not saved: what it holds cannot be kept beside it");
  EXPECT_EQ(manager.SaveSymbolList(), 0);
  EXPECT_EQ(manager.CreateEmptySymbolListFile(), 0);
  EXPECT_EQ(ReadWorking(), "damaged");
}

TEST_F(KeptFilesTest, AnyFileThatIsSavedOverIsKept) {
  WriteWorking(TwoLists());
  StartWithoutTables();
  directory.Write("Other.xml", "precious");
  EXPECT_EQ(manager.DoSaveSymbolList(directory.Joined("Other.xml").c_str()), 1);
  EXPECT_EQ(directory.Read("Other_Kept.xml"), "precious");
  directory.Write("Other", "precious too");
  EXPECT_EQ(manager.DoSaveSymbolList(directory.Joined("Other").c_str()), 1);
  EXPECT_EQ(directory.Read("Other_Kept.xml"), "precious");
  EXPECT_EQ(directory.Read("Other_Kept1.xml"), "precious too");
}

} // namespace
