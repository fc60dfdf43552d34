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
  if (lastProblem != TQProblemNone)
    NoteWhole(lastProblem, lastText);
}

void Operation::Note(TQProblem problem, const CString& text) {
  if (innermost_ != nullptr)
    NoteWhole(problem, CString(innermost_->name_) + ": " + text);
}

void Operation::NoteWhole(TQProblem problem, const CString& text) {
  if (innermost_ == nullptr || !GivesWay(innermost_->problem_))
    return;
  innermost_->problem_ = problem;
  innermost_->text_ = text;
}

TQProblem LastProblem(CString& text) {
  text = lastText;
  return lastProblem;
}

} // namespace tq
