// Cases that take long, and that the language does not change, are shared by the runs of a test
// program in the two languages.
#pragma once

#include <cstddef>

#include "platform/services/tqCommon.h"

// Whether this language's run takes the case with that number: each takes every second one, and on
// Windows those that the other one takes natively, so that each case meets both languages.
inline bool IsThisLanguagesTurn(std::size_t number) {
#ifdef _WIN32
  ++number;
#endif
  return (number % 2 == 0) == (IsTraditionChinese() != 0);
}
