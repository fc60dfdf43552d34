#include "dialogs/DialogMessages.h"

#include "platform/LibraryString.h"
#include "platform/Module.h"
#include "platform/services/tqCommon.h"

namespace tq {

void ShowMessage(unsigned id) {
  tqShowDllMessage(OwnModule(), id, static_cast<unsigned>(Buttons::Ok));
}

void ShowMessageText(const CString& text) {
  tqShowMessageStr(text, static_cast<unsigned>(Buttons::Ok));
}

bool AskUser(unsigned id, Buttons buttons) {
  return tqShowDllMessage(OwnModule(), id, static_cast<unsigned>(buttons)) == kPressedYes;
}

// By hand, since the library's own strings are no format that a compiler could check.
CString FormattedText(unsigned id, const CString& argument) {
  CString format = LibraryString(id);
  const int place = format.Find("%s");
  if (place < 0)
    return format;
  return format.Left(place) + argument + format.Mid(place + 2);
}

} // namespace tq
