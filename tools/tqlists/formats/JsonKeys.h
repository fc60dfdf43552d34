// The names in the JSON format, docs/tqlists.md.
#pragma once

namespace tqlists {

inline constexpr char kKeyDefault[] = "default"; // the list shown first, from 0; null for none
inline constexpr char kKeyLists[] = "lists";
inline constexpr char kKeyId[] = "id";
inline constexpr char kKeyName[] = "name";
inline constexpr char kKeySymbols[] = "symbols";
inline constexpr char kKeyHeading[] = "heading";

} // namespace tqlists
