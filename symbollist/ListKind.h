// The codes by which callers name the manager's arrays of lists.
#pragma once

namespace tq {

// Spoken by terminals and kept in their settings: do not change.
inline constexpr int kUserLists = 1;
inline constexpr int kTradingLists = 6;
inline constexpr int kCloudLists = 8;
// The group type that mirrors the cloud lists. No kind of list: CheckValidSymbolList alone takes it
// for kCloudLists.
inline constexpr int kCloudGroupType = 201;

} // namespace tq
