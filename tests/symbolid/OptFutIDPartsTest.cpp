// COptFutID: the checks of single parts, and the error code.
#include "tests/symbolid/CombinationTest.h"

namespace {

class OptFutIDParts : public CombinationTest {
protected:
  // The error after a check of a code: 0 when it passes, -1 when it fails without one.
  static int Format(const CString& code) {
    Checks id;
    const int passed = id.ChkCommIDFormat(code);
    EXPECT_TRUE(!passed || id.GetErrorCode() == 0) << code;
    return passed || id.GetErrorCode() != 0 ? id.GetErrorCode() : -1;
  }

  Checks id;
};

TEST_F(OptFutIDParts, StartsWithoutAnError) {
  EXPECT_EQ(COptFutID().GetErrorCode(), 0);
}

TEST_F(OptFutIDParts, SuccessDoesNotResetTheError) {
  EXPECT_EQ(id.ChkBS('X', 'B'), 0);
  EXPECT_EQ(id.ChkBS('S', 'B'), 1);
  EXPECT_EQ(id.GetErrorCode(), 8);
}

TEST_F(OptFutIDParts, TheErrorIsCopiedAndMoved) {
  EXPECT_EQ(id.ChkBS('X', 'B'), 0);
  COptFutID copy(id);
  EXPECT_EQ(copy.GetErrorCode(), 8);
  COptFutID other;
  copy = other;
  EXPECT_EQ(copy.GetErrorCode(), 0);
  copy = std::move(id);
  EXPECT_EQ(copy.GetErrorCode(), 8);
}

TEST_F(OptFutIDParts, SidesAreBuyOrSellInUpperCase) {
  for (const char side1 : {'B', 'S'})
    for (const char side2 : {'B', 'S'})
      EXPECT_EQ(id.ChkBS(side1, side2), 1);
  for (const char bad : {'b', 's', ' ', '\0', 'A', '1', '\xA4'}) {
    EXPECT_EQ(id.ChkBS(bad, 'B'), 0);
    EXPECT_EQ(id.ChkBS('S', bad), 0);
  }
  EXPECT_EQ(id.GetErrorCode(), 8);
}

TEST_F(OptFutIDParts, CallsAreAToLAndPutsMToX) {
  for (int byte = 0; byte < 256; ++byte) {
    const char letter = static_cast<char>(byte);
    const bool call = letter >= 'A' && letter <= 'L';
    const bool put = letter >= 'M' && letter <= 'X';
    EXPECT_EQ(id.GetCallPut(letter), call ? 'C' : put ? 'P' : ' ') << byte;
  }
}

TEST_F(OptFutIDParts, KindsAreComparedByTheMonthLetter) {
  EXPECT_EQ(id.ChkTheSameCP('A', 'L'), 1);
  EXPECT_EQ(id.ChkTheSameCP('M', 'X'), 1);
  EXPECT_EQ(id.ChkTheSameCP('L', 'M'), 0);
  EXPECT_EQ(id.ChkTheSameCP('A', 'Y'), 0);
  EXPECT_EQ(id.ChkTheSameCP('Y', '1'), 1);
  EXPECT_EQ(id.GetErrorCode(), 0);
}

TEST_F(OptFutIDParts, AGoodCodePasses) {
  for (const char* code : {"TXO21000L6", "TX121000X0", "00000000A9", "AZ900005M1"})
    EXPECT_EQ(Format(code), 0) << code;
}

TEST_F(OptFutIDParts, ACodeOfAnotherLengthFailsWithoutAnError) {
  for (const char* code : {"", "T", "TXO21000L", "TXO21000L66", " TXO21000L6"})
    EXPECT_EQ(Format(code), -1) << code;
}

TEST_F(OptFutIDParts, EachPartOfACodeHasItsError) {
  const struct {
    CString code;
    int error;
  } cases[] = {
      {"tXO21000L6", 3},
      {"T-O21000L6", 3},
      {"TX 21000L6", 3},
      {CString("T\0O21000L6", 10), 3},
      {"T\xB3\x5C"
       "21000L6",
       3},
      {"TXO2100\xA4L6", 4},
      {"TXO21\xB3\x5C"
       "0L6",
       4},
      {CString("TXO2\0"
               "000L6",
               10),
       4},
      {"TXO21000Y6", 5},
      {"TXO21000l6", 5},
      {"TXO2100016", 5},
      {CString("TXO21000\0"
               "6",
               10),
       5},
      {"TXO21000LA", 6},
      {"TXO21000L ", 6},
      {"TXO21000L\xA4", 6},
  };
  for (const auto& [code, error] : cases)
    EXPECT_EQ(Format(code), error) << code;
}

TEST_F(OptFutIDParts, TheLeftmostFaultOfACodeIsReported) {
  EXPECT_EQ(Format("tXO2100\xA4YY"), 3);
  EXPECT_EQ(Format("TXO2100\xA4YY"), 4);
  EXPECT_EQ(Format("TXO21000YY"), 5);
}

TEST_F(OptFutIDParts, AStrikeThatIsNoNumberIsLeftToTheComparison) {
  EXPECT_EQ(Format("TXO2100AL6"), 0);
  EXPECT_EQ(id.ChkPrice_Rule("2100A", "21000"), -1);
}

TEST_F(OptFutIDParts, StrikesAreComparedAsDecimalNumbers) {
  EXPECT_EQ(id.ChkPrice_Rule("21000", "21000"), 0);
  EXPECT_EQ(id.ChkPrice_Rule("00500", "500"), 0);
  EXPECT_EQ(id.ChkPrice_Rule("52.5", " 52.50 "), 0);
  EXPECT_EQ(id.ChkPrice_Rule("10000", "09900"), 1);
  EXPECT_EQ(id.ChkPrice_Rule("10", "9.75"), 1);
  EXPECT_EQ(id.ChkPrice_Rule("9", "10"), 2);
  EXPECT_EQ(id.ChkPrice_Rule("-1", "0"), 2);
}

TEST_F(OptFutIDParts, WhatIsNoNumberHasNoOrder) {
  for (const char* price : {"", " ", "ABCDE", "1A", "1 2", "nan", "inf", "1e5", "0x1F", "+1"}) {
    EXPECT_EQ(id.ChkPrice_Rule(price, "1"), -1) << price;
    EXPECT_EQ(id.ChkPrice_Rule("1", price), -1) << price;
    EXPECT_EQ(id.ChkPrice_Rule(price, price), -1) << price;
  }
}

TEST_F(OptFutIDParts, MonthsOfOneYearAreInTheOrderOfTheirLetters) {
  EXPECT_EQ(id.ChkMonth_Rule("A6", "A6"), 0);
  EXPECT_EQ(id.ChkMonth_Rule("A6", "B6"), 1);
  EXPECT_EQ(id.ChkMonth_Rule("X6", "M6"), 2);
}

TEST_F(OptFutIDParts, MonthsOfNeighbouringYearsAreInTheOrderOfTheYears) {
  EXPECT_EQ(id.ChkMonth_Rule("L6", "A7"), 1);
  EXPECT_EQ(id.ChkMonth_Rule("A7", "L6"), 2);
  EXPECT_EQ(id.ChkMonth_Rule("A6", "L7"), 1);
}

TEST_F(OptFutIDParts, ADecadesLastYearIsBeforeTheNextOnesFirst) {
  EXPECT_EQ(id.ChkMonth_Rule("L9", "A0"), 1);
  EXPECT_EQ(id.ChkMonth_Rule("A0", "L9"), 2);
}

TEST_F(OptFutIDParts, MonthsMoreThanAYearApartHaveNoOrder) {
  EXPECT_EQ(id.ChkMonth_Rule("A6", "A8"), -1);
  EXPECT_EQ(id.ChkMonth_Rule("A8", "A6"), -1);
  EXPECT_EQ(id.ChkMonth_Rule("L9", "A1"), -1);
  EXPECT_EQ(id.ChkMonth_Rule("A1", "A9"), -1);
}

TEST_F(OptFutIDParts, ACallAndAPutMayBeOfOneMonth) {
  EXPECT_EQ(id.ChkTheSameMonth("L6", "L6"), 1);
  EXPECT_EQ(id.ChkTheSameMonth("L6", "X6"), 1);
  EXPECT_EQ(id.ChkTheSameMonth("M6", "A6"), 1);
  EXPECT_EQ(id.GetErrorCode(), 0);
  for (const char* other : {"X7", "W6", "K6", "Y6", "A6", "", "L"}) {
    Checks check;
    EXPECT_EQ(check.ChkTheSameMonth("L6", other), 0) << other;
    EXPECT_EQ(check.GetErrorCode(), 15) << other;
  }
}

} // namespace
