// The calendar by which contract codes are read: they carry the last digit of a year only.
#pragma once

namespace tq {

// The year of the local calendar, such as 2026. Any thread.
int CurrentLocalYear();

// What CurrentLocalYear asks. A test puts its own source in place to live in another year.
using ClockSource = int (*)();

// Sets the source and returns the one before; null stands for the operating system's.
ClockSource SetClock(ClockSource source);

} // namespace tq
