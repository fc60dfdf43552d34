// Whether versions of headers and libraries fit together.
#pragma once

namespace tq {

// Whether what was made for `wanted` works with a library of `present`: of the same major version,
// and not older in its minor one. Versions as in TQSymbolVersion.h.
constexpr bool VersionFits(int wanted, int present) {
  constexpr int kMajor = 10000;
  constexpr int kMinor = 100;
  return wanted > 0 && wanted / kMajor == present / kMajor && wanted / kMinor <= present / kMinor;
}

} // namespace tq
