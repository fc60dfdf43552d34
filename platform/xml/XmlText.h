// What both bodies of XmlDocument have in common: preparing a file for the DOM, and converting the
// DOM's text.
//
// Preparing checks everything that the two DOMs treat differently (encodings, declarations,
// document types, names, nesting) and produces UTF-8 without a byte-order mark and declaration.
//
// Carried characters: a file in the process's own code page is not decoded by conversion tables.
// Each double-byte character passes through the DOM as a private code point that encodes its two
// bytes, kCarriedBase + (lead << 8 | trail), and is converted back into those bytes. A round trip
// through Unicode would change characters that share a code point or have none, and no two systems'
// tables agree on all characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class CString;

namespace tq {

// Largest file, in bytes. A list file has some kilobytes; the limit only keeps a wrong file from
// using up the terminal's memory.
inline constexpr std::size_t kXmlSizeLimit = std::size_t{64} << 20;
// Deepest nesting of elements, the root being 1. The list files have 3.
inline constexpr int kXmlDepthLimit = 64;
// Limits on what a hostile file could slow a DOM down with: pieces of markup (elements, comments,
// CDATA sections, instructions) in the whole text, attributes of an element, different names, bytes
// of a name. The list files have an element for each list, four attributes and eight names.
inline constexpr int kXmlPieceLimit = 1'000'000;
inline constexpr int kXmlAttributeLimit = 64;
inline constexpr int kXmlNameLimit = 256;
inline constexpr std::size_t kXmlNameLengthLimit = 256;
// The first code point of the plane of carried characters.
inline constexpr char32_t kCarriedBase = 0xF0000;

enum class XmlVerdict {
  Ok,
  TooLarge,
  BadDeclaration,  // not "version, encoding, standalone" as the XML recommendation writes them
  UnknownEncoding, // not listed in XmlDeclaration.cpp
  BadCharacters,   // bytes that the encoding does not have, or characters that XML does not allow
  DocumentType,    // "<!DOCTYPE" or another markup declaration
  TooDeep,
  TooMany,   // more markup, attributes or names than the limits, or a name that is too long
  Malformed, // a broken tag, an unterminated comment, CDATA section or instruction, ...
};

struct XmlText {
  // The text in UTF-8: a view of the caller's bytes or of `buffer`. While it is used, the bytes
  // must live and this object must not be moved.
  std::string_view utf8;
  std::string buffer;
  // Whether double-byte characters are carried.
  bool carried = false;
};

// Prepares a whole file for the DOM, which still checks that it is well-formed. `text` is valid
// only with Ok. A file in ASCII or UTF-8 is usually not copied.
XmlVerdict PrepareXml(const char* data, std::size_t size, XmlText& text);

// Assigns text of the DOM, which is UTF-8, to `value` in the process's code page. `carried` is the
// XmlText's.
void AssignXmlText(std::string_view utf8, bool carried, CString& value);

// The same for a name, as it is in the file, prefix included.
void AssignXmlName(std::string_view name, bool carried, CString& value);

// Whether an attribute with this name, as the DOM has it, declares a namespace.
bool IsXmlNamespace(std::string_view name);

// Whether a text is empty or consists of XML white space only.
inline bool IsXmlBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

} // namespace tq
