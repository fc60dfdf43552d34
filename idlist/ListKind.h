// The kinds of lists that the manager has, as callers name them.
#pragma once

#include "platform/interface/TQSymbolNames.h"

namespace tq {

inline constexpr int kUserLists = TQListKindUser;
inline constexpr int kTradingLists = TQListKindTrading;
inline constexpr int kCloudLists = TQListKindCloud;
// The group type that mirrors the cloud lists. No kind of list.
inline constexpr int kCloudGroupType = TQGroupTypeCloud;

// The kind whose identifiers a new list's is checked against: there alone the type of the cloud
// groups stands for the cloud lists.
constexpr int KindOfIds(int kind) {
  return kind == kCloudGroupType ? kCloudLists : kind;
}

} // namespace tq
