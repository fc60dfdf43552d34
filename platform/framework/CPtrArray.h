// CPtrArray: an array of addresses. All of it is CArray.h's; what they point to stays the caller's.
#pragma once

#include "platform/framework/CArray.h"

class CPtrArray : public CArray<void*, void*> {};
