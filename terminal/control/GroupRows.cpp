#include "terminal/control/GroupRows.h"

#include "terminal/control/GroupRecords.h"
#include "terminal/control/MarketText.h"

namespace standin {
namespace {

constexpr std::size_t kLongestGroupName = sizeof(GroupInfo::szName) - 1;

std::string RowKey(const Group& group, const std::string& id) {
  return std::to_string(group.type) + '\t' + FoldedId(id);
}

} // namespace

bool GroupRows::Add(const TableFile::Row& row) {
  const std::optional<int> type = ParseNumber(row[0], 1, kMostGroupType);
  if (!type)
    return file_.Refuse("the type is no number from 1 to 201");
  if (!IsPlainId(row[1], kLongestGroupId))
    return file_.Refuse("the parent is neither \"-\" nor 1 to 16 ASCII characters");
  if (!IsPlainId(row[2], kLongestGroupId) || row[2] == "-")
    return file_.Refuse("the id is not 1 to 16 ASCII characters other than \"-\"");
  if (!Fits(row[3], kLongestGroupName) || !Fits(row[4], kLongestGroupName))
    return file_.Refuse("a name is longer than 48 bytes");
  Group group{
      *type, OptionalText(row[1]), std::string(row[2]), std::string(row[3]), std::string(row[4]),
      {}};
  if (!SplitIds(OptionalText(row[5]), group.members))
    return file_.Refuse("a member is not 1 to 19 ASCII characters");
  if (!CheckPlace(group))
    return false;
  groups_.push_back(std::move(group));
  return true;
}

// The tree has two levels. The service knows a parent by id alone, so a sub-group with the id of a
// top-level group would have the same sub-groups, and the tree would not end.
bool GroupRows::CheckPlace(const Group& group) {
  const std::string key = RowKey(group, group.id);
  const bool top = group.parent.empty();
  if (!top && !tops_.contains(RowKey(group, group.parent)))
    return file_.Refuse("the parent is no group of the first level on a line above");
  if (!seen_.insert(RowKey(group, group.parent) + '\t' + FoldedId(group.id)).second)
    return file_.Refuse("the id stands twice under its parent");
  if ((top ? subs_ : tops_).contains(key))
    return file_.Refuse("a group of the first level and a sub-group share the id");
  (top ? tops_ : subs_).insert(key);
  return true;
}

} // namespace standin
