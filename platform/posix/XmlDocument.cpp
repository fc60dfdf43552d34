#include "platform/xml/XmlDocument.h"

#include "platform/framework/CString.h"
#include "platform/framework/Storage.h"
#include "platform/xml/XmlText.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <cstring>
#include <string_view>
#include <utility>

namespace tq {
namespace {

// Own bounds stand before the parser's (XmlText.h); errors are the caller's to report.
constexpr int kParserOptions =
    XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;

xmlNode* NodeOf(void* node) {
  return static_cast<xmlNode*>(node);
}

std::string_view TextOf(const xmlChar* text) {
  return text != nullptr ? std::string_view(reinterpret_cast<const char*>(text))
                         : std::string_view();
}

bool IsBlank(const xmlNode* node) {
  return node->type == XML_TEXT_NODE && IsXmlBlank(TextOf(node->content));
}

bool IsElement(const xmlNode* node, std::string_view name) {
  return node->type == XML_ELEMENT_NODE && node->ns == nullptr && TextOf(node->name) == name;
}

// Whether the parser has told of memory that it did not get, while one of these lives. It does not
// always take that for an error of the document; and what it says last is often another error that
// came of it.
class MemoryWatch {
public:
  MemoryWatch() : handler_(xmlStructuredError), argument_(xmlStructuredErrorContext) {
    xmlSetStructuredErrorFunc(this, Note);
  }
  ~MemoryWatch() { xmlSetStructuredErrorFunc(argument_, handler_); }
  MemoryWatch(const MemoryWatch&) = delete;
  MemoryWatch& operator=(const MemoryWatch&) = delete;

  bool Lacked() const { return lacked_; }

private:
  static void Note(void* watch, xmlError* error) {
    if (error->code == XML_ERR_NO_MEMORY)
      static_cast<MemoryWatch*>(watch)->lacked_ = true;
  }

  const xmlStructuredErrorFunc handler_; // of this thread, and the terminal's
  void* const argument_;
  bool lacked_ = false;
};

// An attribute's value lies in one node, unless references stand in it.
void AssignValue(const xmlAttr* attribute, bool carried, CString& value) {
  const xmlNode* part = attribute->children;
  if (part == nullptr || (part->next == nullptr && part->type == XML_TEXT_NODE)) {
    AssignXmlText(part != nullptr ? TextOf(part->content) : std::string_view(), carried, value);
    return;
  }
  xmlChar* joined = xmlNodeListGetString(attribute->doc, part, 1);
  if (joined == nullptr)
    OutOfMemory();
  AssignXmlText(TextOf(joined), carried, value);
  xmlFree(joined);
}

// Takes the next name off a path "/a/b"; false when none is left.
bool TakeName(std::string_view& path, std::string_view& name) {
  if (path.size() < 2 || path.front() != '/')
    return false;
  const std::size_t end = path.find('/', 1);
  name = path.substr(1, end == std::string_view::npos ? end : end - 1);
  path.remove_prefix(name.size() + 1);
  return true;
}

// Calls take(node) for the elements at `path` under `siblings`, in document order, until it is
// false.
template <typename Take> bool Walk(xmlNode* siblings, std::string_view path, const Take& take) {
  std::string_view name;
  if (!TakeName(path, name))
    return true;
  for (xmlNode* node = siblings; node != nullptr; node = node->next) {
    if (!IsElement(node, name))
      continue;
    if (!(path.empty() ? take(node) : Walk(node->children, path, take)))
      return false;
  }
  return true;
}

} // namespace

XmlElement::XmlElement(const XmlElement& other) = default;

XmlElement::XmlElement(XmlElement&& other) noexcept
    : node_(std::exchange(other.node_, nullptr)), carried_(other.carried_) {}

XmlElement& XmlElement::operator=(XmlElement other) noexcept {
  std::swap(node_, other.node_);
  std::swap(carried_, other.carried_);
  return *this;
}

XmlElement::~XmlElement() = default;

bool XmlElement::HasAttributes() const {
  const xmlAttr* attribute = node_ != nullptr ? NodeOf(node_)->properties : nullptr;
  while (attribute != nullptr && IsXmlNamespace(TextOf(attribute->name)))
    attribute = attribute->next;
  return attribute != nullptr;
}

bool XmlElement::Attribute(const char* name, CString& value) const {
  const xmlAttr* attribute = node_ != nullptr ? NodeOf(node_)->properties : nullptr;
  for (; attribute != nullptr; attribute = attribute->next) {
    if (attribute->ns == nullptr && TextOf(attribute->name) == name) {
      AssignValue(attribute, carried_, value);
      return true;
    }
  }
  return false;
}

bool XmlElement::Name(CString& name) const {
  if (node_ != nullptr)
    AssignXmlName(TextOf(NodeOf(node_)->name), carried_, name);
  return node_ != nullptr;
}

bool XmlElement::Text(CString& text) const {
  if (node_ == nullptr)
    return false;
  std::string joined;
  for (const xmlNode* part = NodeOf(node_)->children; part != nullptr; part = part->next) {
    if (part->type == XML_TEXT_NODE || part->type == XML_CDATA_SECTION_NODE)
      joined += TextOf(part->content);
  }
  AssignXmlText(joined, carried_, text);
  return true;
}

std::vector<XmlElement> XmlElement::Children(const char* name) const {
  std::vector<XmlElement> children;
  xmlNode* child = node_ != nullptr ? NodeOf(node_)->children : nullptr;
  for (; child != nullptr; child = child->next) {
    if (name != nullptr ? IsElement(child, name) : child->type == XML_ELEMENT_NODE)
      children.push_back(XmlElement(child, carried_));
  }
  return children;
}

std::vector<XmlElement> XmlElement::ChildNodes() const {
  std::vector<XmlElement> nodes;
  xmlNode* child = node_ != nullptr ? NodeOf(node_)->children : nullptr;
  for (; child != nullptr; child = child->next) {
    if (!IsBlank(child))
      nodes.push_back(child->type == XML_ELEMENT_NODE ? XmlElement(child, carried_) : XmlElement());
  }
  return nodes;
}

XmlDocument::XmlDocument() {
  xmlInitParser();
}

XmlDocument::~XmlDocument() {
  xmlFreeDoc(static_cast<xmlDoc*>(state_));
}

// No encoding is named: text that begins like none is UTF-8 to the parser, and a named one, though
// the same, would cost a copy.
XmlDocument::LoadResult XmlDocument::Parse(std::string_view utf8) {
  const MemoryWatch watch;
  state_ =
      xmlReadMemory(utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr, kParserOptions);
  if (watch.Lacked()) {
    Clear();
    return LoadResult::SystemFailed;
  }
  return state_ != nullptr ? LoadResult::Ok : LoadResult::Refused;
}

void XmlDocument::Clear() {
  xmlFreeDoc(static_cast<xmlDoc*>(std::exchange(state_, nullptr)));
}

XmlElement XmlDocument::Root() const {
  xmlDoc* document = static_cast<xmlDoc*>(state_);
  return document != nullptr ? XmlElement(xmlDocGetRootElement(document), carried_) : XmlElement();
}

XmlElement XmlDocument::SelectSingle(const char* path) const {
  XmlElement found;
  Walk(NodeOf(Root().node_), path, [&](xmlNode* node) {
    found = XmlElement(node, carried_);
    return false;
  });
  return found;
}

std::vector<XmlElement> XmlDocument::Select(const char* path) const {
  std::vector<XmlElement> found;
  Walk(NodeOf(Root().node_), path, [&](xmlNode* node) {
    found.push_back(XmlElement(node, carried_));
    return true;
  });
  return found;
}

} // namespace tq
