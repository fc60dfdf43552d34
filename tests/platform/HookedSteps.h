// The operating system's save steps with a hook before and after each.
#pragma once

#include "platform/SaveSteps.h"

#include <functional>
#include <utility>

namespace tqtest {

enum class Step {
  OpenTarget,
  OpenTemporary,
  WriteTemporary,
  FlushTemporary,
  ReplaceTarget,
  FlushDirectory,
  RemoveTemporary,
  ReserveTarget,
  WriteTarget,
  FlushTarget,
  CloseTarget,
  RemoveNewTarget,
};

inline constexpr Step kAllSteps[] = {
    Step::OpenTarget,    Step::OpenTemporary,  Step::WriteTemporary,  Step::FlushTemporary,
    Step::ReplaceTarget, Step::FlushDirectory, Step::RemoveTemporary, Step::ReserveTarget,
    Step::WriteTarget,   Step::FlushTarget,    Step::CloseTarget,     Step::RemoveNewTarget,
};

// What the hook decides about a step.
enum class Fate {
  Proceed,
  Fail,   // it is not run and fails
  Refuse, // it is not run, as if the system did not allow it
  Short,  // a write writes half
  Skip,   // it is not run and succeeds
};

class HookedSteps : public tq::SaveSteps {
public:
  using Hook = std::function<Fate(Step)>;
  HookedSteps(const char* path, Hook before, Hook after = nullptr)
      : real_(tq::MakeSaveSteps(path)), before_(std::move(before)), after_(std::move(after)) {}

  tq::StepResult OpenTarget() override {
    return Take(Step::OpenTarget, [&] { return real_->OpenTarget(); });
  }
  tq::StepResult OpenTemporary() override {
    return Take(Step::OpenTemporary, [&] { return real_->OpenTemporary(); });
  }
  std::size_t WriteTemporary(const void* bytes, std::size_t size) override {
    return Write(Step::WriteTemporary, size,
                 [&](std::size_t part) { return real_->WriteTemporary(bytes, part); });
  }
  bool FlushTemporary() override {
    return Try(Step::FlushTemporary, [&] { return real_->FlushTemporary(); });
  }
  tq::StepResult ReplaceTarget() override {
    return Take(Step::ReplaceTarget, [&] { return real_->ReplaceTarget(); });
  }
  void FlushDirectory() override {
    Try(Step::FlushDirectory, [&] { return real_->FlushDirectory(), true; });
  }
  void RemoveTemporary() override {
    Try(Step::RemoveTemporary, [&] { return real_->RemoveTemporary(), true; });
  }
  bool ReserveTarget(std::size_t size) override {
    return Try(Step::ReserveTarget, [&] { return real_->ReserveTarget(size); });
  }
  std::size_t WriteTarget(const void* bytes, std::size_t size) override {
    return Write(Step::WriteTarget, size,
                 [&](std::size_t part) { return real_->WriteTarget(bytes, part); });
  }
  bool FlushTarget(std::size_t size) override {
    return Try(Step::FlushTarget, [&] { return real_->FlushTarget(size); });
  }
  // A close that fails has closed.
  bool CloseTarget() override {
    const Fate fate = before_(Step::CloseTarget);
    const bool closed = real_->CloseTarget();
    After(Step::CloseTarget);
    return closed && fate == Fate::Proceed;
  }
  void RemoveNewTarget() override {
    Try(Step::RemoveNewTarget, [&] { return real_->RemoveNewTarget(), true; });
  }

private:
  void After(Step step) {
    if (after_)
      after_(step);
  }
  template <typename Call> tq::StepResult Take(Step step, const Call& call) {
    const Fate fate = before_(step);
    if (fate != Fate::Proceed)
      return fate == Fate::Refuse ? tq::StepResult::Refused : tq::StepResult::Failed;
    const tq::StepResult result = call();
    After(step);
    return result;
  }
  template <typename Call> bool Try(Step step, const Call& call) {
    const Fate fate = before_(step);
    const bool result = fate == Fate::Skip || (fate == Fate::Proceed && call());
    After(step);
    return result;
  }
  template <typename Call> std::size_t Write(Step step, std::size_t size, const Call& call) {
    const Fate fate = before_(step);
    const std::size_t written = fate == Fate::Proceed || fate == Fate::Short
                                    ? call(fate == Fate::Short ? size / 2 : size)
                                    : 0;
    After(step);
    return written;
  }

  const std::unique_ptr<tq::SaveSteps> real_;
  const Hook before_;
  const Hook after_;
};

} // namespace tqtest
