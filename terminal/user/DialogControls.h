// The controls of the library's dialogs, for users who have to find them. The numbers are those of
// the templates; several dialogs use one number for different things.
#pragma once

namespace standin::controls {

inline constexpr int kDone = 1;
inline constexpr int kCancel = 2;

// Of the lists editors, and where the names are the same of the dialogs that add symbols.
inline constexpr int kLists = 781;
inline constexpr int kNewList = 801;
inline constexpr int kDeleteList = 803;
inline constexpr int kRename = 804;
inline constexpr int kMakeDefault = 805;
inline constexpr int kListsDone = 806;

// Of the content editors.
inline constexpr int kRows = 781;
inline constexpr int kRowDown = 802;
inline constexpr int kMarket = 761;
inline constexpr int kGroup = 762;
inline constexpr int kCode = 741;
inline constexpr int kFind = 805;
inline constexpr int kResults = 782;
inline constexpr int kName = 742;
inline constexpr int kHeading = 743;
inline constexpr int kAddHeading = 808;

// Of the dialogs that add symbols to lists.
inline constexpr int kAddSymbol = 803;

// Of the search, whose boxes and field are those of the content editors.
inline constexpr int kFound = 781;

// Of the selection.
inline constexpr int kSource = 761;
inline constexpr int kItems = 781;

// Of the searches for series.
inline constexpr int kSeries = 781;

} // namespace standin::controls
