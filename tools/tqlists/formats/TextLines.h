// The lines of the text format, docs/tqlists.md.
#pragma once

#include <string_view>

namespace tqlists {

inline constexpr std::string_view kListLine = "# List:";
inline constexpr std::string_view kIdLine = "# Id:";
inline constexpr std::string_view kDefaultLine = "# Default";
inline constexpr std::string_view kHeadingLine = "###";
inline constexpr char kComment = '#';
// In front of an entry that is to be taken as it stands.
inline constexpr char kVerbatim = '\\';

} // namespace tqlists
