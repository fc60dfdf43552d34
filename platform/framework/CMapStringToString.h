// CMapStringToString: strings under strings, asked with a `const char*`. All of it is CMap.h's;
// keys are compared with regard to case.
#pragma once

#include "platform/framework/CMap.h"
#include "platform/framework/CString.h"

class CMapStringToString : public CMap<CString, const char*, CString, const CString&> {
public:
  using CMap::CMap;
};
