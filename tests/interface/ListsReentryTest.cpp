// The terminal handles messages while a service works, and calls the manager from there: each
// operation on lists from within each service call of each other one.
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

struct Operation {
  const char* name;
  std::function<void(CTQSymbolListMgr&)> run;
};

void AddCopies(CTQSymbolListMgr& manager, int (CTQSymbolListMgr::*set)(CPtrArray*, int), int kind) {
  CPtrArray copies;
  manager.GetSymbolList(copies, kind);
  (manager.*set)(&copies, kind);
  for (int i = 0; i < copies.GetSize(); ++i)
    delete static_cast<CSymbolList*>(copies[i]);
}

// The manager's own list as the source, which an operation from within may delete.
void AddAgain(CTQSymbolListMgr& manager, int kind) {
  CSymbolList* list = nullptr;
  if (manager.GetSymbolList("a", &list, kind) != 0)
    manager.AddTQSymbolList(list, 1);
}

void ReplaceIds(CTQSymbolListMgr& manager, const char* from, const char* to) {
  CStringArray old;
  CStringArray now;
  old.Add(from);
  now.Add(to);
  manager.ReplaceID(&old, &now);
}

void ReplaceLists(CTQSymbolListMgr& manager) {
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  CSymbolList moved;
  moved.SetID("m");
  moved.SetName("M");
  moved.Update1("6488.TW,2330.TW");
  copies.Add(&moved);
  manager.SetSymbolList(&copies);
  copies.RemoveAt(copies.GetUpperBound());
  for (int i = 0; i < copies.GetSize(); ++i)
    delete static_cast<CSymbolList*>(copies[i]);
}

void SymbolsChanged(CTQSymbolListMgr& manager) {
  char records[2 * 19] = {};
  std::string("2330").copy(records, 19);
  std::string("2317").copy(records + 19, 19);
  manager.UpdateExchSymbolChange(2, records, 1, ExchSymbolsAdded);
}

void UpdateSystemLists(CTQSymbolListMgr& manager) {
  CMapStringToString symbols;
  CMapStringToString names;
  symbols.SetAt("a", "2454.TW,2330.TW");
  symbols.SetAt("ZUSYSLIST1", "2881.TW");
  names.SetAt("a", "Named");
  manager.UpdateSystemList(&symbols, &names);
}

void Ask(CTQSymbolListMgr& manager) {
  CString text;
  CStringArray tokens;
  SymbolInfo record;
  for (const int kind : {1, 8}) {
    manager.GetTQSymbolCount("a", kind);
    manager.GetTQSymbolInfo("a", 0, &record, kind);
    manager.GetSymoblIDList("a", text, kind);
    manager.GetSymbolListIDs(kind, "a", text, &tokens);
  }
}

const Operation kOperations[] = {
    {"Add", [](CTQSymbolListMgr& m) { m.AddSymbolList("n", 0, "N", "2330.TW,2317.TW", 0, 1); }},
    {"AddNew", [](CTQSymbolListMgr& m) { m.AddSymbolList("", 0, "N", "6488.TW", 1, 1); }},
    {"Overwrite", [](CTQSymbolListMgr& m) { m.AddSymbolList("a", 0, "A", "1101.TW", 1, 1); }},
    {"AddAgain", [](CTQSymbolListMgr& m) { AddAgain(m, 1); }},
    {"SetLists", ReplaceLists},
    {"Delete", [](CTQSymbolListMgr& m) { m.DeleteSymbolList("a"); }},
    {"Clear", [](CTQSymbolListMgr& m) { m.ClearSymbolList(); }},
    {"Load", [](CTQSymbolListMgr& m) { m.LoadSymbolList(); }},
    {"Save", [](CTQSymbolListMgr& m) { m.SaveSymbolList(); }},
    {"Restore", [](CTQSymbolListMgr& m) { m.RestorSymbolList(); }},
    {"Update", [](CTQSymbolListMgr& m) { m.UpdateTQSymbolList(); }},
    {"RemoveEntry", [](CTQSymbolListMgr& m) { m.DeleteSymbolList("a", 0); }},
    {"Insert", [](CTQSymbolListMgr& m) { m.InsertSymbolList("a", 0, "2881.TW", 0, 0); }},
    {"Swap", [](CTQSymbolListMgr& m) { m.SwapSymbolList("a", 0, 1); }},
    {"Replace", [](CTQSymbolListMgr& m) { m.ReplaceSymbolList("a", 0, "0050.TW"); }},
    {"ReplaceID", [](CTQSymbolListMgr& m) { ReplaceIds(m, "2330", "2454"); }},
    {"ReplaceBack", [](CTQSymbolListMgr& m) { ReplaceIds(m, "2454", "2330"); }},
    {"SystemLists", UpdateSystemLists},
    {"SymbolsChanged", SymbolsChanged},
    {"SetCloud",
     [](CTQSymbolListMgr& m) { AddCopies(m, &CTQSymbolListMgr::SetCloudSymbolList, 8); }},
    {"PutCloud", [](CTQSymbolListMgr& m) { m.SetCloudeList("a", "A", "2330.TW,2317.TW"); }},
    {"PutCloudAgain", [](CTQSymbolListMgr& m) { m.SetCloudeList("a", "A", "1101.TW"); }},
    {"ClearCloud", [](CTQSymbolListMgr& m) { m.ClearCloudSymbolList(); }},
    {"Ask", Ask},
};

class ListsReentryTest : public EditTest,
                         public testing::WithParamInterface<std::tuple<const char*, Operation>> {
protected:
  void Prepare() {
    standin::OnCall(Service(), {});
    WriteWorking(File("a", "2330.TW,gone.tw,6488.TW,Head:,2317.TW"));
    WriteBackup(File("b", "2454.TW"));
    manager.LoadSymbolList();
    manager.ClearCloudSymbolList();
    manager.AddCloudSymbolList("a", "A", "2330.TW,2317.TW", 0);
  }

  static std::string File(const char* id, const char* symbols) {
    return std::string("<?xml version='1.0' encoding='") +
           (IsTraditionChinese() ? "big5" : "gb2312") +
           "' ?><Result><SymbolList DefaultIdx='0'><List ID='" + id + "' Name='A' Value='" +
           symbols + "'/><List ID='z' Name='Z' Value='2881.TW'/></SymbolList></Result>";
  }

  // Rows belong to their string, in each list.
  void ExpectConsistent() {
    for (const int kind : {1, 8}) {
      CPtrArray copies;
      manager.GetSymbolList(copies, kind);
      for (int i = 0; i < copies.GetSize(); ++i) {
        auto* list = static_cast<CSymbolList*>(copies[i]);
        CSymbolList fresh;
        fresh.Update1(list->GetIDs());
        CString rows;
        CString expected;
        list->JoinRows(rows);
        fresh.JoinRows(expected);
        EXPECT_STREQ(rows, expected);
      }
      DeleteCopies(copies);
    }
  }

  static const char* Service() { return std::get<0>(GetParam()); }
};

// Symptom: lists that had been deleted meanwhile were written to, records leaked, loads doubled the
// lists.
TEST_P(ListsReentryTest, NothingFreedIsUsedAndRowsBelongToTheirStrings) {
  StartWith({"a/A/2330.TW"});
  for (const Operation& outer : kOperations) {
    SCOPED_TRACE(outer.name);
    Prepare();
    standin::OnCall(Service(), [this] { std::get<1>(GetParam()).run(manager); });
    outer.run(manager);
    standin::OnCall(Service(), {});
    ExpectConsistent();
  }
}

std::string NameOf(const testing::TestParamInfo<std::tuple<const char*, Operation>>& info) {
  return std::string(std::get<0>(info.param)) + "_" + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(EachService, ListsReentryTest,
                         testing::Combine(testing::Values("VLGetSymbolInfos", "TQSCall"),
                                          testing::ValuesIn(kOperations)),
                         NameOf);

class LoadReentryTest : public EditTest {};

// A save from within a load wrote those of the lists that had been read so far.
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

// So did one from within the commit of a dialog's working copy.
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

// A load within a load doubled the lists.
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

} // namespace
