// Descriptions of combinations for the user.
#pragma once

#include "platform/framework/CString.h"

namespace tq {

// One leg of an option combination, parsed from a code with any content.
struct OptionLeg {
  OptionLeg(const CString& code, char side);

  bool IsKindOf(const OptionLeg& other) const { return callPut == other.callPut; }
  const char* Kind() const; // "CALL", "PUT", "" for neither

  CString commodity;
  CString strike;    // without leading zeros
  CString monthCode; // letter and digit
  int year;
  int month; // 1 to 12, 0 for none
  char callPut;
  char side;
};

CString DescribeCombination(const OptionLeg& leg, const OptionLeg& other);

// What the uniform description (DescribeLegs) adds to a leg; empty when not known.
struct LegNames {
  CString exchange;
  CString shortName; // with a trailing blank
};

enum class KindWords { Written, LeftOut };

CString DescribeLegs(const OptionLeg& leg, const LegNames& names, const OptionLeg& other,
                     const LegNames& otherNames, KindWords words);

// One leg of a calendar spread of futures; the code has five characters at least.
struct FutureLeg {
  FutureLeg(const CString& code, char side, const CString& week);

  int YearMonth() const;

  CString week; // the text behind the month
  int year;
  int month;
  char side;
};

CString DescribeCalendarSpread(const CString& commodity, const FutureLeg& nearer,
                               const FutureLeg& later);

} // namespace tq
