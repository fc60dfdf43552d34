// CUIntArray: an array of unsigned numbers. All of it is CArray.h's.
#pragma once

#include "platform/framework/CArray.h"

class CUIntArray : public CArray<unsigned int, unsigned int> {};
