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
//  3. Text comes out in the process's ANSI code page. From a file in that code page every character
//     comes out as the very bytes that stand in the file, user-defined characters included. From a
//     file in another encoding, and from a character reference, a character that the code page
//     lacks comes out as "?".
//  4. Both bodies (MSXML 3.0's free-threaded DOM on Windows, libxml2 elsewhere) give the same
//     answer.
//  5. Paths are element names joined with "/" from the root, "/Result/SymbolList/List". A name in a
//     path stands for elements without a namespace. Letter case counts. Names with a prefix,
//     whether or not a namespace is bound to it, and names beyond ASCII are read and never asked
//     for: they are other names than the one behind the prefix. A default namespace (xmlns='...')
//     puts elements into it.
//  6. Nothing throws. Memory that runs out while a document is loaded refuses the document; later
//     it stops the process (tq::OutOfMemory), for what is there must not read as "not there", which
//     is how any other failure of the platform's DOM reads.
//  7. One thread at a time for a document and its elements.
//     On Windows COM is initialised while a document lives, whichever apartment the thread is in.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

class CString;

namespace tq {

// A borrowed view of one element. Cheap to copy. It must not outlive its document or that
// document's next Load.
class XmlElement {
public:
  // No element: every question is answered with "not there".
  XmlElement() = default;
  XmlElement(const XmlElement& other);
  XmlElement(XmlElement&& other) noexcept;
  XmlElement& operator=(XmlElement other) noexcept;
  ~XmlElement();

  bool IsNull() const { return node_ == nullptr; }

  // True when the element bears at least one attribute, namespace declarations not counted.
  bool HasAttributes() const;

  // The value of the attribute with that name. Present: true, `value` assigned once
  // (perhaps to empty). Absent: false, `value` untouched.
  bool Attribute(const char* name, CString& value) const;

  // The element's name as the file has it, prefix included. False, `name` untouched, for no
  // element.
  bool Name(CString& name) const;

  // The element's own text: its text and CDATA pieces joined, those of child elements left out,
  // white space kept. False, `text` untouched, for no element.
  bool Text(CString& text) const;

  // The child elements in document order; with a name only those of that name without a namespace.
  std::vector<XmlElement> Children(const char* name = nullptr) const;

  // All child nodes in document order, for callers who number them: what is no element (a comment,
  // a processing instruction, a CDATA section, a piece of text) is null. Text that is nothing but
  // white space is no node here: it is how a file is laid out.
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

  // Reads a whole file's bytes, declaration and all. `data` is not needed after the call. False
  // when they are refused; the document is then empty. May be called again; the document before is
  // dropped.
  bool Load(const char* data, std::size_t size);

  // Whether the last Load failed for the system's sake: no memory, or no DOM to be had. Nothing is
  // known of the bytes then.
  bool SystemFailed() const { return systemFailed_; }

  // True when double-byte text came from a file in the process's own code page and so comes out as
  // the file's own bytes; else what the code page lacks has become "?".
  bool KeepsBytes() const { return carried_; }

  // The document element; null for an empty document.
  XmlElement Root() const;

  // The first element at `path` in document order; null when there is none.
  XmlElement SelectSingle(const char* path) const;

  // All elements at `path`, whichever parents they have, in document order.
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
