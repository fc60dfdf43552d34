// Whether a list file that was read can be written back.
#pragma once

#include <string>

namespace tq {

class XmlDocument;

// `bytes` is a list file and `document` what the DOM made of it; `text` is what a save would write
// now. True when reading `text` gives the same lists: identifiers, names and symbol strings. It
// does not when a value holds what stands in a file only as a reference (an ampersand, an
// apostrophe, "<"), is cut, or has characters that the process's code page lacks.
bool ComesBack(const std::string& bytes, const XmlDocument& document, const std::string& text);

} // namespace tq
