#include "platform/diagnostics/Operation.h"

#include <utility>

namespace tq {
namespace {

TQProblem lastProblem = TQProblemNone;
CString lastText;

bool GivesWay(TQProblem noted) {
  return noted == TQProblemNone || noted == TQProblemFileKept || noted == TQProblemFileShared ||
         noted == TQProblemFileUnloadable || noted == TQProblemLeftOut ||
         noted == TQProblemMisuse || noted == TQProblemBroken;
}

} // namespace

Operation* Operation::innermost_ = nullptr;

Operation::~Operation() {
  innermost_ = outer_;
  lastProblem = problem_;
  lastText = std::move(text_);
}

void Operation::TakeOverProblem() {
  if (innermost_ == nullptr || lastProblem == TQProblemNone || !GivesWay(innermost_->problem_))
    return;
  innermost_->problem_ = lastProblem;
  innermost_->text_ = lastText;
}

int ProblemNote::Note(TQProblem problem, const CString& text) {
  Operation* const running = Operation::innermost_;
  return running == nullptr ? 0 : NoteWhole(problem, CString(running->name_) + ": " + text);
}

int ProblemNote::NoteWhole(TQProblem problem, const CString& text) {
  Operation* const running = Operation::innermost_;
  if (running == nullptr || !GivesWay(running->problem_))
    return 0;
  running->problem_ = problem;
  running->text_ = text;
  return 0;
}

TQProblem LastProblem(CString& text) {
  text = lastText;
  return lastProblem;
}

} // namespace tq
