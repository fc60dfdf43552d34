// Notifications to the terminal that lists changed.
#pragma once

#include "platform/interface/TQSymbolNames.h"
#include "platform/services/TQSProxy.h"

namespace tq {

inline constexpr long kNotifySymbols = TQNotifySymbols;
inline constexpr long kNotifyUserLists = TQNotifyUserLists;
inline constexpr long kNotifyCloudLists = TQNotifyCloudLists;

inline void Notify(long code, const char* reason) {
  TQSCall("", -1, code, reason);
}

} // namespace tq
