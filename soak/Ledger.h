// What a life notes as it goes, in memory that it shares with the parent: it is there after a kill.
//
// A note of a file is made before the file is touched, so that of every file the parent knows what
// it held before and what it may hold since.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <string_view>

namespace soak {

enum class Family { Lists, Groups, Cloud, Accounts, Symbols, Dialogs };
inline constexpr int kFamilies = 6;
inline constexpr const char* kFamilyNames[kFamilies] = {"lists",    "groups",  "cloud",
                                                        "accounts", "symbols", "dialogs"};

enum class Count {
  ServiceFaults, // calls of services that were made to fail
  DiskFaults,    // steps of saving and reading that were made to fail
  FullDisks,     // writes that found no room
  Reentries,     // operations called from within a call of a service, or beside an open dialog
  UserActions,   // clicks, keys and texts in dialogs
  Loads,         // list files read
  Saves,         // files saved
  RefusedSaves,  // saves that failed and left the file as it was
  Intrusions,    // list files written by another program
};
inline constexpr int kCounts = 9;

// Written by one process at a time.
class Counter {
public:
  void Add() { value_.store(Value() + 1, std::memory_order_relaxed); }
  std::uint64_t Value() const { return value_.load(std::memory_order_relaxed); }

private:
  std::atomic<std::uint64_t> value_{0};
};

using Print = std::uint64_t; // of the bytes of a file
inline constexpr Print kNoFile = 0;

// FNV-1a, never 0.
inline Print PrintOf(std::string_view bytes) {
  Print print = 14695981039346656037u;
  for (const char byte : bytes)
    print = (print ^ static_cast<unsigned char>(byte)) * 1099511628211u;
  return print | 1u;
}

// One file.
struct FileNote {
  std::array<char, 260> path;       // as the library joins it
  std::atomic<Print> settled;       // what it holds
  std::atomic<Print> wanted;        // what it may hold instead
  std::atomic<bool> isBeingWritten; // between the two
};

struct Ledger {
  static constexpr int kMostFiles = 96;

  std::array<Counter, kFamilies> operations;
  std::array<Counter, kCounts> counts;
  std::array<FileNote, kMostFiles> files;
  std::atomic<int> fileCount;
  std::atomic<std::uint64_t> step;
  std::array<char, 160> operation; // the latest
  std::array<char, 1500> loss;     // empty: none

  void Add(Count what) { counts[static_cast<std::size_t>(what)].Add(); }
  std::uint64_t Value(Count what) const { return counts[static_cast<std::size_t>(what)].Value(); }
  std::uint64_t Operations() const;

  // Of the first loss of a life.
  void NoteLoss(std::string_view text);
  void NoteOperation(std::string_view signature);
  // The note of that file, made when there is none yet; null when there is no room for it.
  FileNote* NoteOf(std::string_view path);
  bool IsSaving() const;
  // Before a life: no files, no loss.
  void Clear();
};
static_assert(std::atomic<Print>::is_always_lock_free);

} // namespace soak
