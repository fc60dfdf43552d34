// Where the records of a type's groups are kept as the service handed them out: thousands of short
// arrays, one for each group with sub-groups, which are all let go at once.
#pragma once

#include <algorithm>
#include <memory>
#include <span>
#include <vector>

#include "platform/services/VLRecords.h"

namespace tq {

class GroupArena {
public:
  // Room for `count` records, which the caller fills. It stays where it is until Clear.
  std::span<GroupInfo> Take(std::size_t count) {
    if (count > room_.size())
      AddChunk(count);
    const std::span<GroupInfo> taken = room_.first(count);
    room_ = room_.subspan(count);
    return taken;
  }

  void Clear() {
    room_ = {};
    chunks_.clear();
    nextChunk_ = kFirstChunk;
  }

private:
  static constexpr std::size_t kFirstChunk = 16; // most types have a few groups
  static constexpr std::size_t kLargestChunk = 1024;

  void AddChunk(std::size_t count) {
    const std::size_t size = std::max(count, nextChunk_);
    nextChunk_ = std::min(2 * nextChunk_, kLargestChunk);
    room_ = {chunks_.emplace_back(std::make_unique_for_overwrite<GroupInfo[]>(size)).get(), size};
  }

  std::vector<std::unique_ptr<GroupInfo[]>> chunks_;
  std::span<GroupInfo> room_; // what is left of the last one
  std::size_t nextChunk_ = kFirstChunk;
};

} // namespace tq
