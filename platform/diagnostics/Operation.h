// The operation of the interface that runs, and what went wrong in it.
//
// Each operation that can fail for a reason begins with an Operation, and whatever it calls notes
// the reason. What is told afterwards is that of the operation that returned last: one that the
// terminal calls from within another one, out of a service, has a problem of its own and leaves
// that of the outer one alone.
#pragma once

#include "platform/Compiler.h"
#include "platform/diagnostics/DebugMode.h"
#include "platform/framework/CString.h"
#include "platform/interface/TQSymbolProblem.h"

namespace tq {

class Operation {
public:
  // `name` is a literal. The texts are those that the caller handed over, and `names` their names,
  // joined by ",": the debug mode looks at them.
  template <typename... Texts>
  explicit Operation(const char* name, const char* names = "", const Texts&... texts)
      : name_(name), outer_(innermost_) {
    innermost_ = this;
    CheckCall(name, names, texts...);
  }
  Operation(const Operation&) = delete;
  Operation& operator=(const Operation&) = delete;
  // From here on its problem, or that there was none, is what LastProblem tells.
  ~Operation();

  // Notes the problem of the latest operation that returned, for it was a part of this one.
  static void TakeOverProblem();

  // Notes what is wrong with the operation that runs, behind its name. Of several the first one is
  // kept, for the others mostly follow from it; what kept nothing from being done (a copy of a
  // file, what the debug mode finds) gives way to any other. Without an operation nothing happens.
  static void Note(TQProblem problem, const CString& text);
  // The same for a text that names the operation itself.
  static void NoteWhole(TQProblem problem, const CString& text);

private:
  const char* name_;
  Operation* outer_;
  TQProblem problem_ = TQProblemNone;
  CString text_;

  static Operation* innermost_;
};

// Operation::Note with a printf-style text: user text is an argument. Returns 0, which is what most
// operations answer then.
template <typename... Arguments>
int NoteProblem(TQProblem problem, const char* format, Arguments... arguments) {
  CString text;
  text.Format(format, arguments...);
  Operation::Note(problem, text);
  return 0;
}
inline int NoteProblem(TQProblem problem, const char* text) {
  Operation::Note(problem, text);
  return 0;
}

// That of the latest operation that returned; its text begins with the operation's name.
TQProblem LastProblem(CString& text);

} // namespace tq
