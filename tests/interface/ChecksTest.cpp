// Checks of names, identifiers and working copies.
#include "tests/interface/EditTest.h"

namespace {

class ChecksTest : public EditTest {};

TEST_F(ChecksTest, NamesAreComparedIgnoringLetterCaseAndOneMayBeSkipped) {
  StartWith({"a/One/", "b/Two/", "c/one/"});
  EXPECT_EQ(manager.CheckNameExist("ONE", 0, 0, 1), 1);
  EXPECT_EQ(manager.CheckNameExist("ONE", 1, 0, 1), 1);
  EXPECT_EQ(manager.CheckNameExist("two", 1, 1, 1), 0);
  EXPECT_EQ(manager.CheckNameExist("two", 1, 0, 1), 1);
  EXPECT_EQ(manager.CheckNameExist("two", 0, 1, 1), 1);
  EXPECT_EQ(manager.CheckNameExist("three", 0, -1, 1), 0);
}

TEST_F(ChecksTest, ATrailByteIsNoLetter) {
  StartWith({"a/\xA8\x61/"});
  EXPECT_EQ(manager.CheckNameExist("\xA8\x61", 0, -1, 1), 1);
  EXPECT_EQ(manager.CheckNameExist("\xA8\x41", 0, -1, 1), 0);
}

TEST_F(ChecksTest, IdAndNameAreToldApart) {
  StartWith({"a/One/", "A/Two/"});
  EXPECT_EQ(manager.CheckIDandName("A", "ONE", 1), 3);
  EXPECT_EQ(manager.CheckIDandName("a", "Two", 1), 1);
  EXPECT_EQ(manager.CheckIDandName("b", "One", 1), 0);
}

TEST_F(ChecksTest, ListExistsByIdAndByExactName) {
  StartWith({"a/One/", "A/Two/"});
  EXPECT_EQ(manager.CheckSymbolListExist("A", 1), 1);
  EXPECT_EQ(manager.CheckSymbolListExist("b", 1), 0);
  EXPECT_EQ(manager.CheckListAndNameExist("A", "One", 1), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("a", "Two", 1), 1);
  EXPECT_EQ(manager.CheckListAndNameExist("a", "one", 1), 0);
}

TEST_F(ChecksTest, OtherKindsHaveNothingToCheck) {
  StartWith({"a/One/"});
  for (int kind : {0, 2, 6, 8, 201}) {
    EXPECT_EQ(manager.CheckNameExist("One", 0, -1, kind), 0);
    EXPECT_EQ(manager.CheckIDandName("a", "One", kind), 0);
    EXPECT_EQ(manager.CheckSymbolListExist("a", kind), 0);
    EXPECT_EQ(manager.CheckListAndNameExist("a", "One", kind), 0);
  }
}

TEST_F(ChecksTest, AnUntouchedWorkingCopyIsUnmodified) {
  StartWith({"a/One/2330.TW", "b/Two/Head:,GONE.TW"});
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  EXPECT_TRUE(manager.IsModifyList(&copies, 1));
  EXPECT_TRUE(manager.IsModifyList(nullptr, 0));
  EXPECT_TRUE(manager.IsModifyCountList(&copies));
  EXPECT_TRUE(manager.IsModifyCountList(nullptr));
  CPtrArray none;
  EXPECT_FALSE(manager.IsModifyCountList(&none));
  DeleteCopies(copies);
}

TEST_F(ChecksTest, AnyDifferenceOfAWorkingCopyIsSeen) {
  StartWith({"a/One/2330.TW", "b/Two/2317.TW"});
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  auto* first = static_cast<CSymbolList*>(copies[0]);
  first->SetName("one");
  EXPECT_TRUE(manager.IsModifyList(&copies, 0));
  first->SetName("One");
  EXPECT_FALSE(manager.IsModifyList(&copies, 0));
  first->Update1("2330.TW,");
  EXPECT_TRUE(manager.IsModifyList(&copies, 0));
  first->Update1("2330.TW");
  delete static_cast<CSymbolList*>(copies[1]);
  copies.RemoveAt(1);
  EXPECT_TRUE(manager.IsModifyList(&copies, 0));
  DeleteCopies(copies);
}

TEST_F(ChecksTest, AnIdThatCannotBeAddedSaysWhy) {
  StartWith({"a/One/"});
  EXPECT_EQ(manager.CheckValidSymbolList("b", 1), 0);
  EXPECT_EQ(manager.CheckValidSymbolList("", 1), 0);
  EXPECT_EQ(manager.CheckValidSymbolList("A", 1), 1);
  EXPECT_EQ(manager.CheckValidSymbolList("a", 201), 0);
  EXPECT_EQ(manager.CheckValidSymbolList(CString('x', 36), 1), 0);
  EXPECT_EQ(manager.CheckValidSymbolList(CString('x', 37), 1), 2);
  for (const char* id : {"it's", "a&b", "a<b"})
    EXPECT_EQ(manager.CheckValidSymbolList(id, 1), 4) << id;
  EXPECT_EQ(manager.CheckValidSymbolList(CString('\'', 40), 1), 6);
}

TEST_F(ChecksTest, ParameterTextIsTakenApartFieldByField) {
  CString text = "a,b,,c";
  CString before;
  const char* fields[] = {"a", "b", "", "c"};
  for (const char* field : fields) {
    CTQSymbolListMgr::CutStringAndGetParamBefore(text, ',', before);
    EXPECT_STREQ(before, field);
  }
  EXPECT_TRUE(text.IsEmpty());
  before = "left alone";
  CTQSymbolListMgr::CutStringAndGetParamBefore(text, ',', before);
  EXPECT_STREQ(before, "left alone");
  text = "\xA4\x7C|x"; // the second byte of the character equals the separator
  CTQSymbolListMgr::CutStringAndGetParamBefore(text, '|', before);
  EXPECT_STREQ(before, "\xA4\x7C");
  EXPECT_STREQ(text, "x");
}

} // namespace
