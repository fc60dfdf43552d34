// What the program does, a function for each verb. Each returns the exit code, or throws an Ending;
// nothing of a file is there then that was to be written.
#pragma once

#include "tools/tqlists/files/Streams.h"
#include "tools/tqlists/verbs/Request.h"
#include "tools/tqlists/verbs/Session.h"

namespace tqlists {

int Show(Session& session);
int Check(Session& session);
int Repair(Session& session);
int Convert(Session& session);
int Diff(Session& session);
// Merge and import differ in what they expect to read.
int Merge(Session& session);
int Import(Session& session);
int Export(Session& session);

} // namespace tqlists
