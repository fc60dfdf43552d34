#include "dialogs/editors/NameCheck.h"

#include "dialogs/DialogMessages.h"
#include "platform/LibraryString.h"
#include "platform/Text.h"
#include "platform/services/tqUtil.h"
#include "symbollist/TextFaults.h"

namespace tq {

CString TypedName(const CCharEdit& field, const CString& before) {
  const CString text = field.GetText();
  return text == before ? text : field.GetInput();
}

bool NameCheck::IsGiven() const {
  return !Trimmed(ViewOf(name_)).empty() || Refuse(kMessageNoName);
}

bool NameCheck::IsFree(const NameTest& isTaken) const {
  return !isTaken(name_) || Refuse(kMessageNameTaken);
}

bool NameCheck::IsFileName() {
  return CCheckFileName::IsValidName(&dialog_, name_, voice_ == Voice::Spoken ? 1 : 0) != 0;
}

bool NameCheck::IsUnreserved() const {
  const CString mark = LibraryString(kStringSystemList);
  if (name_.Find(mark) < 0)
    return true;
  if (voice_ == Voice::Spoken)
    ShowMessageText(FormattedText(kMessageReserved, mark));
  return false;
}

bool NameCheck::CanBeLoaded() const {
  return (FaultsOfName(name_) & (TQTextUnloadable | TQTextBroken)) == 0 ||
         Refuse(kMessageUnloadable);
}

bool NameCheck::Refuse(unsigned message) const {
  if (voice_ == Voice::Spoken)
    ShowMessage(message);
  return false;
}

} // namespace tq
