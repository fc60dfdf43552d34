// The operating system's source of identifiers, behind Guid.h.
#pragma once

#include "platform/System.h"

namespace tq {

bool SystemGuid(Guid& guid);

} // namespace tq
