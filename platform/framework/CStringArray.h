// CStringArray: an array of strings. All of it is CArray.h's; adding a string shares its text.
#pragma once

#include "platform/framework/CArray.h"
#include "platform/framework/CString.h"

class CStringArray : public CArray<CString, const CString&> {};
