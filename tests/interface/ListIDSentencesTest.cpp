// The text forms of CListID at their limits: what is cut, replaced by a default, or emptied.
#include "symbolid/ListID.h"
#include "tests/interface/EditTest.h"

namespace {

class ListIDSentencesTest : public EditTest {
protected:
  CListID id;

  static CListID Made(ListIDType type, const char* text) {
    CListID made;
    made.SetData(type, text, 0);
    return made;
  }
  int Read(const char* text) {
    id = CListID();
    return id.FromString(text) != 0 ? 1 : 0;
  }
  int ReadForList(const char* text) {
    id = CListID();
    return id.FromStringForList(text) != 0 ? 1 : 0;
  }
  // "type|id|name|content".
  std::string All() const {
    return std::to_string(id.GetType()) + "|" + id.GetID().GetString() + "|" +
           id.GetName().GetString() + "|" + id.GetSymbolList().GetString();
  }
  // The same after reading it back.
  std::string Short(const char* text) {
    Read(text);
    return All();
  }
  std::string Long(const char* text) {
    ReadForList(text);
    return All();
  }
};

TEST_F(ListIDSentencesTest, ANewOneHasTypeZeroAndEmptyTexts) {
  EXPECT_EQ(All(), "0|||");
  EXPECT_STREQ(id.GetOrgID(), "");
  EXPECT_EQ(id.GetOrgType(), ListIDNone);
}

TEST_F(ListIDSentencesTest, TypeZeroIsWrittenAsOne) {
  EXPECT_STREQ(Made(ListIDNone, "X").ToString(), "1,X");
  EXPECT_STREQ(Made(ListIDNone, "X").ToStringForList(), "1,X");
  EXPECT_STREQ(CListID().ToString(), "1,");
}

TEST_F(ListIDSentencesTest, EveryOtherTypeIsWrittenAsItself) {
  for (int type : {1, 2, 3, 5, 6, 7, 8}) {
    EXPECT_EQ(std::string(Made(static_cast<ListIDType>(type), "a,B").ToString()),
              std::to_string(type) + ",a,B");
  }
}

TEST_F(ListIDSentencesTest, AllCommoditiesAreWrittenWithALabelInPlaceOfTheId) {
  const std::string text(Made(ListIDAllSymbols, "secret").ToString());
  EXPECT_EQ(text.substr(0, 2), "4,");
  EXPECT_GT(text.size(), 2U);
  EXPECT_EQ(text.find("secret"), std::string::npos);
  EXPECT_EQ(text, std::string(Made(ListIDAllSymbols, "").ToString()));
  EXPECT_EQ(text, std::string(Made(ListIDAllSymbols, "").ToStringForList()));
}

TEST_F(ListIDSentencesTest, TypesNeedTheirIds) {
  for (const char* text : {"1,", "2,", "3,", "7,", "8,"})
    EXPECT_EQ(Read(text), 0) << text;
  for (const char* text : {"1,x", "2,x", "3,x", "7,x", "8,x", "0,", "4,", "5,", "6,"})
    EXPECT_EQ(Read(text), 1) << text;
}

TEST_F(ListIDSentencesTest, ATypeBeyondEightIsInvalidAndStaysRead) {
  EXPECT_EQ(Read("9,X"), 0);
  EXPECT_EQ(All(), "9|X||");
  EXPECT_EQ(ReadForList("9,X"), 0);
}

TEST_F(ListIDSentencesTest, ADigitAloneOfAGroupTypeHasNoId) {
  EXPECT_EQ(Read("3"), 0);
  EXPECT_EQ(All(), "3|||");
}

TEST_F(ListIDSentencesTest, AnIdKeepsItsFurtherCommasAndSemicolonsInTheShortForm) {
  EXPECT_EQ(Short("2,01,02"), "2|01,02||");
  EXPECT_EQ(Short("1,a;N,S"), "1|a;N,S||");
  EXPECT_EQ(Short("3,ABC"), "3|ABC||");
}

TEST_F(ListIDSentencesTest, ALetterInTheFirstPlaceReadsAsTypeZero) {
  EXPECT_EQ(Read("x,ABC"), 1);
  EXPECT_EQ(All(), "0|ABC||");
}

TEST_F(ListIDSentencesTest, OtherFormsFallBackToAUserListWithoutId) {
  for (const char* text : {"", ",", ",x", "12,X", "ABC", "1;X", "201,X"}) {
    EXPECT_EQ(Read(text), 0) << text;
    EXPECT_EQ(All(), "1|||") << text;
  }
}

TEST_F(ListIDSentencesTest, WhatReadsAsSixNeedsNoComma) {
  EXPECT_EQ(Read("6"), 1);
  EXPECT_EQ(All(), "6|||");
  EXPECT_EQ(Short("6,ABC"), "6|ABC||");
  EXPECT_EQ(Short("6x"), "6|||");
  EXPECT_EQ(Short("6xABC"), "6|ABC||");
  EXPECT_EQ(Short("6;,ABC"), "6|,ABC||");
}

TEST_F(ListIDSentencesTest, TheTypeOfWhatReadsAsSixIsItsFirstCharacter) {
  EXPECT_EQ(Read("06,X"), 1);
  EXPECT_EQ(All(), "0|,X||");
}

TEST_F(ListIDSentencesTest, SixtyIsNotSix) {
  EXPECT_EQ(Read("60"), 0);
  EXPECT_EQ(All(), "1|||");
}

TEST_F(ListIDSentencesTest, TheLongFormCarriesNameAndContentOfAUserList) {
  id.SetData(ListIDUserList, "id", 0);
  EXPECT_EQ(id.SetNameAndList("N", "S"), 1);
  EXPECT_STREQ(id.ToStringForList(), "1,id;N,S");
  EXPECT_STREQ(id.ToString(), "1,id");
  EXPECT_EQ(ReadForList("1,id;N,S"), 1);
  EXPECT_EQ(All(), "1|id|N|S");
}

TEST_F(ListIDSentencesTest, TheLongFormNeedsBothNameAndContent) {
  id.SetData(ListIDUserList, "id", 0);
  EXPECT_EQ(id.SetNameAndList("N", ""), 1);
  EXPECT_STREQ(id.ToStringForList(), "1,id");
  EXPECT_EQ(id.SetNameAndList("", "S"), 1);
  EXPECT_STREQ(id.ToStringForList(), "1,id");
}

TEST_F(ListIDSentencesTest, OnlyAUserListTakesNameAndContent) {
  for (int type : {0, 2, 3, 4, 5, 6, 7, 8}) {
    id.SetData(static_cast<ListIDType>(type), "x", 0);
    EXPECT_EQ(id.SetNameAndList("N", "S"), 0) << type;
    EXPECT_STREQ(id.GetName(), "") << type;
    EXPECT_STREQ(id.GetSymbolList(), "") << type;
  }
}

TEST_F(ListIDSentencesTest, OnlyAUserListIsWrittenWithNameAndContent) {
  id.SetData(ListIDUserList, "id", 0);
  id.SetNameAndList("N", "S");
  id.SetData(ListIDGroup, "g", 0);
  EXPECT_STREQ(id.ToStringForList(), "2,g");
  id.SetData(ListIDNone, "g", 0);
  EXPECT_STREQ(id.ToStringForList(), "1,g");
}

TEST_F(ListIDSentencesTest, TheContentKeepsItsCommasAndSemicolons) {
  EXPECT_EQ(Long("1,id;N,2330.TW,2317.TW"), "1|id|N|2330.TW,2317.TW");
  EXPECT_EQ(Long("1,id;N,S;T"), "1|id|N|S;T");
  EXPECT_EQ(Long("1,id;N;M,S"), "1|id|N;M|S");
}

TEST_F(ListIDSentencesTest, MissingPartsOfTheLongFormAreEmpty) {
  EXPECT_EQ(Long("1,id"), "1|id||");
  EXPECT_EQ(Long("1,id;"), "1|id||");
  EXPECT_EQ(Long("1,id;N"), "1|id|N|");
  EXPECT_EQ(Long("1,id;N,"), "1|id|N|");
  EXPECT_EQ(Long("1,id;,S"), "1|id||S");
  EXPECT_EQ(ReadForList("1,id;N"), 1);
}

TEST_F(ListIDSentencesTest, TheLongFormWithoutIdIsInvalidButRead) {
  EXPECT_EQ(ReadForList("1,;N,S"), 0);
  EXPECT_EQ(All(), "1||N|S");
  EXPECT_EQ(ReadForList("1,"), 0);
  EXPECT_EQ(All(), "1|||");
}

TEST_F(ListIDSentencesTest, TheLongFormCutsTheIdOfEveryTypeAtTheSemicolon) {
  EXPECT_EQ(ReadForList("3,AB;C,D"), 1);
  EXPECT_EQ(All(), "3|AB||");
  EXPECT_EQ(ReadForList("6,AB,1;C,D"), 1);
  EXPECT_EQ(All(), "6|AB,1||");
}

TEST_F(ListIDSentencesTest, TheLongFormKnowsNoSixWithoutComma) {
  EXPECT_EQ(ReadForList("6"), 0);
  EXPECT_EQ(All(), "1|||");
  EXPECT_EQ(ReadForList("6x,AB"), 0);
  EXPECT_STREQ(id.GetID(), "");
}

TEST_F(ListIDSentencesTest, OtherTypesDropAHalfOfNameAndContent) {
  ReadForList("1,id;N");
  EXPECT_EQ(id.FromString("4,x"), 1);
  EXPECT_EQ(All(), "4|x||");
  ReadForList("1,id;,S");
  EXPECT_EQ(id.FromString("6"), 1);
  EXPECT_EQ(All(), "6|||");
}

TEST_F(ListIDSentencesTest, OtherTypesKeepNameAndContentWhenBothAreThere) {
  ReadForList("1,id;N,S");
  EXPECT_EQ(id.FromString("5,x"), 1);
  EXPECT_EQ(All(), "5|x|N|S");
}

TEST_F(ListIDSentencesTest, GroupTypesKeepAHalfOfNameAndContent) {
  ReadForList("1,id;N");
  EXPECT_EQ(id.FromString("2,x"), 1);
  EXPECT_EQ(All(), "2|x|N|");
}

TEST_F(ListIDSentencesTest, AGroupIdOfTheServiceIsTakenOver) {
  EXPECT_NE(id.ConvertFromGroupID("1,AB"), 0);
  EXPECT_EQ(All(), "2|AB||");
  EXPECT_NE(id.ConvertFromGroupID("3,X,Y"), 0);
  EXPECT_EQ(All(), "3|X,Y||");
}

TEST_F(ListIDSentencesTest, AGroupIdKeepsNameContentAndOrigin) {
  ReadForList("1,id;N,S");
  id.SetOrgID("org");
  id.ConvertFromGroupID("1,G,01");
  EXPECT_EQ(All(), "2|G,01|N|S");
  EXPECT_STREQ(id.GetOrgID(), "org");
  EXPECT_STREQ(id.GetSubGroupID(), "01");
}

TEST_F(ListIDSentencesTest, OtherGroupIdsChangeNothing) {
  id.SetData(ListIDHoldings, "kept", 0);
  for (const char* text : {"2,X", "4,X", "0,X", "x,X", "201,X", "101,X", "1", "", ",1", "11,X"}) {
    id.ConvertFromGroupID(text);
    EXPECT_EQ(All(), "6|kept||") << text;
  }
  EXPECT_EQ(id.ConvertFromGroupID(nullptr), 0);
  EXPECT_EQ(All(), "6|kept||");
}

TEST_F(ListIDSentencesTest, TheGroupEndsAtTheFirstComma) {
  const CListID both = Made(ListIDGroup, "2,01,9");
  EXPECT_STREQ(both.GetGroupID(), "2");
  EXPECT_STREQ(both.GetSubGroupID(), "01,9");
  const CListID one = Made(ListIDGroup, "2");
  EXPECT_STREQ(one.GetGroupID(), "2");
  EXPECT_STREQ(one.GetSubGroupID(), "");
  const CListID sub = Made(ListIDGroup, ",01");
  EXPECT_STREQ(sub.GetGroupID(), "");
  EXPECT_STREQ(sub.GetSubGroupID(), "01");
}

TEST_F(ListIDSentencesTest, EqualGroupsHaveOneTypeAndOneGroupPart) {
  for (int type : {2, 3, 7, 8}) {
    const ListIDType kind = static_cast<ListIDType>(type);
    EXPECT_TRUE(Made(kind, "A,1").IsEqualGroup(Made(kind, "A,2")));
    EXPECT_TRUE(Made(kind, "A").IsEqualGroup(Made(kind, "A,2")));
    EXPECT_FALSE(Made(kind, "A").IsEqualGroup(Made(kind, "a")));
    EXPECT_FALSE(Made(kind, "A").IsEqualGroup(Made(ListIDHoldings, "A")));
  }
  EXPECT_FALSE(Made(ListIDGroup, "A").IsEqualGroup(Made(ListIDGroup3, "A")));
}

TEST_F(ListIDSentencesTest, EqualIsTypeAndIdAlone) {
  CListID first = Made(ListIDUserList, "A");
  CListID second = Made(ListIDUserList, "A");
  first.SetNameAndList("N", "S");
  first.SetOrgID("other");
  first.SetOrgType(ListIDGroup);
  EXPECT_TRUE(first == second);
  EXPECT_FALSE(first != second);
  second.SetData(ListIDUserList, "a", 0);
  EXPECT_FALSE(first == second);
  EXPECT_TRUE(first != second);
  EXPECT_TRUE(Made(ListIDGroup, "A") != Made(ListIDGroup3, "A"));
}

TEST_F(ListIDSentencesTest, CopiesAndSwapsHaveEveryField) {
  CListID first = Made(ListIDUserList, "A");
  first.SetNameAndList("N", "S");
  first.SetOrgID("org");
  first.SetOrgType(ListIDCloudGroup);
  CListID second = Made(ListIDGroup, "B");
  const CListID copy(first);
  first.swap(second);
  EXPECT_STREQ(first.ToString(), "2,B");
  EXPECT_STREQ(first.GetName(), "");
  EXPECT_STREQ(first.GetOrgID(), "");
  for (const CListID& whole : {copy, second}) {
    EXPECT_STREQ(whole.ToStringForList(), "1,A;N,S");
    EXPECT_STREQ(whole.GetOrgID(), "org");
    EXPECT_EQ(whole.GetOrgType(), ListIDCloudGroup);
  }
}

TEST_F(ListIDSentencesTest, TheManagerGivesNameAndContent) {
  StartWith({"l1/Mine/2330.TW,2317.TW"});
  id.SetData(ListIDUserList, "L1", 0);
  EXPECT_NE(id.SetNameAndList(&manager), 0);
  EXPECT_EQ(All(), "1|L1|Mine|2330.TW,2317.TW");
  EXPECT_NE(id.SetNameAndList("Older", &manager), 0);
  EXPECT_STREQ(id.GetName(), "Mine");
}

TEST_F(ListIDSentencesTest, WithoutAManagerNothingHappens) {
  id.SetData(ListIDUserList, "l1", 0);
  id.SetNameAndList("N", "S");
  EXPECT_EQ(id.SetNameAndList(static_cast<CTQSymbolListMgr*>(nullptr)), 0);
  EXPECT_EQ(id.SetNameAndList("M", static_cast<CTQSymbolListMgr*>(nullptr)), 0);
  EXPECT_EQ(All(), "1|l1|N|S");
}

} // namespace
