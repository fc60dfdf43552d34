#include "groups/GroupSet.h"

CGroupSet::CGroupSet() : type(-1) {}

CGroupSet::CGroupSet(const CGroupSet&) = default;

CGroupSet& CGroupSet::operator=(const CGroupSet& other) {
  if (this == &other)
    return *this;
  type = other.type;
  id = other.id;
  name = other.name;
  subGroups = other.subGroups;
  return *this;
}

CGroupSet::~CGroupSet() = default;

bool CGroupSet::operator==(const CGroupSet& other) const {
  return type == other.type && id == other.id && name == other.name && subGroups == other.subGroups;
}

void CGroupSet::Reset() {
  type = -1;
  id.Empty();
  name.Empty();
  subGroups.clear();
}
