// The parent: one life after the other on the same data directory, most of them killed, and a look
// at the files after each.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "soak/Options.h"
#include "soak/Process.h"
#include "soak/RawFiles.h"

namespace soak {

struct Tally {
  std::uint64_t lives = 0;
  std::uint64_t kills = 0;
  std::uint64_t killsInSaves = 0;
  std::uint64_t losses = 0;
};

class Soak {
public:
  explicit Soak(const Options& options);
  ~Soak();
  Soak(const Soak&) = delete;
  Soak& operator=(const Soak&) = delete;

  // Prints what is lost and, at the end, the figures. The exit code of the program.
  int Run();

private:
  bool IsDone() const;
  void LiveOnce();
  void StartAnew();
  // Another program, while the terminal does not run.
  void Intrude();
  void NoteFiles();
  void Examine(const LifeOrder& order, const LifeEnd& end);
  std::string FirstLoss(const LifeEnd& end);
  void TellLoss(const LifeOrder& order, const std::string& what);
  void KeepFiles(const std::string& kept) const;
  void ShowProgress();
  double Seconds() const;

  const Options options_;
  Random random_;
  const std::unique_ptr<SharedLedger> shared_;
  const std::string directory_;
  Contents before_; // the present life
  Tally tally_;
  const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  std::chrono::steady_clock::time_point shown_ = start_;
};

// One life again in this process; each operation is printed.
int Replay(const Options& options);

} // namespace soak
