// The start of an XML file: byte-order mark and XML declaration.
#pragma once

#include "platform/xml/XmlText.h"

namespace tq {

enum class XmlEncoding { Utf8, Ascii, Big5, Gbk, Latin1, Utf16 };

struct XmlDeclaration {
  XmlEncoding encoding =
      XmlEncoding::Utf8;  // what the recommendation says of a file that names none
  std::size_t length = 0; // bytes before the text proper
};

// Reads it from the start of `file`. Ok, BadDeclaration or UnknownEncoding. A file without
// declaration is Ok. `declaration.encoding` is what the file is in unless it names one; a file in
// UTF-16 is given decoded.
XmlVerdict ReadXmlDeclaration(std::string_view file, XmlDeclaration& declaration);

} // namespace tq
