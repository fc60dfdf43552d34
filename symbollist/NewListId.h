// Identifiers of new lists.
#pragma once

#include "platform/framework/CString.h"

namespace tq {

// A new GUID as text. Empty when the operating system gives none: the list is then not added.
CString NewListId();

} // namespace tq
