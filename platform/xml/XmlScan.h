// One pass over XML text before the DOM sees it, which checks characters, markup declarations,
// names, nesting and the limits of XmlText.h.
#pragma once

#include "platform/xml/XmlText.h"

namespace tq {

enum class XmlCharset {
  Utf8,
  Ascii,
  Carried, // the process's code page; double-byte characters are carried (XmlText.h)
};

// Scans `text`, which starts behind the XML declaration. Comments, CDATA sections, instructions and
// quoted values are recognised, so that their content is not taken for markup. The DOM checks the
// rest of well-formedness.
//
// `rewritten` receives the text for the DOM if it differs from `text`, and is empty otherwise:
// foreign names are encoded (platform/xml/XmlNames.h), and carried characters are converted to
// UTF-8. In carried text a character reference into the plane of carried characters becomes "?",
// like any other character that the code page lacks: it would come out as a double-byte character
// that is not in the file.
XmlVerdict ScanXml(std::string_view text, XmlCharset charset, unsigned codePage,
                   std::string& rewritten);

} // namespace tq
