// How a run of the program ends.
#pragma once

#include <stdexcept>
#include <string>

namespace tqlists {

// The process's exit codes. Scripts go by them: do not change.
inline constexpr int kGood = 0;
inline constexpr int kFindings =
    1; // something is wrong with a file, was mended or lost, or differs
inline constexpr int kUsage = 2;
inline constexpr int kTrouble = 3; // a file cannot be read or written, or memory has run out

// Ends the run. An empty text ends it without a word.
class Ending : public std::runtime_error {
public:
  Ending(int code, const std::string& words) : std::runtime_error(words), code_(code) {}
  int Code() const { return code_; }

private:
  int code_;
};

} // namespace tqlists
