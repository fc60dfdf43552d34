// The operating system's calendar, behind Clock.h.
#pragma once

namespace tq {

int SystemLocalYear();

} // namespace tq
