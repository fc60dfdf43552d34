// Makes display names unique.
#pragma once

#include <algorithm>

#include "platform/framework/CString.h"

namespace tq {

// Longest display name, in bytes.
inline constexpr int kNameLimit = 64;
// How many numbers are tried for a taken name. Part of the interface: do not change.
inline constexpr int kNameAttempts = 100;

inline CString NumberSuffix(int number) {
  CString suffix;
  suffix.Format("(%d)", number);
  return suffix;
}

// Appends `suffix`, cutting the name at a whole character where both would be too long.
inline CString WithSuffix(const CString& name, const CString& suffix) {
  return name.Left(std::min(name.GetLength(), kNameLimit - suffix.GetLength())) + suffix;
}

// `wanted`, or, while `taken` returns true, the name with "(1)" appended, then "(2)" in its place,
// up to "(100)". A name that already contains the number has every occurrence of it renumbered.
// After the last attempt the candidate is returned although it is taken.
template <typename TAKEN> CString FreeName(const CString& wanted, TAKEN taken) {
  CString name = wanted.Left(std::min(wanted.GetLength(), kNameLimit));
  int number = 1;
  while (taken(name)) {
    const CString suffix = NumberSuffix(number);
    if (name.Find(suffix) < 0) {
      name = WithSuffix(name, suffix);
      continue;
    }
    if (++number > kNameAttempts)
      break;
    const CString next = NumberSuffix(number);
    name.Replace(suffix, next);
    if (name.GetLength() > kNameLimit)
      name = WithSuffix(name.Left(name.GetLength() - next.GetLength()), next);
  }
  return name;
}

// How often a suffix is appended to a taken name. Part of the interface: do not change.
inline constexpr int kSuffixAttempts = 5;

// `wanted`, or, while `taken` returns true, the name with `suffix` appended once, twice, up to five
// times. A name that gets too long is cut in front of its suffixes. After the last attempt the
// candidate is returned although it is taken.
template <typename TAKEN>
CString SuffixedName(const CString& wanted, const CString& suffix, TAKEN taken) {
  CString name = WithSuffix(wanted, CString());
  CString suffixes;
  for (int i = 0; i < kSuffixAttempts && taken(name); ++i) {
    suffixes += suffix;
    name = WithSuffix(wanted, suffixes);
  }
  return name;
}

} // namespace tq
