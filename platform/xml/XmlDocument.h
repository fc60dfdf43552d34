// Strict, closed reading of small XML files through the platform's DOM.
//
// Conventions that hold for all of it
//  1. Strict: the text must be well-formed, as the recommendation of XML 1.0 has it. A stray
//     apostrophe, ampersand or angle bracket, a character that the declared encoding does not have,
//     or anything after the root element refuses the whole document. There is no repair.
//  2. Closed and bounded: a document type declaration is refused before the DOM sees the text, so
//     there are no entities beyond the five predefined ones and character references. Nothing is
//     fetched. Size, nesting, markup, attributes and names are bounded (platform/xml/XmlText.h), so
//     that a hostile file is refused at once.
//  3. Text is returned in the process's ANSI code page. Of a file in that code page every character
//     is returned as the bytes in the file, user-defined characters included. Of a file in another
//     encoding, and from a character reference, a character that the code page lacks becomes "?".
//  4. Both bodies (MSXML 3.0's free-threaded DOM on Windows, libxml2 elsewhere) give the same
//     answer.
//  5. Paths are element names from the root, joined with "/": "/Result/SymbolList/List". A name in
//     a path matches elements without a namespace; letter case counts. Names with a prefix, bound
//     to a namespace or not, and names beyond ASCII can be read but not asked for: they differ from
//     the name behind the prefix. A default namespace (xmlns='...') puts elements into it.
//  6. Nothing throws. When memory runs out while a document is loaded, it is refused; later the
//     process is stopped (tq::OutOfMemory), because any other failure of the platform's DOM reads
//     as "not there", and what is there must not.
//  7. One thread at a time for a document and its elements.
//     On Windows COM is initialised while a document lives, whichever apartment the thread is in.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

class CString;

namespace tq {

// A non-owning handle of one element, cheap to copy. Valid until its document is destroyed or
// loaded again.
class XmlElement {
public:
  // The null element, for which every question answers "not there".
  XmlElement() = default;
  XmlElement(const XmlElement& other);
  XmlElement(XmlElement&& other) noexcept;
  XmlElement& operator=(XmlElement other) noexcept;
  ~XmlElement();

  bool IsNull() const { return node_ == nullptr; }

  // Whether the element has an attribute other than namespace declarations.
  bool HasAttributes() const;

  // Reads the value, perhaps empty, of the attribute with that name. False, `value` untouched, when
  // there is none.
  bool Attribute(const char* name, CString& value) const;

  // Reads the element's name as it is in the file, prefix included. False, `name` untouched, for
  // the null element.
  bool Name(CString& name) const;

  // Reads the element's own text: its text and CDATA nodes joined, white space kept, without the
  // text of child elements. False, `text` untouched, for the null element.
  bool Text(CString& text) const;

  // The child elements in document order; with `name` only those of that name and no namespace.
  std::vector<XmlElement> Children(const char* name = nullptr) const;

  // All child nodes in document order, for callers that count them. Nodes that are not elements
  // (comments, processing instructions, CDATA sections, text) are null. Text that is only white
  // space is layout and left out.
  std::vector<XmlElement> ChildNodes() const;

private:
  friend class XmlDocument;
  XmlElement(void* node, bool carried) : node_(node), carried_(carried) {}

  void* node_ = nullptr; // the DOM's: a counted interface on Windows, a plain pointer elsewhere
  bool carried_ = false; // see XmlText::carried
};

class XmlDocument {
public:
  XmlDocument();
  ~XmlDocument();
  XmlDocument(const XmlDocument&) = delete;
  XmlDocument& operator=(const XmlDocument&) = delete;

  // Replaces the document by that of a whole file, declaration included. `data` is not needed after
  // the call. False when the file is refused; the document is then empty.
  bool Load(const char* data, std::size_t size);

  // Whether the last Load failed because of the system (no memory, no DOM), which says nothing
  // about the file.
  bool SystemFailed() const { return systemFailed_; }

  // Whether text is returned as the bytes in the file, which is in the process's own code page. If
  // not, characters that the code page lacks have become "?".
  bool KeepsBytes() const { return carried_; }

  // The document element; null for an empty document.
  XmlElement Root() const;

  // The first element at `path` in document order; null when there is none.
  XmlElement SelectSingle(const char* path) const;

  // All elements at `path`, of whichever parents, in document order.
  std::vector<XmlElement> Select(const char* path) const;

private:
  enum class LoadResult { Ok, Refused, SystemFailed };
  LoadResult TryLoad(const char* data, std::size_t size);
  // Makes a document of the text; unless Ok, there is none. In the platform's body.
  LoadResult Parse(std::string_view utf8);
  void Clear();

  void* state_ = nullptr; // the body's own
  bool carried_ = false;
  bool systemFailed_ = false;
};

} // namespace tq
