#include "symbollist/file/LoadReport.h"

#include <vector>

#include "recovery/DocumentFaults.h"
#include "recovery/ListRecovery.h"

namespace tq {
namespace {

TQLoadState StateOf(LoadOutcome outcome) {
  switch (outcome) {
  case LoadOutcome::Whole:
    return TQLoadWhole;
  case LoadOutcome::Empty:
    return TQLoadEmpty;
  case LoadOutcome::Missing:
    return TQLoadMissing;
  case LoadOutcome::TooLarge:
  case LoadOutcome::Unreadable:
    return TQLoadUnreadable;
  case LoadOutcome::Damaged:
  case LoadOutcome::NoListFile:
  case LoadOutcome::EndedEarly:
    return TQLoadDamaged;
  case LoadOutcome::NotTried:
    break;
  }
  return TQLoadNever;
}

void Note(const Finding& finding, LoadReport& report) {
  report.line = static_cast<int>(finding.line);
  report.reason.Format("line %d, column %d: %s", report.line, static_cast<int>(finding.column),
                       std::string(WordsOf(finding.fault)).c_str());
}

// Where a document breaks off.
void NoteFault(const std::string& bytes, LoadReport& report) {
  const std::vector<Finding> faults = DocumentFaults(bytes, 1);
  if (!faults.empty())
    Note(faults.front(), report);
}

// The list that ended the load of a well-formed document.
void NoteBadList(const std::string& bytes, LoadReport& report) {
  ListRecovery recovery(bytes);
  RecoveredList list;
  while (recovery.Next(list)) {
    for (const Finding& finding : list.findings) {
      if (finding.fault == Fault::NoId)
        return Note(finding, report);
    }
  }
}

} // namespace

const char* WordsOf(LoadOutcome outcome) {
  switch (outcome) {
  case LoadOutcome::Missing:
    return "does not exist";
  case LoadOutcome::TooLarge:
    return "is larger than any file that is read";
  case LoadOutcome::Unreadable:
    return "cannot be read";
  case LoadOutcome::Damaged:
    return "is damaged: no well-formed document";
  case LoadOutcome::NoListFile:
    return "is no list file";
  case LoadOutcome::EndedEarly:
    return "has a bad list: it and those behind it are not loaded";
  case LoadOutcome::Whole:
  case LoadOutcome::Empty:
  case LoadOutcome::NotTried:
    break;
  }
  return "";
}

const char* WhyUnknown(LoadOutcome outcome) {
  switch (outcome) {
  case LoadOutcome::TooLarge:
    return "it was too large to be loaded";
  case LoadOutcome::Unreadable:
    return "it could not be read when it was loaded";
  case LoadOutcome::Damaged:
    return "it is damaged";
  case LoadOutcome::NoListFile:
    return "it is no list file";
  case LoadOutcome::EndedEarly:
    return "a bad list ended its load";
  case LoadOutcome::Whole:
  case LoadOutcome::Empty:
  case LoadOutcome::Missing:
  case LoadOutcome::NotTried:
    break;
  }
  return "the lists in memory do not come from it";
}

LoadReport ReportOf(LoadOutcome outcome, const std::string& bytes) {
  LoadReport report;
  report.state = StateOf(outcome);
  report.reason = WordsOf(outcome);
  if (outcome == LoadOutcome::Damaged)
    NoteFault(bytes, report);
  else if (outcome == LoadOutcome::EndedEarly)
    NoteBadList(bytes, report);
  return report;
}

} // namespace tq
