// Lives in processes of their own, which can be killed at any moment.
#pragma once

#include <memory>
#include <string>

#include "soak/Ledger.h"
#include "soak/Life.h"

namespace soak {

// The ledger in memory that parent and child share.
class SharedLedger {
public:
  virtual ~SharedLedger() = default;
  virtual Ledger& Get() = 0;
};
// Null when the system has no such memory.
std::unique_ptr<SharedLedger> MakeSharedLedger();

struct LifeEnd {
  bool killed = false;
  bool hung = false; // it was to end by itself, and did not
  int code = 0;      // of the process, when it was not killed
};

inline constexpr int kNotKilled = -1;

// Runs a life in a process of its own and waits for its end. Kills it after so many microseconds,
// unless kNotKilled.
LifeEnd RunLife(SharedLedger& ledger, const LifeOrder& order, int killAfter);

// The life itself, in this process: 0, or 1 after a loss.
int Live(Ledger& ledger, const LifeOrder& order);
// On Windows a child is this program started again; runs that life when the command line says so.
bool IsChild(int argc, char** argv, int& code);

// How long a child may take to end by itself, in seconds.
inline constexpr int kPatience = 120;

} // namespace soak
