// One pass over XML text before the DOM sees it: characters, markup declarations, names, nesting
// and the bounds of XmlText.h.
#pragma once

#include "platform/xml/XmlText.h"

namespace tq {

enum class XmlCharset {
  Utf8,
  Ascii,
  Carried, // the process's code page, rewritten into UTF-8 with private code points
};

// Scans `text`, which starts behind the XML declaration. Knows comments, CDATA sections,
// instructions and quoted values, so that markup inside of them is not taken for markup; leaves
// everything else of well-formedness to the DOM.
//
// `rewritten` receives the text for the DOM when it differs from `text`, and is empty otherwise:
// names that the DOMs would treat differently are replaced (platform/xml/XmlNames.h), and carried
// characters are put into UTF-8. Carried: a character reference into the private plane would come
// out as a double-byte character that nobody wrote; it becomes "?", like any other character that
// the code page lacks.
XmlVerdict ScanXml(std::string_view text, XmlCharset charset, unsigned codePage,
                   std::string& rewritten);

} // namespace tq
