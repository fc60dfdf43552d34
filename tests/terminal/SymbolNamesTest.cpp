// The stand-in VLProxy: names in two languages, and searching for them.
#include "platform/services/tqCommon.h"
#include "tests/support/StandInTest.h"
#include "tests/terminal/ArrayOwner.h"

namespace {

class SymbolNames : public StandInTest {
protected:
  static std::string NameOf(const char* id) {
    SymbolInfo info{};
    EXPECT_NE(VLGetSymbolInfo(id, &info), 0);
    return info.name;
  }

  static std::string Found(const std::string& utf8, int mode = 0, int exchId = -1) {
    Infos infos;
    EXPECT_NE(
        VLFindSymbol(standin::ToAnsi(utf8).c_str(), &infos.list, &infos.count, 0, mode, exchId), 0);
    return Ids(infos);
  }

  static void NameFirst(const std::string& name) {
    standin::Market market = SmallMarket();
    market.instruments.front().nameTw = market.instruments.front().nameCn = name;
    standin::SetMarket(std::move(market));
  }
};

TEST_F(SymbolNames, FollowTheInterfaceLanguageOfTheMoment) {
  standin::SetTraditional(true);
  EXPECT_NE(IsTraditionChinese(), 0);
  EXPECT_EQ(NameOf("2330.TW"), standin::ToAnsi("台積電"));
  standin::SetTraditional(false);
  EXPECT_EQ(IsTraditionChinese(), 0);
  EXPECT_EQ(NameOf("2330.TW"), standin::ToAnsi("台积电"));
}

TEST_F(SymbolNames, ResetGoesBackToTheLanguageOfTheStart) {
  const int atStart = IsTraditionChinese();
  standin::SetTraditional(atStart == 0);
  standin::Reset();
  EXPECT_EQ(IsTraditionChinese(), atStart);
}

TEST_F(SymbolNames, AreInTheCodePageOfTheLanguage) {
  // The name in a code page of the other language is not checked here.
  const bool traditional = IsTraditionChinese() != 0;
  EXPECT_EQ(NameOf("1436.TW"),
            traditional ? "\xB3\x5C\xA5\x5C\xBB\x5C" : "\xD0\xED\xB9\xA6\xB8\xC7");
}

TEST_F(SymbolNames, AreCutAtAWholeCharacter) {
  const std::string fifteen = "一二三四五六七八九十甲乙丙丁戊";
  NameFirst(fifteen);
  EXPECT_EQ(NameOf("2330.TW"), standin::ToAnsi(fifteen));
  EXPECT_EQ(NameOf("2330.TW").size(), 30u);
  NameFirst("A" + fifteen);
  EXPECT_EQ(NameOf("2330.TW"), standin::ToAnsi("A一二三四五六七八九十甲乙丙丁"));
  NameFirst(fifteen + "B");
  EXPECT_EQ(NameOf("2330.TW"), standin::ToAnsi(fifteen));
}

TEST_F(SymbolNames, WhatTheCodePageLacksBecomesAQuestionMark) {
  NameFirst("A\xF0\x9F\x93\x88\xE2\x82\xBF"
            "B");
  EXPECT_EQ(NameOf("2330.TW"), "A??B");
}

TEST_F(SymbolNames, ConvertThereAndBack) {
  const std::string text = IsTraditionChinese() != 0 ? "許功蓋 a|\\" : "许功盖 a|\\";
  EXPECT_EQ(standin::FromAnsi(standin::ToAnsi(text)), text);
  EXPECT_EQ(standin::ToAnsi(""), "");
  EXPECT_EQ(standin::FromAnsi(""), "");
}

// Its second byte is "@", which a search must not find.
TEST_F(SymbolNames, AUserDefinedCharacterIsOneCharacterToo) {
  const std::string text = standin::FromAnsi("\xFA\x40"
                                             "B");
  EXPECT_EQ(text.find('@'), std::string::npos) << text;
  EXPECT_EQ(text.back(), 'B') << text;
}

TEST_F(SymbolNames, SearchMatchesTheBeginningOfCodesAndIdsAndAnyPartOfNames) {
  EXPECT_EQ(Found("233"), "2330.TW");
  EXPECT_EQ(Found("7777"), "7777.TW 7777.TE");
  EXPECT_EQ(Found("7777.t"), "7777.TW 7777.TE");
  EXPECT_EQ(Found("7777.te"), "7777.TE");
  EXPECT_EQ(Found("txf"), "TXFL6.TF TXFA7.TF");
  EXPECT_EQ(Found("330"), "");
  EXPECT_EQ(Found("台指"), "TXFL6.TF TXFA7.TF MXFL6.TF");
  EXPECT_EQ(Found(""), "");
  EXPECT_EQ(Found("NOSUCH"), "");
}

TEST_F(SymbolNames, SearchFindsAnExchangesOwnCode) {
  standin::Market market = SmallMarket();
  market.instruments.front().exchangeCode = "X2330";
  standin::SetMarket(market);
  EXPECT_EQ(Found("x23"), "2330.TW");
}

TEST_F(SymbolNames, SearchLooksAtSimplifiedNamesOnlyWhenAskedTo) {
  standin::Market market = SmallMarket();
  market.instruments.front().nameTw = "ONE";
  market.instruments.front().nameCn = "TWO";
  standin::SetMarket(market);
  standin::SetTraditional(true);
  EXPECT_EQ(Found("TWO"), "");
  EXPECT_EQ(Found("TWO", 1), "2330.TW");
  EXPECT_EQ(Found("ONE", 1), "2330.TW");
}

TEST_F(SymbolNames, SearchCanBeLimitedToOneExchange) {
  EXPECT_EQ(Found("7777", 0, 2), "7777.TE");
  Infos infos;
  EXPECT_EQ(VLFindSymbol("7777", &infos.list, &infos.count, 0, 0, 99), 0);
}

TEST_F(SymbolNames, SearchOverSeveralExchangesKeepsTheirOrder) {
  const auto found = [](const char* text, const char* exchIds) {
    Infos infos;
    EXPECT_NE(VLFindSymbol2(text, exchIds, &infos.list, &infos.count, 0, 0), 0);
    return Ids(infos);
  };
  EXPECT_EQ(found("7777", "2,1"), "7777.TE 7777.TW");
  EXPECT_EQ(found("7777", "1,2"), "7777.TW 7777.TE");
  EXPECT_EQ(found("7777", "99,2,,x"), "7777.TE");
  EXPECT_EQ(found("7777", ""), "");
  EXPECT_EQ(found("", "1,2"), "");
}

TEST_F(SymbolNames, AnExchangesOwnCodeIsTakenWhole) {
  standin::Market market = SmallMarket();
  market.instruments.front().exchangeCode = "x23";
  standin::SetMarket(market);
  const auto found = [](const char* code) {
    Infos infos;
    EXPECT_NE(VLEX2ZUID2(code, &infos.list, &infos.count), 0);
    return Ids(infos);
  };
  EXPECT_EQ(found("X23"), "2330.TW");
  EXPECT_EQ(found("x2"), "");
  EXPECT_EQ(found("2330"), "");
  EXPECT_EQ(found("7777"), "7777.TW 7777.TE");
  EXPECT_EQ(found(""), "");
}

TEST_F(SymbolNames, SearchDoesNotTakeHalvesOfCharactersForAMatch) {
  // The second byte of a character with the first byte of the next.
  const std::string halves = NameOf("1436.TW").substr(1, 2);
  Infos infos;
  ASSERT_NE(VLFindSymbol(halves.c_str(), &infos.list, &infos.count, 0, 0, -1), 0);
  EXPECT_EQ(Ids(infos), "");
}

} // namespace
