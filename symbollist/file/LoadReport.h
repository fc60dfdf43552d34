// What the load of a list file came to, for the terminal: GetLoadState's answer.
#pragma once

#include <string>

#include "platform/framework/CString.h"
#include "platform/interface/TQSymbolFiles.h"
#include "symbollist/file/KeptFiles.h"

namespace tq {

struct LoadReport {
  TQLoadState state = TQLoadNever;
  int line = 0;   // of the damage, from 1; 0: none, or no one place
  CString reason; // in words, empty when there is none
};

// Why a file did not give all of its lists: "is damaged", behind the name of a file. Empty for one
// that did, and for one that was never loaded.
const char* WordsOf(LoadOutcome outcome);
// The same for a log line, of a file that is copied before it is overwritten: "it is damaged",
// behind "is kept as <name>: ".
const char* WhyUnknown(LoadOutcome outcome);

// `bytes`, what the file holds, is looked at only when it is damaged.
LoadReport ReportOf(LoadOutcome outcome, const std::string& bytes);

} // namespace tq
