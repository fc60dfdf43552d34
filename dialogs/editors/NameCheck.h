// Whether a list can bear the name that the user typed.
#pragma once

#include <functional>

#include "platform/framework/CString.h"
#include "platform/services/tqUI.h"

namespace tq {

// Whether another list has that name.
using NameTest = std::function<bool(const CString& name)>;

// The name in a field, without blanks at its ends. One that is as it was stays so, whatever blanks
// an older version let it have.
CString TypedName(const CCharEdit& field, const CString& before);

// One check each. Those that fail say why in a message box, unless Silent was asked for. The
// editors ask in different orders, so that of two faults they name different ones: both orders are
// meant as they are.
class NameCheck {
public:
  enum class Voice { Spoken, Silent };

  NameCheck(const CWnd& dialog, const CString& name, Voice voice = Voice::Spoken)
      : dialog_(dialog), name_(name), voice_(voice) {}

  bool IsGiven() const;
  bool IsFree(const NameTest& isTaken) const;
  // As the terminal judges names of files, with a message of its own.
  bool IsFileName();
  // Without the mark of a system list.
  bool IsUnreserved() const;
  // The list file can carry it: it is not escaped, and one bad name would cost every list at the
  // next load.
  bool CanBeLoaded() const;

private:
  bool Refuse(unsigned message) const;

  CWnd dialog_;
  const CString& name_;
  Voice voice_;
};

} // namespace tq
