#include "terminal/demo/Combinations.h"

#include <cstdio>
#include <string>

#include "terminal/demo/Table.h"
#include "tqSymbol.h"

namespace demo {
namespace {

constexpr int kChecked = 1;

const char* Reason(int error) {
  switch (error) {
  case OptFutNotACombination:
    return "no combination separator";
  case OptFutBadCommodity:
    return "commodity is not letters or digits";
  case OptFutBadMonth:
    return "month letter is neither a call nor a put";
  case OptFutBadYear:
    return "year is no digit";
  case OptFutStrikesDiffer:
    return "strikes and months both differ";
  case OptFutCallStrikeNotHigher:
    return "calls: first strike must be higher";
  case OptFutPutStrikeNotLower:
    return "puts: first strike must be lower";
  case OptFutTooFarApart:
    return "months more than a year apart";
  case OptFutMonthsDiffer:
    return "legs not in the same month";
  case OptFutFirstMonthLater:
    return "first leg's month is the later one";
  case OptFutFirstNotCall:
    return "first leg must be a call";
  case OptFutFirstNotPut:
    return "first leg must be a put";
  case OptFutSpreadLength:
    return "not the length of a spread";
  case OptFutStraddleLength:
    return "not the length of a straddle or strangle";
  case OptFutReversalLength:
    return "not the length of a reversal";
  case OptFutSpreadKindsDiffer:
    return "a time spread of a call and a put";
  case OptFutKindsEqual:
    return "legs must be one call and one put";
  default:
    return "refused";
  }
}

void PrintTyped(const char* what, const char* typed) {
  COptFutID combination;
  CString first;
  CString second;
  CString text;
  char side1 = ' ';
  char side2 = ' ';
  char side = ' ';
  std::printf("  %s%s", Padded(what, 14).c_str(), Padded(typed, 23).c_str());
  if (combination.SeparateID(typed, 'B', first, side1, second, side2, kChecked) == 0) {
    std::printf("error %d: %s\n", combination.GetErrorCode(), Reason(combination.GetErrorCode()));
    return;
  }
  combination.MergeID(text, side, first, side1, second, side2, 0);
  std::printf("%c %s  %c %s   %s\n", side1, first.GetString(), side2, second.GetString(),
              text.GetString());
}

void PrintCalendar(const char* first, const char* second) {
  COptFutID combination;
  CString text;
  char side = ' ';
  if (combination.MergeFuturID(text, side, first, 'S', second, 'B') == 0)
    std::printf("  %s%s and %s: error %d\n", Padded("calendar", 14).c_str(), first, second,
                combination.GetErrorCode());
  else
    std::printf("  %s%s%s\n", Padded("calendar", 14).c_str(),
                Padded(std::string(first) + " and " + second, 23).c_str(), text.GetString());
}

} // namespace

void PrintCombinations() {
  std::printf("\nCombination orders, bought\n");
  PrintTyped("price spread", "TXO22000/21000L6");
  PrintTyped("price spread", "TXO21000/22000X6");
  PrintTyped("time spread", "TXO21000L6/A7");
  PrintTyped("straddle", "TXO21000L6:X6");
  PrintTyped("strangle", "TXO21000X6:22000L6");
  PrintTyped("reversal", "TXO21000L6-X6");
  PrintCalendar("TXFL6", "TXFA7");
  std::printf("  and what is refused\n");
  PrintTyped("", "TXO21000L6");
  PrintTyped("", "TXO21000L6/TXO22000L6");
  PrintTyped("", "TXO21000/22000L6");
  PrintTyped("", "TXO22000/21000X6");
  PrintTyped("", "TXO21000A7/L6");
  PrintTyped("", "TXO21000L6/X6");
  PrintTyped("", "TXO21000X6:L6");
  PrintTyped("", "TXO21000L6:22000X6");
  PrintTyped("", "TXO21000L6:X7");
  PrintTyped("", "TXO21000X6-L6");
  PrintTyped("", "T+O22000/21000L6");
  PrintTyped("", "TXO22000/21000Z6");
  PrintCalendar("TXF", "TXFA7");
}

} // namespace demo
