// The manager's operations leave no handle of the operating system open.
#include "tests/support/HeldObjects.h"

#include <gtest/gtest.h>

#include "tests/interface/EditTest.h"
#include "tests/interface/IndicatorTest.h"

namespace {

// The first start of the process opens the log, which stays open.
class HeldByLists : public EditTest {
protected:
  HeldByLists() {
    StartWithoutTables();
    before_ = HeldObjects();
  }
  void ExpectNothingHeld() { EXPECT_EQ(before_, HeldObjects()); }

private:
  long before_;
};

TEST_F(HeldByLists, StartsHoldNothing) {
  StartWith({"a/one/2330.TW", "b/two/2317.TW"});
  ExpectNothingHeld();
  standin::FailCall("VLGetExch", 1);
  StartWithTables();
  ExpectNothingHeld();
}

TEST_F(HeldByLists, LoadsAndSavesHoldNothing) {
  StartWith({"a/one/2330.TW"});
  manager.SaveSymbolList();
  manager.BackupSymbolList();
  manager.LoadSymbolList();
  manager.RestorSymbolList();
  manager.UpdateTQSymbolList();
  manager.AddSymbolList("", 0, "new", "2317.TW", 1, 0);
  ExpectNothingHeld();
}

TEST_F(HeldByLists, DamagedFilesAndTheirCopiesHoldNothing) {
  for (const char* bytes : {"", "<Result>", "<Result/>", "no document", "<!DOCTYPE a><a/>",
                            "<Result><SymbolList><List/></SymbolList></Result>"}) {
    WriteWorking(bytes);
    manager.LoadSymbolList();
    manager.SaveSymbolList();
    ExpectNothingHeld();
  }
}

TEST_F(HeldByLists, FilesThatCannotBeReadOrWrittenHoldNothing) {
  directory.MakeDirectory("SymbolList_Backup.xml");
  manager.BackupSymbolList();
  manager.RestorSymbolList();
  CString nowhere = (directory.Path() + "none").c_str();
  manager.ReLoadList(nowhere);
  manager.SaveSymbolList();
  ExpectNothingHeld();
}

TEST_F(HeldByLists, AnImportHoldsNothing) {
  const char* const files[] = {"<HaldeUserList><L><IDs>2330.TW</IDs></L></HaldeUserList>", "<a/>",
                               "no document", ""};
  for (const char* bytes : files) {
    directory.Write("OldOTVList.xml", bytes);
    manager.LoadOtherProductList();
    directory.Write("Any.xml", bytes);
    CString path = directory.Joined("Any.xml").c_str();
    manager.DoLoadOtherProductList(path, 0);
    ExpectNothingHeld();
  }
  EXPECT_EQ(manager.GetSymbolListCount(1), 2);
}

class HeldByDialogs : public IndicatorTest {};

TEST_F(HeldByDialogs, DialogsThatAreOpenedAndClosedHoldNothing) {
  SearchEconomic([](User& user) { user.Press(WindowKey::Escape); });
  const long before = HeldObjects();
  for (int again = 0; again < 3; ++again) {
    SearchEconomic([](User& user) { user.Press(WindowKey::Escape); });
    SearchCommodity([](User& user) { user.DoubleClick(kList, 0); });
    SearchFuture([this](User& user) {
      SearchEconomic([](User& inner) { inner.Press(WindowKey::Escape); });
      user.Press(WindowKey::Escape);
    });
    EXPECT_EQ(before, HeldObjects());
  }
}

TEST_F(HeldByDialogs, ADialogWithoutItsTableHoldsNothing) {
  const long before = HeldObjects();
  standin::FailCall("CStockKey::GetInfoArray", 1);
  SearchEconomic([](User& user) { user.Press(WindowKey::Escape); });
  EXPECT_EQ(before, HeldObjects());
}

} // namespace
