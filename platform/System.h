// What the library asks of the operating system besides files: the calendar and new identifiers. A
// test puts sources of its own in their place.
#pragma once

#include <cstdint>

#include "platform/framework/CString.h"

namespace tq {

// Today in the local calendar as one number, 20260131 for the last of January 2026. Any thread.
int CurrentLocalDay();
// Its year. Contract codes carry the last digit of a year only and are read by it. Any thread.
int CurrentLocalYear();

// What both ask for the day.
using ClockSource = int (*)();

// Replaces the source and returns the one before; null restores SystemLocalDay.
ClockSource SetClock(ClockSource source);

// The operating system's calendar.
int SystemLocalDay();

// The four fields of a GUID, laid out like the operating system's own record.
struct Guid {
  std::uint32_t data1;
  std::uint16_t data2;
  std::uint16_t data3;
  std::uint8_t data4[8];
};

// Length of a GUID's text form, without the NUL.
inline constexpr int kGuidTextLength = 36;

// Fills `guid` with a new identifier. False, with `guid` zeroed, when the system has none to give.
// Any thread.
bool NewGuid(Guid& guid);

// Writes the text form, 8-4-4-4-12 hexadecimal digits, and a NUL. The third group is in lower case
// and the others in upper case: the ids of stored lists have always looked like this. Do not change
// it.
void FormatGuid(const Guid& guid, char (&text)[kGuidTextLength + 1]);

// A new identifier in its text form; empty when the system has none to give.
CString NewGuidText();

// What NewGuid asks. False when there is no identifier; `guid` may then hold anything.
using GuidSource = bool (*)(Guid& guid);

// Replaces the source and returns the one before; null restores SystemGuid.
GuidSource SetGuidSource(GuidSource source);

// The operating system's identifiers: CoCreateGuid on Windows, elsewhere a version 4 GUID from the
// kernel's random source.
bool SystemGuid(Guid& guid);

} // namespace tq
