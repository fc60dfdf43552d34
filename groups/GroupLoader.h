// Reads the tree of groups of one type from the symbol-data service.
//
// A sound service publishes two levels. A broken one may name a group as its own sub-group, or a
// group above it, and would keep the library asking for ever. A group that stands above itself has,
// by the service's own answers, no end, so it is not asked for again. What else is broken is held
// by two limits far beyond what any service publishes.
#pragma once

#include <vector>

#include "groups/GroupArena.h"
#include "groups/GroupLevel.h"

namespace tq {

// Levels of a tree; what lies deeper is not asked for. Callers reach three.
inline constexpr std::size_t kDeepestLevel = 8;
// Groups of a type, sub-groups of all levels included; what the service lists beyond them is left
// out.
inline constexpr std::size_t kMostGroups = 1'000'000;

class GroupLoader {
public:
  // Puts the records into an arena, which outlives the levels.
  explicit GroupLoader(GroupArena& arena) : arena_(arena) {}

  // Fills an empty level with the groups of the type. False, and the level stays empty, when the
  // service fails. A failure below leaves that group without sub-groups.
  bool Load(int type, GroupLevel& groups);

private:
  struct Asked {
    int type;
    const char* id; // of a record above in the tree, or ""
  };
  struct Answer {
    std::span<const GroupInfo> records;
    bool haveSubs; // one of them says that it has sub-groups
  };

  bool Ask(const Asked& asked, Answer& answer);
  Answer Keep(std::span<const GroupInfo> records);
  void FillSubGroups(const Asked& asked, const Answer& groups, GroupLevel& level);
  bool MayAsk(const Asked& subs) const;
  bool IsAskedAbove(const Asked& asked) const;

  GroupArena& arena_;
  std::vector<Asked> path_; // what was asked for on the way to the level that is being filled
  std::size_t count_ = 0;   // groups so far
};

} // namespace tq
