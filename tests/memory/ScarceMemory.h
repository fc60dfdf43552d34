// Runs work in a child process that runs out of memory.
#pragma once

#include <functional>
#include <string>

// How the child process ended.
enum class Ending {
  Done,    // returned
  Stopped, // aborted, as tq::OutOfMemory and std::terminate do
  Thrown,  // an exception left an operation
  Crashed, // anything else
};

using Work = std::function<void()>;

// Runs the work in a child whose address space may grow by at most `bytes`.
Ending RunWithin(std::size_t bytes, const Work& work);

// Runs the work in a child where allocation `number` (from 0) by operator new fails, and all later
// ones too unless `once`. Also Done when there are fewer allocations: see CountAllocations.
Ending RunWithout(long number, bool once, const Work& work);

// The number of allocations by operator new that the work makes.
long CountAllocations(const Work& work);
