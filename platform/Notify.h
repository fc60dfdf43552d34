// Notifications to the terminal that lists changed.
#pragma once

#include "platform/services/TQSProxy.h"

namespace tq {

// The terminal's codes: do not change.
inline constexpr long kNotifySymbols = 4; // symbols were added, or names changed
inline constexpr long kNotifyUserLists = 40;
inline constexpr long kNotifyCloudLists = 41;

// A reason that the terminal knows: do not change.
inline constexpr char kReasonNames[] = "ListNameChange";

inline void Notify(long code, const char* reason) {
  TQSCall("", -1, code, reason);
}

} // namespace tq
