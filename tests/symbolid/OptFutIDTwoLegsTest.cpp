// COptFutID: which two legs form a combination, for all pairs of months, compared with a second
// plain formulation of the rules.
#include "tests/symbolid/CombinationTest.h"

#include <set>

namespace {

const std::string kLetters = "ABCDEFGHIJKLMNOPQRSTUVWX"; // twelve calls, twelve puts

// The years of two legs: equal, ascending, descending, across a decade, too far apart.
struct Years {
  char first;
  char second;
  int order; // of the years: 0 equal, 1 the first earlier, 2 later, -1 more than one apart
};
const Years kAllYears[] = {{'6', '6', 0}, {'6', '7', 1},  {'7', '6', 2},  {'9', '0', 1},
                           {'0', '9', 2}, {'9', '1', -1}, {'0', '8', -1}, {'9', '9', 0}};

// One pair and its properties.
struct Pair {
  char letter1;
  char letter2;
  Years years;
  int strikes; // 0 equal, 1 the first higher, 2 the first lower

  bool Call1() const { return letter1 < 'M'; }
  bool Call2() const { return letter2 < 'M'; }
  int Month1() const { return (letter1 - 'A') % 12; }
  int Month2() const { return (letter2 - 'A') % 12; }
  bool OneMonth() const { return years.order == 0 && Month1() == Month2(); }
  // Of two calls or two puts.
  int Order() const {
    if (years.order != 0)
      return years.order;
    return Month1() == Month2() ? 0 : Month1() < Month2() ? 1 : 2;
  }
  const char* Strike1() const { return strikes == 1 ? "22000" : strikes == 2 ? "09900" : "21000"; }
  std::string Id1() const { return std::string("TXO") + Strike1() + letter1 + years.first; }
  std::string Id2() const { return std::string("TXO21000") + letter2 + years.second; }
};

template <class Visit> void ForEachPair(Visit visit) {
  for (const char letter1 : kLetters)
    for (const char letter2 : kLetters)
      for (const Years& years : kAllYears)
        for (const int strikes : {0, 1, 2})
          visit(Pair{letter1, letter2, years, strikes});
}

int TimeSpreadError(const Pair& pair) {
  return pair.Order() == -1 ? 14 : pair.Order() == 2 ? 16 : 0;
}

int PriceSpreadError(const Pair& pair) {
  if (pair.Call1())
    return pair.strikes == 1 ? 0 : 12;
  return pair.strikes == 2 ? 0 : 13;
}

int TwoLegsError(const Pair& pair, bool sameSide) {
  if (pair.Call1() != pair.Call2()) {
    if (!pair.OneMonth())
      return 15;
    if (sameSide && pair.strikes == 2)
      return 13;
    if (!sameSide && pair.strikes != 0)
      return 11;
    return pair.strikes == 0 && !pair.Call1() ? 17 : 0;
  }
  if (sameSide)
    return 9;
  if (pair.OneMonth())
    return pair.strikes == 0 ? 0 : PriceSpreadError(pair);
  return pair.strikes != 0 ? 11 : TimeSpreadError(pair);
}

class OptFutIDTwoLegs : public CombinationTest {
protected:
  OptFutIDTwoLegs() { standin::RecordCalls(false); }

  // The error of a typed combination; 0 when it passes.
  static int Typed(const std::string& text) {
    COptFutID id;
    CString leg1;
    CString leg2;
    char side1 = ' ';
    char side2 = ' ';
    const int passed = id.SeparateID(text.c_str(), 'B', leg1, side1, leg2, side2, 1);
    EXPECT_EQ(passed, id.GetErrorCode() == 0) << text;
    return id.GetErrorCode();
  }

  void Expect(int error, int expected, const std::string& text) {
    reached.insert(error);
    if (error != expected)
      ADD_FAILURE() << text << ": " << error << ", not " << expected;
  }

  std::set<int> reached;
};

TEST_F(OptFutIDTwoLegs, AreCheckedByKindSidesMonthsAndStrikes) {
  ForEachPair([this](const Pair& pair) {
    const CString id1 = pair.Id1().c_str();
    const CString id2 = pair.Id2().c_str();
    for (const char* sides : {"BB", "SS", "BS", "SB"}) {
      Checks id;
      const int passed = id.ChkCommID(id1, sides[0], id2, sides[1]);
      EXPECT_EQ(passed, id.GetErrorCode() == 0);
      Expect(id.GetErrorCode(), TwoLegsError(pair, sides[0] == sides[1]),
             pair.Id1() + " " + pair.Id2() + " " + sides);
    }
  });
  EXPECT_EQ(reached, (std::set<int>{0, 9, 11, 12, 13, 14, 15, 16, 17}));
}

TEST_F(OptFutIDTwoLegs, TypedTimeSpreadsAreCheckedByKindAndOrder) {
  ForEachPair([this](const Pair& pair) {
    const std::string text = pair.Id1() + "/" + pair.letter2 + pair.years.second;
    Expect(Typed(text), pair.Call1() != pair.Call2() ? 103 : TimeSpreadError(pair), text);
  });
  EXPECT_EQ(reached, (std::set<int>{0, 14, 16, 103}));
}

TEST_F(OptFutIDTwoLegs, TypedPriceSpreadsAreCheckedByStrikes) {
  for (const char letter : kLetters)
    for (const int strikes : {0, 1, 2}) {
      const Pair pair{letter, letter, kAllYears[0], strikes};
      const std::string text = pair.Id1().substr(0, 8) + "/" + pair.Id2().substr(3);
      Expect(Typed(text), PriceSpreadError(pair), text);
    }
  EXPECT_EQ(reached, (std::set<int>{0, 12, 13}));
}

TEST_F(OptFutIDTwoLegs, TypedStraddlesStranglesAndReversalsAreCheckedByKindAndMonth) {
  ForEachPair([this](const Pair& pair) {
    const std::string month2 = {pair.letter2, pair.years.second};
    const bool oneKind = pair.Call1() == pair.Call2();
    const int straddle = oneKind ? 104 : !pair.OneMonth() ? 15 : pair.Call1() ? 0 : 17;
    const int strangle = oneKind ? 104 : !pair.OneMonth() ? 15 : pair.Call1() ? 18 : 0;
    const int reversal = oneKind ? 104 : pair.Call1() ? 0 : 17;
    Expect(Typed(pair.Id1() + ":" + month2), straddle, pair.Id1() + ":" + month2);
    Expect(Typed(pair.Id1() + ":21000" + month2), strangle, pair.Id1() + ":21000" + month2);
    Expect(Typed(pair.Id1() + "-" + month2), reversal, pair.Id1() + "-" + month2);
  });
  EXPECT_EQ(reached, (std::set<int>{0, 15, 17, 18, 104}));
}

TEST_F(OptFutIDTwoLegs, StrikesOfTheServiceGoBeforeTheDigits) {
  // The digits do not help: all strikes are below one.
  List("ABO00000L6", {{ExtAttrWeekly, "V3=0.75"}});
  List("ABO00001L6", {{ExtAttrWeekly, "V3=0.5"}});
  Checks id;
  EXPECT_EQ(id.ChkTwoCommID("ABO00000L6", 'B', "ABO00001L6", 'S'), 1);
  EXPECT_EQ(id.ChkTwoCommID("ABO00001L6", 'B', "ABO00000L6", 'S'), 0);
  EXPECT_EQ(id.GetErrorCode(), 12);
}

TEST_F(OptFutIDTwoLegs, TheDigitsCountUnlessTheServiceHasBothStrikes) {
  List("ABO00000L6", {{ExtAttrWeekly, "V3=0.75"}});
  List("ABO00001L6", {{ExtAttrWeekly, "V4=W;V5=1"}});
  List("ABO00002L6", {{ExtAttrWeekly, "V3=0.25"}});
  Checks id;
  EXPECT_EQ(id.ChkTwoCommID("ABO00001L6", 'B', "ABO00000L6", 'S'), 1);
  EXPECT_EQ(id.ChkTwoCommID("ABO00002L6", 'B', "ABO00001L6", 'S'), 1);
  for (const char* operation : {"VLGetZUID", "VLGetExtendAttr", "CStockKey::ParseExtAttr"}) {
    List("ABO00001L6", {{ExtAttrWeekly, "V3=0.5"}});
    EXPECT_EQ(id.ChkTwoCommID("ABO00001L6", 'B', "ABO00000L6", 'S'), 0);
    standin::FailCall(operation, 1);
    EXPECT_EQ(id.ChkTwoCommID("ABO00001L6", 'B', "ABO00000L6", 'S'), 1) << operation;
  }
}

// Symptom: a combination with valid codes was refused because the service's strike is no plain
// number.
TEST_F(OptFutIDTwoLegs, TheDigitsCountUnlessBothStrikesOfTheServiceAreNumbers) {
  List("ABO00002L6", {{ExtAttrWeekly, "V3=0.25"}});
  for (const char* strike : {"n/a", "1,000", "1e3", "0x1", "1 000", " "}) {
    List("ABO00001L6", {{ExtAttrWeekly, std::string("V3=") + strike}});
    Checks id;
    EXPECT_EQ(id.ChkTwoCommID("ABO00002L6", 'B', "ABO00001L6", 'S'), 1) << strike;
    EXPECT_EQ(id.ChkTwoCommID("ABO00001L6", 'B', "ABO00002L6", 'S'), 0) << strike;
  }
  List("ABO00001L6", {{ExtAttrWeekly, "V3= 0.5\t"}});
  Checks id;
  EXPECT_EQ(id.ChkTwoCommID("ABO00002L6", 'B', "ABO00001L6", 'S'), 0);
}

TEST_F(OptFutIDTwoLegs, StrikesThatAreNoNumbersAreNeitherEqualNorInOrder) {
  const struct {
    const char* id1;
    const char* id2;
    char side2;
    int error;
  } cases[] = {
      {"TXOABCDEL6", "TXOABCDEL6", 'S', 12}, {"TXOABCDEX6", "TXOABCDEX6", 'S', 13},
      {"TXOABCDEL6", "TXOABCDEA7", 'S', 11}, {"TXOABCDEL6", "TXOABCDEX6", 'S', 11},
      {"TXOABCDEL6", "TXOABCDEX6", 'B', 13},
  };
  for (const auto& [id1, id2, side2, error] : cases) {
    Checks id;
    EXPECT_EQ(id.ChkCommID(id1, 'B', id2, side2), 0) << id1;
    EXPECT_EQ(id.GetErrorCode(), error) << id1;
  }
}

TEST_F(OptFutIDTwoLegs, FormatsAreLookedAtBeforeSidesAndSidesBeforeTheRest) {
  Checks id;
  EXPECT_EQ(id.ChkCommID("TXO21000Y6", '?', "TXO21000L6", '?'), 0);
  EXPECT_EQ(id.GetErrorCode(), 5);
  EXPECT_EQ(id.ChkCommID("TXO21000L6", '?', "TXO21000LL", '?'), 0);
  EXPECT_EQ(id.GetErrorCode(), 6);
  EXPECT_EQ(id.ChkCommID("TXO21000L6", '?', "TXO21000L6", '?'), 0);
  EXPECT_EQ(id.GetErrorCode(), 8);
}

} // namespace
