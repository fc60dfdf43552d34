// The templates and texts of this program.
#pragma once

#include <ResourceContext.h>

inline constexpr unsigned kSymbolColumn = 1;

tq::Resources OwnResources();
