// What compilers have each in their own words, and what one without them does instead. No other
// file asks which compiler it is read by.
#pragma once

// TQ_EXPORT and TQ_IMPORT stand in front of what a module shows to others, in its own build and in
// theirs. Elsewhere than on Windows both are the same.
#if defined(_WIN32)
#define TQ_EXPORT __declspec(dllexport)
#define TQ_IMPORT __declspec(dllimport)
#elif defined(__GNUC__)
#define TQ_EXPORT __attribute__((visibility("default")))
#define TQ_IMPORT TQ_EXPORT
#else
#define TQ_EXPORT
#define TQ_IMPORT
#endif

// TQ_SERVICE_API stands in front of what a service of the terminal provides. Who builds a service
// defines TQ_SERVICE_BUILD for its sources, and the service's module then shows these names without
// a list of exports; a service that has such a list (a .def file) needs neither. For whoever calls
// the service it is empty.
#if defined(TQ_SERVICE_BUILD)
#define TQ_SERVICE_API TQ_EXPORT
#else
#define TQ_SERVICE_API
#endif

// TQ_PRINTF_MEMBER behind a printf-style member lets the compiler hold the arguments against the
// format, which is the member's first argument (the object counts as one). With MinGW the format is
// the C standard's, not the system library's.
#if defined(__MINGW32__) && !defined(__clang__)
#define TQ_PRINTF_MEMBER __attribute__((format(gnu_printf, 2, 3)))
#elif defined(__GNUC__)
#define TQ_PRINTF_MEMBER __attribute__((format(printf, 2, 3)))
#else
#define TQ_PRINTF_MEMBER
#endif

// TQ_NOINLINE in front of a function keeps it out of its callers. TQ_RARE does so too, for one that
// is hardly ever called: the way to it is laid aside.
#if defined(__GNUC__)
#define TQ_NOINLINE __attribute__((noinline))
#define TQ_RARE __attribute__((noinline, cold))
#elif defined(_MSC_VER)
#define TQ_NOINLINE __declspec(noinline)
#define TQ_RARE TQ_NOINLINE
#else
#define TQ_NOINLINE
#define TQ_RARE
#endif

namespace tq {

// Asks the processor to fetch what lies at `address`, for reading soon. Only time depends on it;
// the address may be any.
#if defined(__GNUC__)
inline void Prefetch(const void* address) {
  __builtin_prefetch(address);
}
#else
inline void Prefetch(const void*) {}
#endif

} // namespace tq
