// The attributes that only trading data has, for both ways of asking.
#pragma once

#include "platform/framework/CString.h"

namespace standin {

// False, with `value` unchanged, for unknown symbols and fields.
bool ReadTradeField(int field, int exchId, const char* code, CString& value);

} // namespace standin
