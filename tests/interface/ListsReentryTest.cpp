// The terminal handles messages while a service works, and calls the manager from there: a save
// within a load and the like. tests/operations has all pairs of operations.
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class LoadReentryTest : public EditTest {};

// Symptom: a save from within a load wrote only the lists read so far.
TEST_F(LoadReentryTest, ASaveWithinALoadWritesWholeLists) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW", "c/C/2454.TW"});
  const std::string shape = Shape();
  int saves = 0;
  standin::OnCall("VLGetSymbolInfos", [&] {
    ++saves;
    manager.SaveSymbolList();
    for (const char* id : {"'a'", "'b'", "'c'"})
      EXPECT_NE(ReadWorking().find(id), std::string::npos) << id;
  });
  manager.LoadSymbolList();
  standin::OnCall("VLGetSymbolInfos", {});
  EXPECT_GT(saves, 0);
  EXPECT_EQ(Shape(), shape);
}

// Symptom: so did a save from within the commit of a working copy.
TEST_F(LoadReentryTest, ASaveWhileListsAreReplacedWritesWholeLists) {
  StartWith({"a/A/6488.TW", "b/B/2317.TW"});
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  static_cast<CSymbolList*>(copies[1])->Update1("6488.TW");
  int saves = 0;
  standin::OnCall("VLGetSymbolInfos", [&] {
    ++saves;
    manager.SaveSymbolList();
    EXPECT_NE(ReadWorking().find("'a'"), std::string::npos);
    EXPECT_NE(ReadWorking().find("'b'"), std::string::npos);
  });
  EXPECT_EQ(manager.SetSymbolList(&copies), 1);
  standin::OnCall("VLGetSymbolInfos", {});
  EXPECT_GT(saves, 0);
  EXPECT_EQ(Shape(), "a/A/6488.TE|b/B/6488.TE");
  DeleteCopies(copies);
}

// What was saved while the backup was loaded made the next load of the working file write it.
TEST_F(LoadReentryTest, ASaveWithinTheLoadOfAnotherFileIsNoneWithinTheNextLoad) {
  StartWith({"a/A/2330.TW"});
  manager.BackupSymbolList();
  standin::OnCall("VLGetSymbolInfos", [&] { manager.SaveSymbolList(); });
  manager.RestorSymbolList();
  standin::OnCall("VLGetSymbolInfos", {});
  const std::string file = ReadWorking() + "\n";
  WriteWorking(file);
  manager.LoadSymbolList();
  EXPECT_EQ(ReadWorking(), file);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
}

// The line in the log that a part of the name was left out: the list was gone when it was named.
TEST_F(LoadReentryTest, AListThatIsClearedWhileItsNewNameIsLoggedIsNotNamed) {
  StartWith({"a/A/2330.TW"});
  standin::OnCall("TQLog::write", [&] { manager.ClearSymbolList(); });
  int changed = -1;
  EXPECT_EQ(manager.UpdateSystemList("a", "B\x01", "2317.TW", changed), 1);
  standin::OnCall("TQLog::write", {});
  EXPECT_EQ(changed, 0);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
}

// What the terminal cleared while symbols were replaced was saved: an empty file.
TEST_F(LoadReentryTest, ListsClearedWhileIdsAreReplacedAreNotSavedAway) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  const std::string before = ReadWorking();
  CStringArray oldIds;
  CStringArray newIds;
  oldIds.Add("2330");
  newIds.Add("2454");
  standin::OnCall("VLGetSymbolInfos", [&] { manager.ClearSymbolList(); });
  EXPECT_EQ(manager.ReplaceID(&oldIds, &newIds), 0);
  standin::OnCall("VLGetSymbolInfos", {});
  EXPECT_EQ(ReadWorking(), before);
}

// Symptom: a load within a load doubled the lists.
TEST_F(LoadReentryTest, ALoadWithinALoadHasEachListOnce) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  const std::string shape = Shape();
  standin::OnCall("VLGetSymbolInfos", [&] { manager.LoadSymbolList(); });
  manager.LoadSymbolList();
  standin::OnCall("VLGetSymbolInfos", {});
  EXPECT_EQ(Shape(), shape);
}

TEST_F(LoadReentryTest, AFileThatCannotBeReadLeavesNoListsAndTheDefaultIndex) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(7);
  WriteWorking("no document");
  manager.LoadSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(DefaultIndex(), 7);
}

// Symptom: a start had no lists while it built its symbol tables, and a save from there wrote none.
TEST_F(LoadReentryTest, ASaveWithinAStartWritesTheLists) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  const std::string shape = Shape();
  for (const char* service : {"VLGetBaseAttrs2", "VLGetSymbolInfos"}) {
    standin::OnCall(service, [&] { manager.SaveSymbolList(); });
    EXPECT_EQ(StartWithTables(), 1);
    standin::OnCall(service, {});
    EXPECT_EQ(Shape(), shape);
    EXPECT_NE(ReadWorking().find("'b'"), std::string::npos) << service;
  }
}

// Symptom: the line about the copy was written before the save, which then wrote the state from
// before the line.
TEST_F(LoadReentryTest, WhatIsSavedWhileACopyIsLoggedStays) {
  StartWith({"a/A/2330.TW"});
  WriteWorking("<?xml version='1.0' ?><Result><SymbolList DefaultIdx='0'><List ID='x' Name='X' "
               "Value='2317.TW'/></SymbolList></Result>");
  standin::OnCall("TQLog::write", [&] { manager.AddSymbolList("n", 0, "N", "2454.TW", 1, 1); });
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  standin::OnCall("TQLog::write", {});
  EXPECT_EQ(Shape(), "a/A/2330.TW|n/N/2454.TW");
  EXPECT_NE(ReadWorking().find("'n'"), std::string::npos);
}

} // namespace
