// CMap: a hash map. KEY and VALUE are the types that it stores, ARG_KEY and ARG_VALUE those of
// arguments: with KEY CString and ARG_KEY const char* a look-up constructs no string.
//
// Conventions that hold for every operation of this header
//  1. The map owns its keys and values; of pointers it owns the pointers, not what they point to.
//  2. Keys are compared with == (KEY against ARG_KEY) and hashed with tq::HashKey (HashKey.h).
//  3. Iteration is in the order in which the keys were first set; removing a key and setting it
//     again moves it to the end.
//  4. A value stays at its address until its key is removed, however the map grows. New values
//     without a given value are value-initialised.
//  5. Look-ups, setting and removing take constant time and look-ups allocate nothing.
//  6. One map is used by one thread at a time. Storage comes from tqFramework (Storage.h).
#pragma once

#include <cstddef>
#include <utility>

#include "platform/framework/HashKey.h"
#include "platform/framework/InvalidArgument.h"
#include "platform/framework/MapStorage.h"

namespace tq {
struct MapPosition;
}

// A position in an iteration over a map; null is the end.
using POSITION = tq::MapPosition*;

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap {
public:
  // One key with its value.
  using CPair = tq::MapPair<KEY, VALUE>;

  // `blockSize` is the number of entries that the map first makes room for.
  explicit CMap(int blockSize = 10) noexcept : m_store(blockSize) {}
  ~CMap() { m_store.Release(); }
  CMap(const CMap&) = delete;
  CMap& operator=(const CMap&) = delete;

  int GetCount() const noexcept { return m_store.count; }
  int GetSize() const noexcept { return m_store.count; }
  bool IsEmpty() const noexcept { return m_store.count == 0; }

  // Copies the value under `key` and returns true; false, with `value` as it was, when there is
  // none.
  bool Lookup(ARG_KEY key, VALUE& value) const {
    const Node* const node = m_store.Find(key, tq::HashKey(key));
    if (node == nullptr)
      return false;
    value = node->value;
    return true;
  }

  // The entry itself; null when there is none. It is valid until the key is removed.
  const CPair* PLookup(ARG_KEY key) const { return m_store.Find(key, tq::HashKey(key)); }
  CPair* PLookup(ARG_KEY key) { return m_store.Find(key, tq::HashKey(key)); }

  // The value under `key`, which is added where it is missing.
  VALUE& operator[](ARG_KEY key) { return m_store.FindOrAdd(key, tq::HashKey(key)).value; }

  // Puts `value` under `key`, in the place of the one that is there.
  void SetAt(ARG_KEY key, ARG_VALUE value) { (*this)[key] = value; }

  // Removes the key and its value; false when there is none.
  bool RemoveKey(ARG_KEY key) { return m_store.Remove(key, tq::HashKey(key)); }
  // Removes all entries and frees the memory.
  void RemoveAll() noexcept { m_store.Release(); }

  // Iterates over all entries: from GetStartPosition, null for an empty map, until GetNextAssoc
  // sets the position to null. Meanwhile the entry just returned may be removed; no other may be,
  // and none may be added. A null position is a programming error and stops the program.
  POSITION GetStartPosition() const noexcept { return PositionOf(m_store.first); }
  void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const {
    if (position == nullptr)
      tq::InvalidArgument("CMap::GetNextAssoc: no entry at this position");
    const Node* const node = reinterpret_cast<const Node*>(position);
    position = PositionOf(node->next);
    key = node->key;
    value = node->value;
  }

  // Reserves a table for `size` entries. Optional: the table grows by itself.
  void InitHashTable(unsigned int size, bool allocateNow = true) {
    if (allocateNow)
      m_store.ResizeTable(size);
  }

private:
  using Node = typename tq::MapStorage<KEY, VALUE>::Node;

  static POSITION PositionOf(const Node* node) noexcept {
    return reinterpret_cast<POSITION>(const_cast<Node*>(node));
  }

  tq::MapStorage<KEY, VALUE> m_store;
};
