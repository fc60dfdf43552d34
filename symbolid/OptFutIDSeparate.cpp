// Typed combinations: the separator, the legs, the sides.
#include "symbolid/ContractCode.h"
#include "symbolid/OptFutID.h"

namespace {

constexpr char kSpreadMark = '/';
constexpr char kStraddleMark = ':';
constexpr char kReversalMark = '-';

struct Typed {
  char mark = '\0'; // '\0': the text is no combination
  CString first;
  CString second;
};

Typed SplitTyped(const CString& id) {
  CString text = id;
  text.Trim();
  for (const char mark : {kSpreadMark, kStraddleMark, kReversalMark}) {
    const int at = text.Find(mark);
    if (at > 0)
      return {mark, text.Left(at), text.Mid(at + 1)};
  }
  return {};
}

char Opposite(char side) {
  return side == 'B' ? 'S' : 'B';
}

// Completes the legs by their lengths alone, whatever was typed. A `first` without a month code has
// a digit of the strike in its position.
void CompleteUnchecked(const Typed& typed, CString& leg1, CString& leg2) {
  constexpr int monthLength{tq::kMonthCodeLength};
  leg1 = typed.first;
  if (tq::IsDecimalDigit(leg1.GetAt(leg1.GetLength() - monthLength)))
    leg1 += typed.second.Right(monthLength);
  const bool hasStrike = typed.second.GetLength() == tq::kStrikeMonthLength;
  const std::size_t shared = hasStrike ? tq::kCommodityLength : tq::kCommodityStrikeLength;
  leg2 = leg1.Left(static_cast<int>(shared)) + typed.second;
}

} // namespace

int COptFutID::SeparateID(const CString& id, char side, CString& id1, char& side1, CString& id2,
                          char& side2, int check) noexcept {
  const Typed typed = SplitTyped(id);
  if (typed.mark == '\0')
    return Report(OptFutNotACombination);
  CString leg1;
  CString leg2;
  int passed = 1;
  if (!check)
    CompleteUnchecked(typed, leg1, leg2);
  else if (typed.mark == kSpreadMark)
    passed = ChkSpread(typed.first, typed.second, leg1, leg2);
  else if (typed.mark == kStraddleMark)
    passed = ChkStraddle_Strangle(typed.first, typed.second, leg1, leg2);
  else
    passed = ChkReversals_Conversion(typed.first, typed.second, leg1, leg2);
  if (!passed)
    return 0;
  id1 = leg1;
  id2 = leg2;
  side1 = typed.mark == kStraddleMark ? side : Opposite(side);
  side2 = side;
  return 1;
}
