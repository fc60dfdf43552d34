#include "platform/headless/Windows.h"

#include <unordered_map>

namespace tq::headless {

namespace {

std::unordered_map<WindowHandle, Node*>& Nodes() {
  static std::unordered_map<WindowHandle, Node*> nodes;
  return nodes;
}

// Far from the numbers of a window system, which a host may give as the parent.
uintptr_t lastHandle = uintptr_t{1} << (sizeof(uintptr_t) * 8 - 2);

} // namespace

void Register(Node& node) {
  node.handle = reinterpret_cast<WindowHandle>(++lastHandle);
  Nodes()[node.handle] = &node;
}

void Forget(const Node& node) {
  Nodes().erase(node.handle);
}

size_t NodeCount() {
  return Nodes().size();
}

Node* FindNode(WindowHandle handle) {
  const auto found = Nodes().find(handle);
  return found == Nodes().end() ? nullptr : found->second;
}

Dialog* FindDialog(WindowHandle handle) {
  Node* const node = FindNode(handle);
  const bool is = node != nullptr && node->kind == ControlKind::Dialog;
  return is ? static_cast<Dialog*>(node) : nullptr;
}

Control* FindControl(WindowHandle handle) {
  Node* const node = FindNode(handle);
  const bool is = node != nullptr && node->kind != ControlKind::Dialog;
  return is ? static_cast<Control*>(node) : nullptr;
}

Control* FindControl(WindowHandle handle, ControlKind kind) {
  Control* const control = FindControl(handle);
  return control != nullptr && control->kind == kind ? control : nullptr;
}

Control* Dialog::Find(int id) const {
  for (const std::unique_ptr<Control>& control : controls) {
    if (id != 0 && control->id == id)
      return control.get();
  }
  return nullptr;
}

} // namespace tq::headless
