// What the symbol-data service knows of a contract beyond its code.
#pragma once

#include <string_view>

#include "platform/framework/CString.h"

namespace tq {

// The service's own id of a contract code; empty when it has none.
CString ServiceId(const CString& code);

// The week that a contract expires in, and its strike.
struct ContractWeek {
  int number = 0; // 0 when there is none
  CString text;   // as it stands behind a month: "W2"
  CString strike; // of an option: it may have decimals, or more digits than the code has room for
};

// By the service's own id. Non-zero when the service has a record of it, even one that says nothing
// of a week.
int ReadWeek(const CString& serviceId, ContractWeek& week);
// By the contract's code. Empty when the service does not know it.
ContractWeek WeekOfCode(const CString& code);

// The two parts of an option's short name and a blank, by the service's own id. 0, with `name`
// empty, unless the service has exactly one record and both parts in it.
int ReadShortName(const CString& serviceId, CString& name);

} // namespace tq
