// Any bytes as a sequence of operations of the interface with their arguments, services that turn
// hostile on the way, and operations called from within services. In the end the lists must be
// whole, and what is saved must load again as the same lists.
#pragma once

#include <string>

#include "fuzz/HostileServices.h"
#include "fuzz/Input.h"
#include "fuzz/SequenceReader.h"
#include "tests/operations/Subject.h"

namespace fuzz {

class Sequence {
public:
  explicit Sequence(std::string_view bytes) : input_(bytes) {}

  std::string Run() {
    standin::OnEachCall([this](std::string_view) { OnCall(); });
    while (!input_.IsDone() && steps_ < kMostSteps)
      Step();
    standin::OnEachCall({});
    StopFailing();
    subject_.Disk().Refuse(false);
    std::string broken = subject_.Broken();
    subject_.End();
    return broken.empty() ? EndOfServices() : broken;
  }

private:
  static constexpr int kMostSteps = 40;
  static constexpr int kDeepest = 3;

  void Step() {
    const operations::Table& all = operations::All();
    const std::size_t number = input_.Byte() + 256u * input_.Byte();
    ChangeServices(input_, refuse_);
    subject_.Disk().Refuse(refuse_);
    const unsigned before = callsToNested_;
    callsToNested_ = input_.Byte();
    ++steps_;
    ++depth_;
    all[number % all.size()].run(subject_.Manager(), input_.Arguments());
    --depth_;
    callsToNested_ = before;
  }

  // The terminal handles a message inside the service call that the previous step chose.
  void OnCall() {
    if (depth_ == 0 || depth_ > kDeepest || callsToNested_ == 0 || --callsToNested_ != 0 ||
        input_.IsDone() || steps_ >= kMostSteps)
      return;
    Step();
  }

  SequenceReader input_;
  operations::Subject subject_;
  bool refuse_ = false;
  int steps_ = 0;
  int depth_ = 0;
  unsigned callsToNested_ = 0;
};

inline std::string CheckSequence(const unsigned char* data, std::size_t size) {
  operations::PrepareServices();
  const std::string_view bytes = Begin(data, size);
  return Sequence(bytes).Run();
}

} // namespace fuzz
