// The library and a peer doing the same work, measured side by side.
#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

namespace bench {

// Processor time of this thread since its start, in seconds.
double ProcessorSeconds();

// Processor time that `work` takes, for work that never waits: other programs do not stretch it.
template <typename Work> double Computing(Work work) {
  const double start = ProcessorSeconds();
  work();
  return ProcessorSeconds() - start;
}

// Wall-clock time that `work` takes, for work that waits for the disk.
template <typename Work> double Elapsed(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct Figure {
  double library = 0; // median seconds
  double peer = 0;    // median seconds
  double ratio = 0;   // median of the ratios, library over peer, of each repetition
  double least = 0;   // the spread of those ratios
  double most = 0;
  std::size_t repetitions = 0;
};

Figure Summarise(const std::vector<double>& library, const std::vector<double>& peer);

// Calls `library` and `peer` in turns; each does the work once and returns its seconds. Both see
// the same machine: what slows a repetition slows both halves of it. A first turn, which warms
// caches and pages, is not counted.
template <typename Library, typename Peer>
Figure Compare(std::size_t repetitions, Library library, Peer peer) {
  library();
  peer();
  std::vector<double> libraryTimes;
  std::vector<double> peerTimes;
  for (std::size_t i = 0; i < repetitions; ++i) {
    libraryTimes.push_back(library());
    peerTimes.push_back(peer());
  }
  return Summarise(libraryTimes, peerTimes);
}

} // namespace bench
