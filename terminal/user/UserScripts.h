// What users do in the dialogs that open next.
#pragma once

#include <functional>
#include <string>

#include "terminal/user/User.h"

namespace standin {

using UserScript = std::function<void(User&)>;
// Told why a script does not fit its dialog, in one text.
using Complaint = void (*)(const std::string& why);

// The script of the next dialog that opens and has none yet: those of dialogs that open each other
// are given in the order of opening. A dialog without a script, and one that its script leaves up
// without LeaveUp, are cancelled with a complaint: to that of the latest call, which may be null.
void WhenDialogOpens(UserScript script, Complaint complain);
// Scripts that no dialog has opened for; they are forgotten.
size_t TakeUnusedScripts();

} // namespace standin
