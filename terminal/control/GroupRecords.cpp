#include "terminal/control/GroupRecords.h"

#include <cstring>

#include "platform/CodePage.h"
#include "terminal/control/Reports.h"

namespace standin {
namespace {

constexpr int kLeastType = 1;
constexpr std::size_t kTypeDigits = 3;

// A type and an id as one key of an index. The type is in digits because the index ignores letter
// case byte by byte.
class Key {
public:
  Key(int type, std::string_view id) {
    if (type < kLeastType || type > kMostGroupType || id.size() > kLongestGroupId)
      return;
    for (std::size_t i = kTypeDigits; i > 0; --i, type /= 10)
      text_[i - 1] = static_cast<char>('0' + type % 10);
    if (!id.empty())
      std::memcpy(text_ + kTypeDigits, id.data(), id.size());
    size_ = kTypeDigits + id.size();
  }

  // Empty, which is never found, when no group can have the type or the id.
  operator std::string_view() const { return {text_, size_}; }

private:
  char text_[kTypeDigits + kLongestGroupId];
  std::size_t size_ = 0;
};

// The text as far as a record has room for it.
std::string_view CutId(const std::string& id) {
  return std::string_view(id).substr(0, kLongestGroupId);
}

} // namespace

void GroupRecords::Build(const Market& market, const Listings& listings) {
  OrderByParent(market);
  BuildRecords(market);
  BuildMembers(market, listings);
}

// A stable counting sort: the market may list groups in any order of types and parents.
void GroupRecords::OrderByParent(const Market& market) {
  ranges_.clear();
  rangeOfParent_.Reset(market.groups.size());
  std::vector<std::size_t> rangeOfGroup;
  for (const Group& group : market.groups) {
    const Key key(group.type, CutId(group.parent));
    std::size_t range = rangeOfParent_.Find(key);
    if (range == kNotFound && !std::string_view(key).empty()) {
      range = ranges_.size();
      rangeOfParent_.Add(key, range);
      ranges_.emplace_back();
    }
    rangeOfGroup.push_back(range);
    if (range != kNotFound)
      ++ranges_[range].count;
  }
  std::size_t total = 0;
  std::vector<std::size_t> next;
  for (ListingRange& range : ranges_) {
    range.first = total;
    next.push_back(total);
    total += range.count;
  }
  sources_.assign(total, 0);
  for (std::size_t i = 0; i < rangeOfGroup.size(); ++i)
    if (rangeOfGroup[i] != kNotFound)
      sources_[next[rangeOfGroup[i]]++] = i;
}

void GroupRecords::BuildRecords(const Market& market) {
  traditional_.assign(sources_.size(), GroupInfo{});
  simplified_.assign(sources_.size(), GroupInfo{});
  positionOfGroup_.Reset(sources_.size());
  for (std::size_t i = 0; i < sources_.size(); ++i) {
    const Group& group = market.groups[sources_[i]];
    const Key key(group.type, CutId(group.id));
    GroupInfo& record = traditional_[i];
    record.nType = static_cast<short>(group.type);
    tq::CopyCut(record.szID, group.id.c_str());
    record.bHasSubGroup = rangeOfParent_.Find(key) == kNotFound || group.id.empty() ? 0 : 1;
    simplified_[i] = record;
    tq::CopyCut(record.szName, Encode(group.nameTw, Language::Traditional).c_str());
    tq::CopyCut(simplified_[i].szName, Encode(group.nameCn, Language::Simplified).c_str());
    if (!group.id.empty())
      positionOfGroup_.Add(key, i);
  }
}

void GroupRecords::BuildMembers(const Market& market, const Listings& listings) {
  members_.clear();
  memberEnds_.clear();
  for (const std::size_t source : sources_) {
    for (const std::string& id : market.groups[source].members)
      if (const std::size_t listing = listings.FindId(id); listing != Listings::kNotFound)
        members_.push_back(static_cast<std::uint32_t>(listing));
    memberEnds_.push_back(members_.size());
  }
}

std::span<const GroupInfo> GroupRecords::Under(int type, std::string_view parent) const {
  const std::size_t found = rangeOfParent_.Find(Key(type, parent));
  if (found == kNotFound)
    return {};
  const bool traditional = InterfaceLanguage() == Language::Traditional;
  const std::vector<GroupInfo>& records = traditional ? traditional_ : simplified_;
  return {records.data() + ranges_[found].first, ranges_[found].count};
}

std::size_t GroupRecords::Find(int type, std::string_view id) const {
  return id.empty() ? kNotFound : positionOfGroup_.Find(Key(type, id));
}

std::span<const std::uint32_t> GroupRecords::Members(std::size_t position) const {
  const std::size_t first = position == 0 ? 0 : memberEnds_[position - 1];
  return {members_.data() + first, memberEnds_[position] - first};
}

} // namespace standin
