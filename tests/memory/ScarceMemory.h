// Ways for memory to run out, in a process of its own.
#pragma once

#include <functional>
#include <string>

// How a child process ended that had too little memory.
enum class Ending {
  Done,    // it came to its end
  Stopped, // aborted, as tq::OutOfMemory and std::terminate do
  Thrown,  // an exception left the operations
  Crashed, // any other way
};

using Work = std::function<void()>;

// Does the work in a child whose address space may grow by `bytes` and no more.
Ending RunWithin(std::size_t bytes, const Work& work);

// Does it in a child in which allocation number `number`, from 0, by operator new fails: all that
// follow too, or none of them (`once`). Done also when there were fewer: see CountAllocations.
Ending RunWithout(long number, bool once, const Work& work);

// How many allocations by operator new the work makes.
long CountAllocations(const Work& work);
