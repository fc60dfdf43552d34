// Whether there is a display that Qt can use. Internal.
#pragma once

namespace tq::qt {

// Null when there is one; else why there is none, in English.
const char* WhyNoDisplay();

} // namespace tq::qt
