// Display names that no list has yet.
#pragma once

#include <algorithm>

#include "platform/framework/CString.h"

namespace tq {

// Longest display name, in bytes.
inline constexpr int kNameLimit = 64;
// Numbers that are tried for a taken name. Part of the interface: the name after it is refused.
inline constexpr int kNameAttempts = 100;

inline CString NumberSuffix(int number) {
  CString suffix;
  suffix.Format("(%d)", number);
  return suffix;
}

// The name with `suffix` behind it, shortened in front of the suffix at a whole character where the
// two would not fit.
inline CString WithSuffix(const CString& name, const CString& suffix) {
  return name.Left(std::min(name.GetLength(), kNameLimit - suffix.GetLength())) + suffix;
}

// `name`, or where `taken` says yes, the name with "(1)" behind it, then with "(2)" in the place of
// that, and so on up to "(100)"; a name that has the number already is renumbered, everywhere in
// it. After the last attempt the candidate comes back although it is taken.
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

// Times that a suffix is put behind a taken name. Part of the interface.
inline constexpr int kSuffixAttempts = 5;

// `name`, or where `taken` says yes, the name with `suffix` behind it, then with another behind
// that, up to five. Names are tried as they are kept: one that does not fit is shortened in front
// of its suffixes. After the last attempt the candidate comes back although it is taken.
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
