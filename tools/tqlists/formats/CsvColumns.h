// The columns of the CSV format, docs/tqlists.md.
#pragma once

namespace tqlists {

inline constexpr char kColumnId[] = "list_id";
inline constexpr char kColumnName[] = "list_name";
inline constexpr char kColumnDefault[] = "default";
inline constexpr char kColumnPosition[] = "position"; // within the list, from 1; not read
inline constexpr char kColumnSymbol[] = "symbol";
inline constexpr char kColumnHeading[] = "heading";
inline constexpr char kYes[] = "yes"; // the list is shown first

} // namespace tqlists
