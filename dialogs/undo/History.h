// The steps of an editor: those that were done, and behind them those that were taken back and can
// be done again.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace tq {

template <typename Step> class History {
public:
  std::size_t Done() const { return done_; }
  // A step that was done. What could be done again cannot any more.
  void Add(Step step) {
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
    steps_.push_back(std::move(step));
    ++done_;
  }
  // The latest step that is done; there has to be one.
  Step& Latest() { return steps_[done_ - 1]; }
  // The step that the caller is to take back, or to do again. Null when there is none.
  Step* Back() { return done_ == 0 ? nullptr : &steps_[--done_]; }
  Step* Forth() { return done_ == steps_.size() ? nullptr : &steps_[done_++]; }
  void Clear() {
    steps_.clear();
    done_ = 0;
  }

private:
  std::vector<Step> steps_;
  std::size_t done_ = 0;
};

} // namespace tq
