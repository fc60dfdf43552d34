// CListID: identities of symbol sources as values and as groups.
#include "symbolid/ListID.h"

#include <memory>
#include <string>
#include <utility>

#include "terminal/StandIn.h"
#include "tests/interface/ManagerTest.h"

namespace {

CListID Make(int type, const char* id) {
  CListID list;
  list.SetData(static_cast<ListIDType>(type), id, 0);
  return list;
}

// "<type>|<id>|<name>|<content>"
std::string Parts(const CListID& list) {
  return std::to_string(list.GetType()) + "|" + list.GetID().GetString() + "|" +
         list.GetName().GetString() + "|" + list.GetSymbolList().GetString();
}

std::string Origin(const CListID& list) {
  return std::to_string(list.GetOrgType()) + "|" + list.GetOrgID().GetString();
}

CListID Full() {
  CListID list = Make(1, "A1");
  EXPECT_EQ(list.SetNameAndList("N", "S,T"), 1);
  list.SetOrgID("O");
  list.SetOrgType(ListIDGroup);
  return list;
}

TEST(ListID, StartsAsTypeZeroWithoutTexts) {
  EXPECT_EQ(Parts(CListID()), "0|||");
  EXPECT_EQ(Origin(CListID()), "0|");
}

TEST(ListID, SetDataTakesTypeAndIdUncheckedAndLeavesTheRest) {
  CListID list = Full();
  list.SetData(static_cast<ListIDType>(99), "x,y", 7);
  EXPECT_EQ(Parts(list), "99|x,y|N|S,T");
  EXPECT_EQ(Origin(list), "2|O");
}

TEST(ListID, CopiesHaveEveryField) {
  const CListID list = Full();
  CListID copy(list);
  EXPECT_EQ(Parts(copy), "1|A1|N|S,T");
  EXPECT_EQ(Origin(copy), "2|O");
  copy = Make(3, "G");
  EXPECT_EQ(Parts(copy), "3|G||");
  EXPECT_EQ(Origin(copy), "0|");
  copy = list;
  EXPECT_EQ(Parts(copy), "1|A1|N|S,T");
  EXPECT_EQ(Parts(list), "1|A1|N|S,T");
  CListID& same = copy;
  copy = same;
  EXPECT_EQ(Parts(copy), "1|A1|N|S,T");
}

TEST(ListID, SwapExchangesEveryField) {
  CListID one = Full();
  CListID two = Make(3, "G");
  two.SetOrgID("P");
  two.SetOrgType(ListIDCloudGroup);
  one.swap(two);
  EXPECT_EQ(Parts(one) + " " + Origin(one), "3|G|| 8|P");
  EXPECT_EQ(Parts(two) + " " + Origin(two), "1|A1|N|S,T 2|O");
  one.swap(one);
  EXPECT_EQ(Parts(one), "3|G||");
}

TEST(ListID, EqualityIsThatOfTypeAndIdAlone) {
  CListID list = Make(1, "A1");
  EXPECT_TRUE(list == Full());
  EXPECT_FALSE(list != Full());
  EXPECT_FALSE(list == Make(1, "a1"));
  EXPECT_TRUE(list != Make(2, "A1"));
}

TEST(ListID, TheBaseReachesTheSameObject) {
  CListID list;
  CListIDUtil& base = list;
  EXPECT_EQ(base.FromString("2,01,02"), 1);
  EXPECT_EQ(base.GetType(), ListIDGroup);
  EXPECT_STREQ(base.GetID(), "01,02");
  EXPECT_STREQ(base.ToString(), "2,01,02");
  EXPECT_EQ(base.FromStringForList("1,A;N,S"), 1);
  EXPECT_STREQ(base.ToStringForList(), "1,A;N,S");
  base.SetOrgID("O");
  base.SetOrgType(ListIDHoldings);
  EXPECT_EQ(std::string(base.GetOrgID()) + std::to_string(base.GetOrgType()), "O6");
}

// A terminal's own class, whose texts have a mark in front.
struct MarkedListID : CListID {
  CString ToString() const override { return "*" + CListID::ToString(); }
};

TEST(ListID, ATerminalMayDeriveFromIt) {
  const std::unique_ptr<CListID> list = std::make_unique<MarkedListID>();
  list->SetData(ListIDUserList, "A1", 0);
  list->SetNameAndList("N", "S");
  EXPECT_STREQ(list->ToStringForList(), "*1,A1;N,S");
  EXPECT_STREQ(static_cast<CListIDUtil&>(*list).ToString(), "*1,A1");
}

TEST(ListID, AGroupsIdIsSplitAtItsFirstComma) {
  const struct {
    const char* id;
    const char* group;
    const char* subGroup;
  } cases[] = {{"2,01", "2", "01"},
               {"2", "2", ""},
               {"", "", ""},
               {",01", "", "01"},
               {"2,", "2", ""},
               {"2,01,03", "2", "01,03"},
               {"\xB3\x5C,\xA5\x5C", "\xB3\x5C", "\xA5\x5C"}};
  for (const auto& [id, group, subGroup] : cases) {
    EXPECT_STREQ(Make(2, id).GetGroupID(), group) << id;
    EXPECT_STREQ(Make(2, id).GetSubGroupID(), subGroup) << id;
  }
}

TEST(ListID, GroupsAreEqualByTypeAndGroupPart) {
  for (const int type : {2, 3, 7, 8}) {
    EXPECT_TRUE(Make(type, "2,01").IsEqualGroup(Make(type, "2,02"))) << type;
    EXPECT_TRUE(Make(type, "2").IsEqualGroup(Make(type, "2,02"))) << type;
    EXPECT_FALSE(Make(type, "a").IsEqualGroup(Make(type, "A"))) << type;
    EXPECT_FALSE(Make(type, "2").IsEqualGroup(Make(type == 2 ? 3 : 2, "2"))) << type;
  }
}

TEST(ListID, OtherTypesAreNoGroupsAndNeverEqualOnes) {
  for (const int type : {0, 1, 4, 5, 6, 9, -1})
    EXPECT_FALSE(Make(type, "2").IsEqualGroup(Make(type, "2"))) << type;
}

TEST(ListID, AServicesGroupIsTakenOverByItsDigit) {
  const struct {
    const char* text;
    int result;
    const char* parts;
  } cases[] = {
      {"1,AB", 1, "2|AB||"},    {"1,AB,01", 1, "2|AB,01||"}, {"3,AB", 1, "3|AB||"},
      {"2,AB", 0, "6|old||"},   {"0,AB", 0, "6|old||"},      {"x,AB", 0, "6|old||"},
      {"201,AB", 0, "6|old||"}, {"101,AB", 0, "6|old||"},    {"1", 0, "6|old||"},
      {"", 0, "6|old||"},       {",AB", 0, "6|old||"},       {",1,AB", 0, "6|old||"},
      {"1,", 0, "2|||"},        {nullptr, 0, "6|old||"},
  };
  for (const auto& [text, result, parts] : cases) {
    CListID list = Make(6, "old");
    EXPECT_EQ(list.ConvertFromGroupID(text), result) << (text ? text : "(null)");
    EXPECT_EQ(Parts(list), parts) << (text ? text : "(null)");
  }
}

TEST(ListID, OnlyUserListsTakeNameAndContent) {
  for (int type = -1; type <= 9; ++type) {
    CListID list = Make(type, "A");
    EXPECT_EQ(list.SetNameAndList("N", "S"), type == 1 ? 1 : 0) << type;
    EXPECT_STREQ(list.GetName(), type == 1 ? "N" : "") << type;
    EXPECT_STREQ(list.GetSymbolList(), type == 1 ? "S" : "") << type;
  }
}

class ListIDManagerTest : public ManagerTest {
protected:
  ListIDManagerTest() {
    WriteWorking("<Result><SymbolList DefaultIdx='0'>"
                 "<List ID='A1' Name='Mine' Value='2330.TW,2317.TW' Flag='0'/>"
                 "</SymbolList></Result>");
    EXPECT_EQ(StartWithoutTables(), 1);
  }
};

TEST_F(ListIDManagerTest, NameAndContentComeFromTheManager) {
  CListID list = Make(1, "A1");
  EXPECT_EQ(list.SetNameAndList(&manager), 1);
  EXPECT_EQ(Parts(list), "1|A1|Mine|2330.TW,2317.TW");
  EXPECT_STREQ(list.ToStringForList(), "1,A1;Mine,2330.TW,2317.TW");
}

TEST_F(ListIDManagerTest, TheManagersNameGoesBeforeTheGivenOne) {
  for (const char* name : {"", "Other", "Mine"}) {
    CListID list = Make(1, "A1");
    EXPECT_EQ(list.SetNameAndList(name, &manager), 1);
    EXPECT_EQ(Parts(list), "1|A1|Mine|2330.TW,2317.TW");
  }
}

TEST_F(ListIDManagerTest, AListThatTheManagerDoesNotKnowKeepsTheGivenName) {
  CListID list = Make(1, "B2");
  EXPECT_EQ(list.SetNameAndList("Given", &manager), 1);
  EXPECT_EQ(Parts(list), "1|B2|Given|");
}

TEST_F(ListIDManagerTest, WithoutAManagerNothingHappens) {
  CListID list = Full();
  EXPECT_EQ(list.SetNameAndList("Other", nullptr), 0);
  EXPECT_EQ(list.SetNameAndList(nullptr), 0);
  EXPECT_EQ(Parts(list), "1|A1|N|S,T");
}

TEST_F(ListIDManagerTest, OtherTypesTakeNothingFromTheManager) {
  CListID list = Make(2, "A1");
  EXPECT_EQ(list.SetNameAndList("Other", &manager), 0);
  EXPECT_EQ(Parts(list), "2|A1||");
}

} // namespace
