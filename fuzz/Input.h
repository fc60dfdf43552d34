// What the inputs of all fuzzers share. A fuzzer generates bytes; the unit tests replay the
// checked-in ones on every platform.
//
// The first byte of an input chooses the interface language (bit 0 set: Traditional Chinese), the
// rest is the fuzzed input. A check returns the broken property in words, or an empty text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "terminal/StandIn.h"

namespace fuzz {

// A few symbols that the ids of an input can name.
inline standin::Market SmallMarket() {
  standin::Market market;
  market.exchanges = {{1, "TW", "TW", "TW"}, {2, "TE", "TE", "TE"}, {10, "NYSE", "NYSE", "NYSE"}};
  const auto list = [&](int exchId, const char* code) {
    standin::Instrument instrument;
    instrument.exchId = exchId;
    instrument.code = instrument.nameTw = instrument.nameCn = code;
    market.instruments.push_back(instrument);
  };
  for (const char* code : {"2330", "2317", "0050", "1101", "A", "AB"})
    list(1, code);
  list(2, "6488");
  list(10, "BRK.B");
  return market;
}

// Call this before the first input: it sets the stand-in services up as the inputs expect them.
inline void PrepareServices() {
  standin::Reset();
  standin::RecordCalls(false);
  standin::SetMarket(SmallMarket());
}

// Sets the interface language and returns the remaining bytes.
inline std::string_view Begin(const unsigned char* data, std::size_t size) {
  standin::SetTraditional(size > 0 && (data[0] & 1) != 0);
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  return bytes.substr(size > 0 ? 1 : 0);
}

// What the services must not have seen after an input.
inline std::string EndOfServices() {
  if (standin::OutstandingArrays() != 0)
    return "a service's array was not released";
  return standin::BadReleases() == 0 ? "" : "a service's array was released wrongly";
}

} // namespace fuzz
