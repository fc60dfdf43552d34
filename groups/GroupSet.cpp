#include "groups/GroupSet.h"

CGroupSet::CGroupSet() noexcept : type(-1) {}

CGroupSet::CGroupSet(const CGroupSet&) noexcept = default;

CGroupSet& CGroupSet::operator=(const CGroupSet& other) noexcept {
  if (this == &other)
    return *this;
  type = other.type;
  id = other.id;
  name = other.name;
  subGroups = other.subGroups;
  return *this;
}

CGroupSet::~CGroupSet() = default;

bool CGroupSet::operator==(const CGroupSet& other) const noexcept {
  return type == other.type && id == other.id && name == other.name && subGroups == other.subGroups;
}

void CGroupSet::Reset() noexcept {
  type = -1;
  id.Empty();
  name.Empty();
  subGroups.clear();
}
