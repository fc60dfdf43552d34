// The market's groups as the symbol-data service hands them out. The records are built once, when
// the market is set, with those of one parent in sequence, so that a call is a look-up and a copy.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "terminal/StandIn.h"
#include "terminal/control/IdIndex.h"
#include "terminal/control/Listings.h"

namespace standin {

inline constexpr int kMostGroupType = 201;
inline constexpr std::size_t kLongestGroupId = sizeof(GroupInfo::szID) - 1;

class TQSTANDIN_API GroupRecords {
public:
  static constexpr std::size_t kNotFound = IdIndex::kNotFound;

  // Groups of a type outside 1 to 201 are not served.
  void Build(const Market& market, const Listings& listings);

  // The groups under `parent` (empty: the first level) in the market's order and in the interface
  // language. ASCII letter case is ignored here and in Find.
  std::span<const GroupInfo> Under(int type, std::string_view parent) const;

  // The first group of a type with an id, on whatever level.
  std::size_t Find(int type, std::string_view id) const;
  // Where the members of a found group are among the listings; ids that the market does not list
  // are left out.
  std::span<const std::uint32_t> Members(std::size_t position) const;

private:
  void OrderByParent(const Market& market);
  void BuildRecords(const Market& market);
  void BuildMembers(const Market& market, const Listings& listings);

  std::vector<std::size_t> sources_; // from a record's position to the market's groups
  std::vector<GroupInfo> traditional_;
  std::vector<GroupInfo> simplified_;
  std::vector<ListingRange> ranges_; // one for each type and parent
  IdIndex rangeOfParent_;
  IdIndex positionOfGroup_;
  std::vector<std::uint32_t> members_;
  std::vector<std::size_t> memberEnds_; // where each record's range ends and the next begins
};

// The current market's.
TQSTANDIN_API const GroupRecords& CurrentGroups();

} // namespace standin
