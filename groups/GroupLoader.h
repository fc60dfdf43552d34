// Reads the tree of groups of one type from the symbol-data service.
//
// A sound service publishes two levels. A broken one may name a group as its own sub-group, or a
// group above it, which would never end. So a group that stands above itself is not asked for
// again, and two limits far beyond what any service publishes bound the rest.
#pragma once

#include <vector>

#include "groups/GroupLevel.h"

namespace tq {

// Levels of a tree; deeper ones are not asked for. Callers reach three.
inline constexpr std::size_t kDeepestLevel = 8;
// Groups of a type on all levels; what the service lists beyond them is left out.
inline constexpr std::size_t kMostGroups = 1'000'000;

class GroupLoader {
public:
  // Fills an empty level with the groups of the type. False, and the level stays empty, when the
  // service fails. A failure below leaves that group without sub-groups.
  bool Load(int type, GroupLevel& groups);

private:
  struct Asked {
    int type;
    const char* id; // of a record in the level above, or ""
  };

  bool Fill(const Asked& asked, GroupLevel& level);
  bool Ask(const Asked& asked, GroupLevel& level, bool& haveSubs);
  void FillSubGroups(const Asked& asked, GroupLevel& level);
  bool MayAsk(const Asked& asked) const;
  bool IsAskedAbove(const Asked& asked) const;

  std::vector<Asked> path_; // the questions that led to the level being filled
  std::size_t count_ = 0;   // groups so far
};

} // namespace tq
