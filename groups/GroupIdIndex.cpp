#include "groups/GroupIdIndex.h"

namespace tq {

void GroupIdIndex::Reset(std::size_t count) {
  nodes_.assign(count, Node{{}, kNone, kNone});
  firsts_.Reset(count);
}

void GroupIdIndex::AddFirst(const FoldedId& id, std::uint32_t number) {
  firsts_.Add({{}, id, HashOf(id)}, {number, 0},
              [this](std::uint32_t other) { return HashOf(nodes_[other].id); });
}

void GroupIdIndex::AddInFront(std::uint32_t number, const FoldedId& id) {
  const KeyIndex::Slot slot = SlotOf(id);
  if (slot == KeyIndex::kNoSlot) {
    nodes_[number] = {id, kNone, number};
    AddFirst(id, number);
    return;
  }
  std::uint32_t& first = firsts_.At(slot).node;
  nodes_[number] = {id, first, nodes_[first].last};
  first = number;
}

std::uint32_t GroupIdIndex::Find(const FoldedId& id) const {
  const KeyIndex::Slot slot = SlotOf(id);
  return slot == KeyIndex::kNoSlot ? kNone : firsts_.At(slot).node;
}

void GroupIdIndex::Append(const FoldedId& id) {
  const auto number = static_cast<std::uint32_t>(nodes_.size());
  const std::uint32_t first = Find(id);
  nodes_.push_back({id, kNone, number});
  if (first == kNone) {
    AddFirst(id, number);
    return;
  }
  nodes_[nodes_[first].last].next = number;
  nodes_[first].last = number;
}

void GroupIdIndex::RemoveFirst(std::uint32_t first) {
  const Node& node = nodes_[first];
  const KeyIndex::Slot slot = SlotOf(node.id);
  if (node.next == kNone) {
    firsts_.Remove(slot);
    return;
  }
  nodes_[node.next].last = node.last;
  firsts_.At(slot).node = node.next;
}

} // namespace tq
