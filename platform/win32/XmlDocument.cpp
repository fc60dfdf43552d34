#include "platform/xml/XmlDocument.h"

#include "platform/framework/CString.h"
#include "platform/framework/Storage.h"
#include "platform/win32/XmlCom.h"
#include "platform/xml/XmlText.h"

namespace tq {
namespace {

// The free-threaded document of version 3.0, by number: import libraries do not all name it.
constexpr CLSID kFreeThreadedDocument30 = {
    0xF5078F33, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};
constexpr IID kDocumentWithProperties = { // IXMLDOMDocument2
    0x2933BF95,
    0x7B36,
    0x11D2,
    {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

using Dom = IXMLDOMDocument2;
using Node = IXMLDOMNode;

struct State {
  ComScope com; // first, so that it outlives the document
  ComPtr<Dom> document;
};

Node* NodeOf(void* node) {
  return static_cast<Node*>(node);
}

State* StateOf(void* state) {
  return static_cast<State*>(state);
}

bool SetProperty(Dom* document, std::string_view name, std::string_view value) {
  const ComText property(name);
  const ComText text(value);
  VARIANT variant = {};
  variant.vt = VT_BSTR;
  variant.bstrVal = text.Get();
  return SUCCEEDED(document->setProperty(property.Get(), variant));
}

// Strict, closed and synchronous, with white space kept and paths read as XPath.
bool Configure(Dom* document) {
  return SUCCEEDED(document->put_async(VARIANT_FALSE)) &&
         SUCCEEDED(document->put_validateOnParse(VARIANT_FALSE)) &&
         SUCCEEDED(document->put_resolveExternals(VARIANT_FALSE)) &&
         SUCCEEDED(document->put_preserveWhiteSpace(VARIANT_TRUE)) &&
         SetProperty(document, "SelectionLanguage", "XPath");
}

bool Create(ComPtr<Dom>& document) {
  return SUCCEEDED(::CoCreateInstance(kFreeThreadedDocument30, nullptr, CLSCTX_INPROC_SERVER,
                                      kDocumentWithProperties, document.Receive())) &&
         Configure(document.Get());
}

// Of a question to a document that is there. Without memory there is no answer to go on with.
HRESULT Told(HRESULT result) {
  if (result == E_OUTOFMEMORY)
    OutOfMemory();
  return result;
}

bool IsElement(Node* node) {
  DOMNodeType type = NODE_INVALID;
  return SUCCEEDED(Told(node->get_nodeType(&type))) && type == NODE_ELEMENT;
}

bool HasNamespace(Node* node) {
  ComText space;
  return Told(node->get_namespaceURI(space.Receive())) == S_OK && !space.View().empty();
}

bool IsNamed(Node* node, std::wstring_view name) {
  ComText base;
  return SUCCEEDED(Told(node->get_baseName(base.Receive()))) && base.View() == name &&
         !HasNamespace(node);
}

bool IsNamespaceDeclaration(std::wstring_view name) {
  return IsXmlNamespace(ToUtf8(name));
}

void AssignText(const ComText& text, bool carried, CString& value) {
  AssignXmlText(ToUtf8(text.View()), carried, value);
}

// The piece's own text; empty when the node is no piece of text.
std::string TextPiece(Node* node) {
  DOMNodeType type = NODE_INVALID;
  VARIANT value = {};
  if (FAILED(Told(node->get_nodeType(&type))) ||
      (type != NODE_TEXT && type != NODE_CDATA_SECTION) ||
      FAILED(Told(node->get_nodeValue(&value))))
    return {};
  if (value.vt == VT_BSTR)
    return ToUtf8(ComText::Own(value.bstrVal).View());
  ::VariantClear(&value);
  return {};
}

bool IsBlank(Node* node) {
  DOMNodeType type = NODE_INVALID;
  return SUCCEEDED(Told(node->get_nodeType(&type))) && type == NODE_TEXT &&
         IsXmlBlank(TextPiece(node));
}

// Calls take(child) for each child node in document order.
template <typename Take> void ForEachChild(Node* parent, const Take& take) {
  ComPtr<Node> child;
  if (parent == nullptr || FAILED(Told(parent->get_firstChild(child.Receive()))))
    return;
  while (child) {
    take(child.Get());
    ComPtr<Node> next;
    if (FAILED(Told(child->get_nextSibling(next.Receive()))))
      return;
    child.Reset(next.Detach());
  }
}

} // namespace

XmlElement::XmlElement(const XmlElement& other) : node_(other.node_), carried_(other.carried_) {
  if (node_ != nullptr)
    TakeReference(NodeOf(node_));
}

XmlElement::XmlElement(XmlElement&& other) noexcept
    : node_(std::exchange(other.node_, nullptr)), carried_(other.carried_) {}

XmlElement& XmlElement::operator=(XmlElement other) noexcept {
  std::swap(node_, other.node_);
  std::swap(carried_, other.carried_);
  return *this;
}

XmlElement::~XmlElement() {
  if (node_ != nullptr)
    GiveBack(NodeOf(node_));
}

bool XmlElement::HasAttributes() const {
  ComPtr<IXMLDOMNamedNodeMap> map;
  if (node_ == nullptr || Told(NodeOf(node_)->get_attributes(map.Receive())) != S_OK || !map)
    return false;
  LONG count = 0;
  Told(map->get_length(&count));
  for (LONG i = 0; i < count; ++i) {
    ComPtr<Node> attribute;
    ComText name;
    // Wine's DOM calls it a lack of memory when the attribute is a namespace declaration. A real
    // one ends the load at this list, as a list without attributes does: nothing is lost by it.
    if (map->get_item(i, attribute.Receive()) == S_OK && attribute &&
        Told(attribute->get_nodeName(name.Receive())) == S_OK &&
        !IsNamespaceDeclaration(name.View()))
      return true;
  }
  return false;
}

bool XmlElement::Attribute(const char* name, CString& value) const {
  ComPtr<IXMLDOMNamedNodeMap> map;
  ComPtr<Node> attribute;
  const ComText wanted(name);
  if (node_ == nullptr || IsNamespaceDeclaration(wanted.View()) ||
      Told(NodeOf(node_)->get_attributes(map.Receive())) != S_OK || !map ||
      Told(map->getNamedItem(wanted.Get(), attribute.Receive())) != S_OK || !attribute ||
      HasNamespace(attribute.Get()))
    return false;
  ComText text;
  if (FAILED(Told(attribute->get_text(text.Receive()))))
    return false;
  AssignText(text, carried_, value);
  return true;
}

bool XmlElement::Name(CString& name) const {
  ComText base;
  if (node_ == nullptr || FAILED(Told(NodeOf(node_)->get_baseName(base.Receive()))))
    return false;
  AssignXmlName(ToUtf8(base.View()), carried_, name);
  return true;
}

bool XmlElement::Text(CString& text) const {
  if (node_ == nullptr)
    return false;
  std::string joined;
  ForEachChild(NodeOf(node_), [&](Node* child) { joined += TextPiece(child); });
  AssignXmlText(joined, carried_, text);
  return true;
}

std::vector<XmlElement> XmlElement::Children(const char* name) const {
  std::vector<XmlElement> children;
  const ComText wanted(name != nullptr ? name : "");
  ForEachChild(NodeOf(node_), [&](Node* child) {
    if (!IsElement(child) || (name != nullptr && !IsNamed(child, wanted.View())))
      return;
    children.push_back(XmlElement(TakeReference(child), carried_));
  });
  return children;
}

std::vector<XmlElement> XmlElement::ChildNodes() const {
  std::vector<XmlElement> nodes;
  ForEachChild(NodeOf(node_), [&](Node* child) {
    if (IsBlank(child))
      return;
    if (!IsElement(child)) {
      nodes.emplace_back();
      return;
    }
    nodes.push_back(XmlElement(TakeReference(child), carried_));
  });
  return nodes;
}

XmlDocument::XmlDocument() : state_(new State) {}

XmlDocument::~XmlDocument() {
  delete StateOf(state_);
}

void XmlDocument::Clear() {
  StateOf(state_)->document.Reset();
}

XmlDocument::LoadResult XmlDocument::Parse(std::string_view utf8) {
  ComPtr<Dom> document;
  ComText source;
  VARIANT_BOOL loaded = VARIANT_FALSE;
  if (!source.TryAssign(utf8) || !Create(document))
    return LoadResult::SystemFailed;
  const HRESULT result = document->loadXML(source.Get(), &loaded);
  if (result == S_OK && loaded == VARIANT_TRUE) {
    StateOf(state_)->document.Reset(document.Detach());
    return LoadResult::Ok;
  }
  return result == E_OUTOFMEMORY ? LoadResult::SystemFailed : LoadResult::Refused;
}

XmlElement XmlDocument::Root() const {
  State& state = *StateOf(state_);
  ComPtr<IXMLDOMElement> root;
  if (!state.document || Told(state.document->get_documentElement(root.Receive())) != S_OK)
    return {};
  return XmlElement(static_cast<Node*>(root.Detach()), carried_);
}

XmlElement XmlDocument::SelectSingle(const char* path) const {
  State& state = *StateOf(state_);
  const ComText query(path);
  ComPtr<Node> node;
  if (!state.document ||
      Told(state.document->selectSingleNode(query.Get(), node.Receive())) != S_OK)
    return {};
  return XmlElement(node.Detach(), carried_);
}

std::vector<XmlElement> XmlDocument::Select(const char* path) const {
  State& state = *StateOf(state_);
  std::vector<XmlElement> found;
  const ComText query(path);
  ComPtr<IXMLDOMNodeList> nodes;
  if (!state.document || Told(state.document->selectNodes(query.Get(), nodes.Receive())) != S_OK)
    return found;
  ComPtr<Node> node;
  while (Told(nodes->nextNode(node.Receive())) == S_OK && node)
    found.push_back(XmlElement(node.Detach(), carried_));
  return found;
}

} // namespace tq
