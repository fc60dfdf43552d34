// The attributes that only trading data has, for both ways of asking.
#pragma once

#include "platform/framework/CString.h"

namespace standin {

// False, with `value` as it was, for an unknown symbol and for what trading data does not tell.
bool ReadTradeField(int field, int exchId, const char* code, CString& value);

} // namespace standin
