// The market of this terminal: one exchange with three symbols.
#pragma once

#include <VLRecords.h>

inline constexpr short kExchange = 1;
inline constexpr char kExchangeName[] = "TW";

struct Listed {
  const char* code;
  const char* id; // the code, ".", the exchange's name
  const char* name;
  int lot;
};
inline constexpr Listed kMarket[] = {
    {"1001", "1001.TW", "Northern Steel", 1000},
    {"1002", "1002.TW", "Harbour Lines", 1000},
    {"2001", "2001.TW", "Island Index Fund", 100},
};
inline constexpr int kMarketSize = 3;

// What VLProxy writes into the part of a BaseAttr that is the service's own, and tqStock reads
// there: which of the symbols it is.
inline void SetNumber(BaseAttr& record, int number) {
  record.rest[0] = static_cast<char>(number);
}
inline const Listed& ListedOf(const BaseAttr& record) {
  return kMarket[static_cast<unsigned char>(record.rest[0])];
}
