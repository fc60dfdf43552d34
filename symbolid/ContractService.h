// What the symbol-data service knows about a contract beyond its code.
#pragma once

#include <string_view>

#include "platform/framework/CString.h"

namespace tq {

// The service's own id of a contract code; empty when it has none.
CString ServiceId(const CString& code);

// The week that a contract expires in, and its strike.
struct ContractWeek {
  int number = 0; // 0 when there is none
  CString text;   // as written behind a month: "W2"
  CString strike; // of an option; may have decimals, or more digits than fit into the code
};

// By the service's own id. Non-zero when the service has a record, even one without a week.
int ReadWeek(const CString& serviceId, ContractWeek& week);
// By the contract's code. Empty when the service does not know the code.
ContractWeek WeekOfCode(const CString& code);

// The two parts of an option's short name and a trailing blank, by the service's own id. 0, with
// `name` empty, unless the service has exactly one record and it contains both parts.
int ReadShortName(const CString& serviceId, CString& name);

} // namespace tq
