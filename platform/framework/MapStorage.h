// The memory of a CMap: a chained hash table whose nodes, allocated in blocks, are also linked in
// order of insertion. Internal to CMap.h, whose conventions hold. Not a standard container, because
// the layout is part of the interface and must not depend on a standard library or its settings.
#pragma once

#include <climits>
#include <cstddef>
#include <cstring>
#include <new>

#include "platform/framework/Storage.h"

namespace tq {

template <class KEY, class VALUE> struct MapPair {
  const KEY key;
  VALUE value;
};

template <class KEY, class VALUE> struct MapStorage {
  struct Node : MapPair<KEY, VALUE> {
    Node* chain; // the next in the same bucket
    Node* next;  // in order of insertion, as `previous`
    Node* previous;
    size_t hash;
  };
  static_assert(alignof(Node) <= alignof(std::max_align_t));

  explicit MapStorage(int blockSize) noexcept : m_blockSize(blockSize > 0 ? blockSize : 1) {}

  Node* first = nullptr;
  int count = 0;

  template <class ARG> Node* Find(const ARG& key, size_t hash) const {
    if (m_table == nullptr)
      return nullptr;
    for (Node* node = m_table[hash & m_mask]; node != nullptr; node = node->chain) {
      if (node->hash == hash && node->key == key)
        return node;
    }
    return nullptr;
  }

  template <class ARG> Node& FindOrAdd(const ARG& key, size_t hash) {
    if (Node* found = Find(key, hash))
      return *found;
    if (m_table == nullptr || static_cast<size_t>(count) > m_mask)
      ResizeTable(static_cast<size_t>(count) + 1);
    Node* const node = new (TakeNode()) Node{{KEY(key), VALUE()}, nullptr, nullptr, m_last, hash};
    (m_last == nullptr ? first : m_last->next) = node;
    m_last = node;
    Chain(node);
    ++count;
    return *node;
  }

  template <class ARG> bool Remove(const ARG& key, size_t hash) {
    if (m_table == nullptr)
      return false;
    for (Node** link = &m_table[hash & m_mask]; *link != nullptr; link = &(*link)->chain) {
      Node* const node = *link;
      if (node->hash != hash || !(node->key == key))
        continue;
      *link = node->chain;
      Unlink(node);
      return true;
    }
    return false;
  }

  // Grows the table to at least `wanted` buckets.
  void ResizeTable(size_t wanted) {
    size_t buckets = m_table == nullptr ? kLeastBuckets : m_mask + 1;
    while (buckets < wanted)
      buckets *= 2;
    if (m_table != nullptr && buckets == m_mask + 1)
      return;
    const size_t bytes = buckets * sizeof(void*); // a bucket points to the first node of its chain
    FreeStorage(m_table);
    m_table = static_cast<Node**>(AllocateStorage(bytes));
    std::memset(m_table, 0, bytes);
    m_mask = buckets - 1;
    for (Node* node = first; node != nullptr; node = node->next)
      Chain(node);
  }

  void Release() noexcept {
    for (Node* node = first; node != nullptr;) {
      Node* const next = node->next;
      node->~Node();
      node = next;
    }
    while (m_blocks != nullptr) {
      Block* const next = m_blocks->next;
      FreeStorage(m_blocks);
      m_blocks = next;
    }
    FreeStorage(m_table);
    *this = MapStorage(m_blockSize);
  }

private:
  static constexpr size_t kLeastBuckets = 16;

  // The memory of a node that was removed.
  struct FreeNode {
    FreeNode* next;
  };
  // The header of a block, in front of its nodes.
  struct alignas(std::max_align_t) Block {
    Block* next;
  };

  void Chain(Node* node) {
    Node*& bucket = m_table[node->hash & m_mask];
    node->chain = bucket;
    bucket = node;
  }

  void Unlink(Node* node) {
    (node->previous == nullptr ? first : node->previous->next) = node->next;
    (node->next == nullptr ? m_last : node->next->previous) = node->previous;
    node->~Node();
    m_free = new (node) FreeNode{m_free};
    --count;
  }

  // Each block doubles the map's capacity, so that a large map has few.
  void* TakeNode() {
    if (m_free == nullptr && m_left == 0) {
      const size_t nodes = static_cast<size_t>(count > m_blockSize ? count : m_blockSize);
      Block* const block =
          new (AllocateStorage(sizeof(Block) + nodes * sizeof(Node))) Block{m_blocks};
      m_blocks = block;
      m_fresh = reinterpret_cast<Node*>(block + 1);
      m_left = nodes;
    }
    if (FreeNode* const taken = m_free) {
      m_free = taken->next;
      return taken;
    }
    --m_left;
    return m_fresh++;
  }

  Node** m_table = nullptr;
  size_t m_mask = 0; // the number of buckets, a power of two, minus one
  Node* m_last = nullptr;
  FreeNode* m_free = nullptr;
  Node* m_fresh = nullptr; // the unused nodes of the newest block,
  size_t m_left = 0;       // and their number
  Block* m_blocks = nullptr;
  int m_blockSize;
};

} // namespace tq
