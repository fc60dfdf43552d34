// One list: copies, its record, its element.
#include <cstring>
#include <string>

#include "tests/interface/ListText.h"

namespace {

using namespace listtext;

class ListTextListTest : public StandInTest {
protected:
  static std::string Xml(CSymbolList& list) {
    CString text;
    list.ToXml(text);
    return text.GetString();
  }
  CSymbolList list;
};

TEST_F(ListTextListTest, ACopyHasStringRowsTokensAndFlagsWithoutAskingTheService) {
  list.SetID("ZUSYSLIST2");
  list.SetName("Mine");
  list.Update1("Head:,NOSUCH.TW,2330.TW");
  standin::ClearCalls();
  CSymbolList copy(list);
  EXPECT_STREQ(copy.GetIDs(), "Head:,NOSUCH.TW,2330.TW");
  EXPECT_EQ(RowsOf(copy), ": 2330.TW");
  EXPECT_EQ(TokensOf(copy), "Head:|NOSUCH.TW|2330.TW");
  EXPECT_EQ(copy.IsModified(), 1);
  EXPECT_STREQ(copy.GetID(), "ZUSYSLIST2");
  EXPECT_STREQ(copy.GetName(), "Mine");
  EXPECT_EQ(copy.GetFlag(), 1);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(ListTextListTest, ACopyOfAnUntouchedListIsNotModified) {
  EXPECT_EQ(CSymbolList(list).IsModified(), 0);
}

TEST_F(ListTextListTest, ACopysRowsAreItsOwn) {
  list.Update1("2330.TW,2317.TW");
  CSymbolList copy(list);
  EXPECT_EQ(list.RemoveEntry(0), 1);
  EXPECT_EQ(RowsOf(copy), "2330.TW 2317.TW");
  EXPECT_STREQ(copy.GetIDs(), "2330.TW,2317.TW");
}

TEST_F(ListTextListTest, TheInfoIsIdentifierAndName) {
  list.SetID("id");
  list.SetName("name");
  TQSymbolListInfo info;
  std::memset(&info, 0x5A, sizeof(info));
  list.GetListInfo(&info);
  EXPECT_STREQ(info.ID, "id");
  EXPECT_STREQ(info.Name, "name");
}

TEST_F(ListTextListTest, TheIdentifierIsComparedIgnoringCaseAndWhole) {
  list.SetID("Ab-1");
  EXPECT_TRUE(list.IsSameID("aB-1"));
  EXPECT_FALSE(list.IsSameID("Ab-"));
  EXPECT_FALSE(list.IsSameID("Ab-12"));
}

TEST_F(ListTextListTest, AllSixSystemIdsAndNoOtherAreWrittenWithTheFlag) {
  for (int i = 0; i <= 7; ++i) {
    const std::string id = "ZUSYSLIST" + std::to_string(i);
    list.SetID(id.c_str());
    const char* flag = i >= 1 && i <= 6 ? "1" : "0";
    EXPECT_EQ(Xml(list), Element(id, "", "", flag) + "\n");
  }
}

} // namespace
