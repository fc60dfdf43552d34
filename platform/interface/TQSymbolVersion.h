// The version of the library whose headers these are. The build takes it from here, so that packages,
// resources and programs name the same one.
#pragma once

#define TQSYMBOL_VERSION_MAJOR 1
#define TQSYMBOL_VERSION_MINOR 1
#define TQSYMBOL_VERSION_PATCH 0
