#include "symbollist/SymbolList.h"

#include <string>

#include "symbollist/ListIds.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"

namespace {

class SymbolListTest : public StandInTest {};

CString Xml(CSymbolList& list) {
  CString text;
  list.ToXml(text);
  return text;
}

TEST_F(SymbolListTest, ElementTextHasTheFilesExactForm) {
  CSymbolList list;
  list.SetID("ZUSYSLIST3");
  list.SetName("My chips");
  list.Update1("Head:,2330.TW,NOSUCH.TW");
  EXPECT_STREQ(Xml(list), "<List ID='ZUSYSLIST3' Name='My chips' "
                          "Value='Head:,2330.TW,NOSUCH.TW' Flag='1'/>\n");
}

TEST_F(SymbolListTest, NothingIsEscaped) {
  CSymbolList list;
  list.SetID("a&b");
  list.SetName("it's <odd>");
  list.Update1("A&B.TW");
  EXPECT_STREQ(Xml(list), "<List ID='a&b' Name='it's <odd>' Value='A&B.TW' Flag='0'/>\n");
}

TEST_F(SymbolListTest, PercentSignsInNamesAreText) {
  CSymbolList list;
  list.SetName("%s%n%d 100%");
  EXPECT_STREQ(Xml(list), "<List ID='' Name='%s%n%d 100%' Value='' Flag='0'/>\n");
}

TEST_F(SymbolListTest, LowerCaseSystemIdIsASystemListButIsWrittenWithFlagZero) {
  CSymbolList list;
  list.SetID("zusyslist1");
  EXPECT_EQ(list.GetFlag(), 1);
  EXPECT_STREQ(Xml(list), "<List ID='zusyslist1' Name='' Value='' Flag='0'/>\n");
}

TEST_F(SymbolListTest, OnlyTheSixSystemIdsAreSystemLists) {
  const struct {
    const char* id;
    int flag;
  } rows[] = {{"ZUSYSLIST1", 1},
              {"ZUSYSLIST6", 1},
              {"ZUSYSLIST0", 0},
              {"ZUSYSLIST7", 0},
              {"ZUSYSLIST10", 0},
              {"xZUSYSLIST1", 0},
              {"", 0}};
  for (const auto& row : rows) {
    CSymbolList list;
    list.SetID(row.id);
    EXPECT_EQ(list.GetFlag(), row.flag) << row.id;
    EXPECT_EQ(tq::IsSystemListId(row.id), row.flag != 0) << row.id;
  }
}

TEST_F(SymbolListTest, IdsAreComparedIgnoringLetterCase) {
  CSymbolList list;
  list.SetID("Ab-12");
  EXPECT_TRUE(list.IsSameID("aB-12"));
  EXPECT_FALSE(list.IsSameID("Ab-1"));
  EXPECT_FALSE(list.IsSameID(nullptr));
}

TEST_F(SymbolListTest, IdentifierKeepsThirtySixBytes) {
  CSymbolList list;
  list.SetID(std::string(36, 'x').c_str());
  EXPECT_EQ(list.GetID().GetLength(), 36);
  list.SetID(std::string(37, 'y').c_str());
  EXPECT_STREQ(list.GetID(), std::string(36, 'y').c_str());
  list.SetID((std::string(35, 'z') + "\xB3\x5C").c_str());
  EXPECT_STREQ(list.GetID(), std::string(35, 'z').c_str());
}

TEST_F(SymbolListTest, NameOf64BytesFitsAndOf65IsCutAtAWholeCharacter) {
  std::string name;
  for (int i = 0; i < 32; ++i)
    name += "\xB3\x5C";
  CSymbolList list;
  list.SetName(name.c_str());
  EXPECT_STREQ(list.GetName(), name.c_str());
  list.SetName(("a" + name).c_str());
  EXPECT_STREQ(list.GetName(), ("a" + name).substr(0, 63).c_str());
  list.SetName((std::string(64, 'a') + "b").c_str());
  EXPECT_STREQ(list.GetName(), std::string(64, 'a').c_str());
}

TEST_F(SymbolListTest, ListInfoIsIdentifierAndName) {
  CSymbolList list;
  list.SetID("id-1");
  list.SetName("name");
  TQSymbolListInfo info;
  list.GetListInfo(&info);
  list.GetListInfo(nullptr);
  EXPECT_STREQ(info.ID, "id-1");
  EXPECT_STREQ(info.Name, "name");
}

TEST_F(SymbolListTest, CopyTakesEverythingAndWorksTheFlagOut) {
  CSymbolList list;
  list.SetID("zusyslist2");
  list.SetName("n");
  list.Update1("2330.TW");
  CSymbolList copy(list);
  EXPECT_STREQ(copy.GetID(), "zusyslist2");
  EXPECT_STREQ(copy.GetName(), "n");
  EXPECT_EQ(copy.GetFlag(), 1);
  EXPECT_EQ(copy.GetCount(), 1);
}

TEST_F(SymbolListTest, AppendedElementFitsTheRoomThatWasAnnounced) {
  CSymbolList list;
  list.SetID("ZUSYSLIST1");
  list.SetName("name");
  list.Update1("2330.TW,2317.TW");
  std::string document = "before";
  list.AppendXml(document);
  EXPECT_LE(document.size() - 6, list.XmlLength());
  EXPECT_EQ(document.substr(0, 12), "before<List ");
}

TEST_F(SymbolListTest, IdentifiersThatWouldComeOutAsOthersAreToldApart) {
  EXPECT_TRUE(tq::IsKeptWhole(""));
  EXPECT_TRUE(tq::IsKeptWhole(CString('a', 36)));
  EXPECT_FALSE(tq::IsKeptWhole(CString('a', 37)));
  EXPECT_FALSE(tq::IsKeptWhole("a\x01"));
  EXPECT_FALSE(tq::IsKeptWhole("half\xA4"));
}

} // namespace
