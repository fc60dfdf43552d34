// From a group id to the groups that have it: the ids of a sequence of groups, numbered from 0 in
// the order in which a plain search would pass them.
#pragma once

#include <cstdint>
#include <vector>

#include "groups/GroupId.h"
#include "symboltable/KeyIndex.h"

namespace tq {

// A sequence is searched plainly so many times after each change before its index is built: a
// terminal that pushes one group after the other would pay for an index at each push.
inline constexpr int kPlainSearches = 4;

class GroupIdIndex {
public:
  static constexpr std::uint32_t kNone = 0xffffffffu;

  // Indexes the numbers 0 to count - 1; idOf(number) is the id of each.
  template <typename IdOf> void Build(std::size_t count, IdOf idOf) {
    Reset(count);
    for (std::size_t number = count; number-- > 0;)
      AddInFront(static_cast<std::uint32_t>(number), idOf(number));
  }

  // The first number with that id, and the one behind it with the same id; None when there is none.
  std::uint32_t Find(const FoldedId& id) const;
  std::uint32_t Next(std::uint32_t number) const { return nodes_[number].next; }

  // Adds the id of the next number.
  void Append(const FoldedId& id);
  // Takes the first number with an id out. The others keep theirs.
  void RemoveFirst(std::uint32_t first);

private:
  struct Node {
    FoldedId id;
    std::uint32_t next;
    std::uint32_t last; // of the numbers with this id; kept right in the first one only
  };

  void Reset(std::size_t count);
  void AddInFront(std::uint32_t number, const FoldedId& id);
  KeyIndex::Slot SlotOf(const FoldedId& id) const { return firsts_.FindCode(id, HashOf(id)); }
  void AddFirst(const FoldedId& id, std::uint32_t number);

  std::vector<Node> nodes_;
  KeyIndex firsts_;
};

} // namespace tq
