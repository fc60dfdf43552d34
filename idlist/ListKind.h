// The kinds of lists that the manager has, as callers name them.
#pragma once

namespace tq {

// Public and persisted in terminals' settings: do not change.
inline constexpr int kUserLists = 1;
inline constexpr int kTradingLists = 6;
inline constexpr int kCloudLists = 8;
// The group type that mirrors the cloud lists. No kind of list.
inline constexpr int kCloudGroupType = 201;

// The kind whose identifiers a new list's is checked against: there alone the type of the cloud
// groups stands for the cloud lists.
constexpr int KindOfIds(int kind) {
  return kind == kCloudGroupType ? kCloudLists : kind;
}

} // namespace tq
