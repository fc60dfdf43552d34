// Everything of tqFramework: the strings, arrays and maps that cross tqSymbol's interface, and the
// code page functions they are built on. Each header opens with the conventions that hold for it.
#pragma once

#include "platform/CodePage.h"
#include "platform/framework/CArray.h"
#include "platform/framework/CMap.h"
#include "platform/framework/CMapStringToString.h"
#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"
#include "platform/framework/CUIntArray.h"
#include "platform/framework/HashKey.h"
#include "platform/framework/InvalidArgument.h"
#include "platform/framework/Storage.h"
