// What both bodies of XmlDocument do before the DOM sees a file and after it hands out text.
//
// Before: the bytes are checked against everything that the DOMs treat differently (encodings,
// declarations, document types, names, nesting) and become UTF-8 without a byte-order mark and
// declaration.
//
// Carrying: a file in the process's own code page is not decoded with conversion tables. Each
// double-byte character travels through the DOM as one private code point that names its two bytes,
// kCarriedBase + (lead << 8 | trail), and comes out as those two bytes. A round trip through
// Unicode would change characters that share a code point with another or have none at all; and no
// two systems' tables agree on all of them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class CString;

namespace tq {

// Largest file, in bytes. A list file has some kilobytes; this only keeps a wrong file from taking
// the terminal's memory.
inline constexpr std::size_t kXmlSizeLimit = std::size_t{64} << 20;
// Deepest nesting of elements, the root being 1. The list files have 3.
inline constexpr int kXmlDepthLimit = 64;
// What a hostile file could make a DOM slow with: pieces of markup (elements, comments, CDATA
// sections, instructions) of the whole text, attributes of one element, different names, bytes of a
// name. The list files have an element for each list, four attributes and eight names.
inline constexpr int kXmlPieceLimit = 1'000'000;
inline constexpr int kXmlAttributeLimit = 64;
inline constexpr int kXmlNameLimit = 256;
inline constexpr std::size_t kXmlNameLengthLimit = 256;
// First code point of the plane that carries double-byte characters.
inline constexpr char32_t kCarriedBase = 0xF0000;

enum class XmlVerdict {
  Ok,
  TooLarge,
  BadDeclaration,  // not "version, encoding, standalone" as the XML recommendation writes them
  UnknownEncoding, // none of those that XmlDeclaration.cpp names
  BadCharacters,   // bytes that the encoding does not have, or characters that XML does not allow
  DocumentType,    // "<!DOCTYPE" or another markup declaration
  TooDeep,
  TooMany,   // more markup, attributes or names than the limits, or a name that is too long
  Malformed, // a tag that is none, an open comment, CDATA section or instruction at the end, ...
};

struct XmlText {
  // The text in UTF-8. It refers to the caller's bytes or to `buffer`: the one must live, and the
  // other must not be moved, while it is used.
  std::string_view utf8;
  std::string buffer;
  // True when double-byte characters travel as private code points.
  bool carried = false;
};

// Prepares a whole file for the DOM. Only with Ok is `text` filled. The DOM still has to check that
// the text is well-formed. Does not copy a file that is ASCII, or UTF-8, as it stands.
XmlVerdict PrepareXml(const char* data, std::size_t size, XmlText& text);

// Text of the DOM, in UTF-8, to the process's code page. `carried` is that of the document's
// XmlText. `value` is assigned once.
void AssignXmlText(std::string_view utf8, bool carried, CString& value);

// The same with a name, as the file has it: its prefix included.
void AssignXmlName(std::string_view name, bool carried, CString& value);

// Whether the DOM's name of an attribute declares a namespace.
bool IsXmlNamespace(std::string_view name);

// Whether a text is nothing but white space, as XML has it.
inline bool IsXmlBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

} // namespace tq
