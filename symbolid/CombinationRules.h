// The exchange's rules for option codes and for combinations of two. Codes and their parts are
// those of ContractCode.h. Every result is the error to report; OptFutNoError means that the rule
// is met.
#pragma once

#include <string_view>

#include "symbolid/OptFutID.h"

namespace tq {

// Checks a code of kOptionCodeLength characters from left to right.
OptFutError CheckOptionCode(std::string_view code);

// Two strikes of one month: of calls the first must be the higher one, of puts the lower.
OptFutError CheckPriceSpread(char callPut, std::string_view strike, std::string_view other);

// Two month codes of one kind: the first must not be later.
OptFutError CheckTimeSpread(std::string_view month, std::string_view other);

// A leg of a combination order, with the strike to compare.
struct CombinationLeg {
  std::string_view month;
  std::string_view strike;

  char CallPut() const;
};

// A call and a put, in either order.
OptFutError CheckCallAndPut(const CombinationLeg& leg, const CombinationLeg& other, bool sameSide);

// Two calls or two puts on opposite sides.
OptFutError CheckOneKind(const CombinationLeg& leg, const CombinationLeg& other);

} // namespace tq
