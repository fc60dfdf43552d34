// Globally unique identifiers: the ids of new lists.
#pragma once

#include <cstdint>

namespace tq {

// The four fields of a GUID, as the operating system's own record has them.
struct Guid {
  std::uint32_t data1;
  std::uint16_t data2;
  std::uint16_t data3;
  std::uint8_t data4[8];
};

// Characters of a GUID's text form, without the NUL.
inline constexpr int kGuidTextLength = 36;

// Fills `guid` with a new identifier from the operating system (CoCreateGuid on Windows, the
// kernel's random source elsewhere, as a version 4 GUID). False, with `guid` zeroed, when the
// system has none to give. Any thread.
bool NewGuid(Guid& guid);

// Writes the text form, 8-4-4-4-12 hexadecimal digits, and a NUL. The third group is in lower case
// and the others in upper case: the ids of stored lists have always looked like this. Do not change
// it.
void FormatGuid(const Guid& guid, char (&text)[kGuidTextLength + 1]);

// What NewGuid asks. A test puts its own source in place to get known ids, or a failure.
using GuidSource = bool (*)(Guid& guid);

// Sets the source and returns the one before; null stands for the operating system's.
GuidSource SetGuidSource(GuidSource source);

} // namespace tq
