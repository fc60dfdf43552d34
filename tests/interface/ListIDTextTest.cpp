// CListID: its text forms, which terminals store.
#include <string>

#include "platform/services/tqCommon.h"
#include "symbolid/ListID.h"
#include "tests/support/StandInTest.h"

namespace {

class ListIDText : public StandInTest {
protected:
  static CListID Make(int type, const char* id, const char* name = "", const char* list = "") {
    CListID made;
    made.SetData(ListIDUserList, id, 0);
    made.SetNameAndList(name, list);
    made.SetData(static_cast<ListIDType>(type), id, 0);
    return made;
  }

  // "<result> <type>|<id>|<name>|<content>"
  static std::string Parts(int result, const CListID& list) {
    return std::to_string(result) + " " + std::to_string(list.GetType()) + "|" +
           list.GetID().GetString() + "|" + list.GetName().GetString() + "|" +
           list.GetSymbolList().GetString();
  }

  static std::string Read(const CString& text, CListID list = CListID()) {
    const int result = list.FromString(text);
    return Parts(result, list);
  }

  static std::string ReadForList(const CString& text, CListID list = CListID()) {
    const int result = list.FromStringForList(text);
    return Parts(result, list);
  }
};

struct Case {
  const char* text;
  const char* parts;
};

TEST_F(ListIDText, IsTypeCommaId) {
  EXPECT_STREQ(Make(1, "A1").ToString(), "1,A1");
  EXPECT_STREQ(Make(2, "2,01").ToString(), "2,2,01");
  EXPECT_STREQ(Make(6, "").ToString(), "6,");
  EXPECT_STREQ(Make(8, "%s").ToString(), "8,%s");
  EXPECT_STREQ(Make(12, "X").ToString(), "12,X");
}

TEST_F(ListIDText, TypeZeroIsWrittenAsOne) {
  EXPECT_STREQ(Make(0, "X").ToString(), "1,X");
  EXPECT_STREQ(CListID().ToString(), "1,");
  EXPECT_STREQ(Make(0, "X", "N", "S").ToStringForList(), "1,X"); // but it is no user list
}

TEST_F(ListIDText, AllSymbolsAreWrittenByTheirLabel) {
  const std::string label = standin::ToAnsi("全部商品"); // the same characters in both languages
  EXPECT_EQ(std::string(Make(4, "ignored").ToString()), "4," + label);
  EXPECT_EQ(std::string(Make(4, "", "N", "S").ToStringForList()), "4," + label);
  EXPECT_EQ(Read(("4," + label).c_str()), "1 4|" + label + "||");
}

TEST_F(ListIDText, UserListsCarryNameAndContentWhenTheyHaveBoth) {
  EXPECT_STREQ(Make(1, "id", "N", "S").ToStringForList(), "1,id;N,S");
  EXPECT_STREQ(Make(1, "id", "N", "S").ToString(), "1,id");
  EXPECT_STREQ(Make(1, "id", "N", "").ToStringForList(), "1,id");
  EXPECT_STREQ(Make(1, "id", "", "S").ToStringForList(), "1,id");
  EXPECT_STREQ(Make(2, "id", "N", "S").ToStringForList(), "2,id");
}

TEST_F(ListIDText, IsReadByTheFirstCharacterAndFromTheThird) {
  const Case cases[] = {
      {"1,A1", "1 1|A1||"}, {"2,2,01", "1 2|2,01||"},   {"3,ABC", "1 3|ABC||"}, {"3,", "0 3|||"},
      {"0,", "1 0|||"},     {"0,X", "1 0|X||"},         {"4,", "1 4|||"},       {"5,X", "1 5|X||"},
      {"7,X", "1 7|X||"},   {"8,", "0 8|||"},           {"9,X", "0 9|X||"},     {"x,X", "1 0|X||"},
      {"-,X", "1 0|X||"},   {"1,A;N,S", "1 1|A;N,S||"},
  };
  for (const auto& [text, parts] : cases)
    EXPECT_EQ(Read(text), parts) << text;
}

TEST_F(ListIDText, OtherTextsBecomeTypeOneWithoutIdAndAreNotValid) {
  for (const char* text : {"", "ABC", ",A", "12,A", "1", "1;A", "\xB3\x5C,A", " 1,A", "33", "3;A"})
    EXPECT_EQ(Read(text), "0 1|||") << text;
  // The digits of types that need no id, and digits of no type.
  for (const char* text : {"0", "4", "5", "9", "x", " ", "-"})
    EXPECT_EQ(Read(text), "0 1|||") << text;
}

// Symptom: "3", a group whose id was lost, was read as a user list.
TEST_F(ListIDText, ADigitAloneKeepsATypeThatNeedsAnIdAndIsNotValid) {
  const Case cases[] = {
      {"1", "0 1|||"}, {"2", "0 2|||"}, {"3", "0 3|||"}, {"7", "0 7|||"}, {"8", "0 8|||"}};
  for (const auto& [text, parts] : cases)
    EXPECT_EQ(Read(text), parts) << text;
}

TEST_F(ListIDText, ANumberSixNeedsNoComma) {
  const Case cases[] = {
      {"6", "1 6|||"},      {"6,", "1 6|||"},       {"6,X", "1 6|X||"},        {"6X", "1 6|||"},
      {"6XY", "1 6|Y||"},   {"6;X,Y", "1 6|X,Y||"}, {" 6,X", "1 0|,X||"},      {"+6", "1 0|||"},
      {"06,X", "1 0|,X||"}, {"60,X", "0 1|||"},     {"6\xB3\x5CX", "1 6|X||"},
  };
  for (const auto& [text, parts] : cases)
    EXPECT_EQ(Read(text), parts) << text;
}

TEST_F(ListIDText, ReadingLeavesNameAndContentOfListsAndGroups) {
  EXPECT_EQ(Read("1,B", Make(1, "A", "N", "S")), "1 1|B|N|S");
  EXPECT_EQ(Read("2,B", Make(1, "A", "N", "S")), "1 2|B|N|S");
  EXPECT_EQ(Read("bad", Make(1, "A", "N", "S")), "0 1||N|S");
}

TEST_F(ListIDText, OfOtherTypesHalfANameAndContentIsEmptied) {
  EXPECT_EQ(Read("6,B", Make(1, "A", "N", "S")), "1 6|B|N|S");
  EXPECT_EQ(Read("6,B", Make(1, "A", "N", "")), "1 6|B||");
  EXPECT_EQ(Read("4,B", Make(1, "A", "", "S")), "1 4|B||");
  EXPECT_EQ(Read("2,B", Make(1, "A", "", "S")), "1 2|B||S");
}

TEST_F(ListIDText, ReadingLeavesTheOriginalIdentity) {
  CListID list;
  list.SetOrgID("O");
  list.SetOrgType(ListIDGroup);
  list.FromString("1,A");
  list.FromStringForList("1,B;N,S");
  EXPECT_STREQ(list.GetOrgID(), "O");
  EXPECT_EQ(list.GetOrgType(), ListIDGroup);
}

TEST_F(ListIDText, TheLongFormIsReadBack) {
  const Case cases[] = {
      {"1,id;N,S", "1 1|id|N|S"},
      {"1,id;N,S,T", "1 1|id|N|S,T"},
      {"1,id;N", "1 1|id|N|"},
      {"1,id;", "1 1|id||"},
      {"1,id;,S", "1 1|id||S"},
      {"1,id;N,", "1 1|id|N|"},
      {"1,id", "1 1|id||"},
      {"1,a,b;N,S", "1 1|a,b|N|S"},
      {"1,id;N;M,S;T", "1 1|id|N;M|S;T"},
      {"1,;N,S", "0 1||N|S"},
      {"1,", "0 1|||"},
      {"2,id;N,S", "1 2|id||"},
      {"2,id", "1 2|id||"},
      {"6,", "1 6|||"},
      {"6,id;N,S", "1 6|id||"},
      {";,id;N,S", "1 0|id||"},
      {"9,id", "0 9|id||"},
  };
  for (const auto& [text, parts] : cases)
    EXPECT_EQ(ReadForList(text), parts) << text;
}

TEST_F(ListIDText, TheLongFormOfTypeOneReplacesNameAndContent) {
  EXPECT_EQ(ReadForList("1,B", Make(1, "A", "N", "S")), "1 1|B||");
  EXPECT_EQ(ReadForList("1,B;M", Make(1, "A", "N", "S")), "1 1|B|M|");
  EXPECT_EQ(ReadForList("2,B;M,T", Make(1, "A", "N", "S")), "1 2|B|N|S");
}

TEST_F(ListIDText, OtherTextsGiveTheLongFormNoIdButANameAndContent) {
  EXPECT_EQ(ReadForList("", Make(1, "A", "N", "S")), "0 1|||");
  EXPECT_EQ(ReadForList("6", Make(1, "A", "N", "S")), "0 1|||"); // the short form alone takes it
  EXPECT_EQ(ReadForList("3", Make(1, "A", "N", "S")), "0 1|||"); // and so this one
  EXPECT_EQ(ReadForList("12,A"), "0 1|||");
  EXPECT_EQ(ReadForList("A;N,S"), "0 1||N|S");
  EXPECT_EQ(ReadForList(";N,S"), "0 1||N|S");
}

TEST_F(ListIDText, WhatIsWrittenIsReadBack) {
  const std::string name = standin::ToAnsi("許功蓋");
  const CListID list = Make(1, "A1", name.c_str(), "2330.TW,:x,2317.TW");
  EXPECT_EQ(ReadForList(list.ToStringForList()), Parts(1, list));
  for (const int type : {2, 3, 6, 7, 8}) {
    const CListID group = Make(type, "01,02");
    EXPECT_EQ(Read(group.ToString()), Parts(1, group));
    EXPECT_EQ(ReadForList(group.ToStringForList()), Parts(1, group));
  }
}

TEST_F(ListIDText, EveryShortTextIsRead) {
  const std::string alphabet("16,;x\xB3", 6);
  for (int length = 0; length <= 5; ++length) {
    int count = 1;
    for (int i = 0; i < length; ++i)
      count *= static_cast<int>(alphabet.size());
    for (int number = 0; number < count; ++number) {
      std::string text;
      for (int i = 0, rest = number; i < length; ++i, rest /= 6)
        text += alphabet[static_cast<std::size_t>(rest % 6)];
      const auto expectValidUnlessTypeOneWithoutId = [&text](const CListID& list, int result) {
        const bool bad = list.GetType() == ListIDUserList && list.GetID().IsEmpty();
        EXPECT_EQ(result != 0, !bad) << text;
      };
      CListID list;
      const int shortResult = list.FromString(text.c_str());
      expectValidUnlessTypeOneWithoutId(list, shortResult);
      const int longResult = list.FromStringForList(text.c_str());
      expectValidUnlessTypeOneWithoutId(list, longResult);
    }
  }
}

} // namespace
