// What both bodies of XmlDocument do before the DOM sees a file and after it hands out text.
//
// Before: the bytes are checked against everything that the DOMs treat differently (encodings,
// declarations, document types, nesting) and become UTF-8 without a byte-order mark and declaration.
//
// Carrying: a file in the process's own code page is not decoded with conversion tables. Each
// double-byte character travels through the DOM as one private code point that names its two bytes,
// kCarriedBase + (lead << 8 | trail), and comes out as those two bytes. A round trip through Unicode
// would change characters that share a code point with another or have none at all; and no two
// systems' tables agree on all of them.
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
// First code point of the plane that carries double-byte characters.
inline constexpr char32_t kCarriedBase = 0xF0000;

enum class XmlVerdict {
  Ok,
  TooLarge,
  BadDeclaration,  // not "version, encoding, standalone" as the XML recommendation writes them
  UnknownEncoding, // none of big5 cp950 x-x-big5, gb2312 gbk cp936, utf-8, us-ascii
  BadCharacters,   // bytes that the encoding does not have, or characters that XML does not allow
  DocumentType,    // "<!DOCTYPE" or another markup declaration
  TooDeep,
  ForeignName, // a name with a namespace prefix, or with characters beyond ASCII
  Malformed,   // an open comment, CDATA section, instruction or tag at the end, and the like
};

struct XmlText {
  // The text in UTF-8. It refers to the caller's bytes or to `buffer`: the one must live, and the other
  // must not be moved, while it is used.
  std::string_view utf8;
  std::string buffer;
  // True when double-byte characters travel as private code points.
  bool carried = false;
};

// Prepares a whole file for the DOM. Only with Ok is `text` filled. The DOM still has to check that the
// text is well-formed. Does not copy a file that is ASCII, or UTF-8, as it stands.
XmlVerdict PrepareXml(const char* data, std::size_t size, XmlText& text);

// Text of the DOM, in UTF-8, to the process's code page. `carried` is that of the document's XmlText.
// `value` is assigned once.
void AssignXmlText(std::string_view utf8, bool carried, CString& value);

// Whether a text is nothing but white space, as XML has it.
inline bool IsXmlBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

} // namespace tq
