// The operating system's source of identifiers, behind Guid.h.
#pragma once

#include "platform/Guid.h"

namespace tq {

bool SystemGuid(Guid& guid);

} // namespace tq
