// The start of an XML file: byte-order mark and XML declaration.
#pragma once

#include "platform/xml/XmlText.h"

namespace tq {

enum class XmlEncoding { Utf8, Ascii, Big5, Gbk, Latin1, Utf16 };

struct XmlDeclaration {
  XmlEncoding encoding = XmlEncoding::Utf8; // the default of the recommendation
  std::size_t length = 0;                   // bytes before the text proper
};

// Reads the declaration at the start of `file`: Ok, BadDeclaration or UnknownEncoding. A file
// without one is Ok. On input `declaration.encoding` is the default for a file that declares none.
// A UTF-16 file is passed decoded.
XmlVerdict ReadXmlDeclaration(std::string_view file, XmlDeclaration& declaration);

} // namespace tq
