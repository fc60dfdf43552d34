// The market's groups as the symbol-data service hands them out: records built once, when the
// market is set, with those of one parent behind one another, so that a call is a look-up and a
// copy.
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

class TQSTANDIN_API GroupRecords {
public:
  static constexpr std::size_t kNotFound = IdIndex::kNotFound;

  // Groups of a type outside 1 to 201 are not served.
  void Build(const Market& market, const Listings& listings);

  // The groups under `parent` (empty: of the first level), in the market's order and the interface
  // language. ASCII letter case is ignored here and in Find.
  std::span<const GroupInfo> Under(int type, std::string_view parent) const;

  // The first group of a type with an id, on whatever level.
  std::size_t Find(int type, std::string_view id) const;
  // Where a found group's members stand in the listings, those that the market lists.
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
  std::vector<std::size_t> memberEnds_; // by a record's position; it begins where the last one ends
};

// The current market's.
TQSTANDIN_API const GroupRecords& CurrentGroups();

} // namespace standin
