// The lines of groups.tsv.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "terminal/control/TableFile.h"

namespace standin {

class GroupRows {
public:
  static constexpr std::string_view kColumns = "type\tparent\tid\tname_tw\tname_cn\tmembers";

  GroupRows(TableFile& file, std::vector<Group>& groups) : file_(file), groups_(groups) {}

  // Adds the group of a line. Refuses a bad line and returns false.
  bool Add(const TableFile::Row& row);

private:
  bool CheckPlace(const Group& group);

  TableFile& file_;
  std::vector<Group>& groups_;
  std::set<std::string> tops_; // type and id of the top-level groups
  std::set<std::string> subs_; // type and id of the sub-groups
  std::set<std::string> seen_; // type, parent and id of all
};

} // namespace standin
