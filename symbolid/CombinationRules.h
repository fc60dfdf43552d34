// Which option codes, and which two of them, the exchange takes as a combination. Codes and their
// parts are those of ContractCode.h; every answer is the error to report, OptFutNoError for none.
#pragma once

#include <string_view>

#include "symbolid/OptFutID.h"

namespace tq {

// A code of kOptionCodeLength characters, looked at from left to right.
OptFutError CheckOptionCode(std::string_view code);

// Two strikes of one month: of calls the first must be the higher one, of puts the lower.
OptFutError CheckPriceSpread(char callPut, std::string_view strike, std::string_view other);

// Two month codes of one kind: the first must not be later.
OptFutError CheckTimeSpread(std::string_view month, std::string_view other);

// A leg of a combination order, with the strike that counts for it.
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
