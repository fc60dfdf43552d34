// COptFutID with the same object as input and output gives the same result as with two objects.
#include <gtest/gtest.h>

#include <string>

#include "tests/symbolid/CombinationTest.h"

namespace {

// The results of an operation, joined by "|". The text is the input, and `out` receives its first
// (or second) output text.
struct Operation {
  const char* name;
  const char* input;
  std::string (*call)(const CString& input, CString& out);
};

std::string Joined(int result, std::initializer_list<const char*> texts) {
  std::string all = std::to_string(result);
  for (const char* text : texts)
    all += std::string("|") + text;
  return all;
}

struct OpenOptFutID : COptFutID {
  using COptFutID::GetShortID;
};

constexpr char kCall[] = "TXO21000L6";

const Operation kOperations[] = {
    {"SeparateIDFirst", "TXO22000/21000L6",
     [](const CString& input, CString& out) {
       CString other;
       char side1 = ' ';
       char side2 = ' ';
       const int result = COptFutID().SeparateID(input, 'B', out, side1, other, side2, 1);
       return Joined(result, {out, other});
     }},
    {"SeparateIDSecond", "TXO22000/21000L6",
     [](const CString& input, CString& out) {
       CString other;
       char side1 = ' ';
       char side2 = ' ';
       const int result = COptFutID().SeparateID(input, 'B', other, side1, out, side2, 0);
       return Joined(result, {other, out});
     }},
    {"MergeIDFirst", "TXO22000L6",
     [](const CString& input, CString& out) {
       char side = ' ';
       const int result = COptFutID().MergeID(out, side, input, 'S', kCall, 'B', 1);
       return Joined(result, {out});
     }},
    {"MergeIDSecond", "TXO21000L6",
     [](const CString& input, CString& out) {
       char side = ' ';
       const int result = COptFutID().MergeID(out, side, "TXO22000L6", 'S', input, 'B', 1);
       return Joined(result, {out});
     }},
    {"MergeID2First", " TXO22000L6 ",
     [](const CString& input, CString& out) {
       char side = ' ';
       const int result = COptFutID().MergeID2(out, side, input, 'S', kCall, 'B', 1, nullptr);
       return Joined(result, {out});
     }},
    {"MergeID2Second", " TXO21000L6 ",
     [](const CString& input, CString& out) {
       char side = ' ';
       const int result =
           COptFutID().MergeID2(out, side, "TXO22000L6", 'S', input, 'B', 1, nullptr);
       return Joined(result, {out});
     }},
    {"MergeFuturIDFirst", "TXFL6",
     [](const CString& input, CString& out) {
       char side = ' ';
       const int result = COptFutID().MergeFuturID(out, side, input, 'S', "TXFA7", 'B');
       return Joined(result, {out});
     }},
    {"MergeFuturIDSecond", "TXFL6",
     [](const CString& input, CString& out) {
       char side = ' ';
       const int result = COptFutID().MergeFuturID(out, side, "TXFA7", 'S', input, 'B');
       return Joined(result, {out});
     }},
    {"GetFutureWeekText", "TXO21000L6.TF",
     [](const CString& input, CString& out) {
       int week = 0;
       CString other;
       const int result = COptFutID().GetFutureWeek(input, week, out, other);
       return Joined(result, {std::to_string(week).c_str(), out, other});
     }},
    {"GetFutureWeekExtra", "TXO21000L6.TF",
     [](const CString& input, CString& out) {
       int week = 0;
       CString other;
       const int result = COptFutID().GetFutureWeek(input, week, other, out);
       return Joined(result, {std::to_string(week).c_str(), other, out});
     }},
    {"GetShortID", "TXO21000L6.TF",
     [](const CString& input, CString& out) {
       const int result = OpenOptFutID().GetShortID(out, input);
       return Joined(result, {out});
     }},
};

class OptFutIDSameObject : public CombinationTest, public testing::WithParamInterface<Operation> {};

TEST_P(OptFutIDSameObject, IsAnsweredAsTwoObjectsAre) {
  List("TXO21000L6", {{ExtAttrWeekly, "V3=21000;V4=W;V5=2"}, {ExtAttrShortName, "V5=TX;V6=1"}});
  const CString input = GetParam().input;
  CString out;
  const std::string expected = GetParam().call(input, out);
  ASSERT_EQ(expected.substr(0, 2), "1|");
  CString text = input;
  EXPECT_EQ(GetParam().call(text, text), expected);
}

std::string NameOf(const testing::TestParamInfo<Operation>& tested) {
  return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Of, OptFutIDSameObject, testing::ValuesIn(kOperations), NameOf);

TEST_F(CombinationTest, OfTwoOutputsThatAreOneTheLastStands) {
  CString leg;
  char side = 'S';
  EXPECT_EQ(COptFutID().SeparateID("TXO22000/21000L6", 'B', leg, side, leg, side, 1), 1);
  EXPECT_STREQ(leg, "TXO21000L6");
  EXPECT_EQ(side, 'B');
}

} // namespace
