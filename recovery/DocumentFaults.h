// The faults of any XML file as the library's strict reading sees them
// (platform/xml/XmlDocument.h): every place where a well-formed document could not go on, not the
// first one alone.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "recovery/Finding.h"

namespace tq {

// The faults in the order of the file, `most` at most. Empty exactly when the library would take
// the bytes for a well-formed document. Needs neither a DOM nor the terminal; linear in the size.
std::vector<Finding> DocumentFaults(std::string_view file, std::size_t most);

} // namespace tq
