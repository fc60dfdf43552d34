// Where the stand-in's own library lies.
#pragma once

#include <string>

namespace standin {

// Its directory, for the C library, without a separator at the end; empty when the system does not
// tell.
std::string OwnDirectory();

} // namespace standin
