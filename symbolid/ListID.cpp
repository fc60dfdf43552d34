// Identities of symbol sources: what they hold, and how they compare.
#include "symbolid/ListID.h"

#include <utility>

namespace {

bool IsGroupType(ListIDType type) {
  return type == ListIDGroup || type == ListIDGroup3 || type == ListIDGroup101 ||
         type == ListIDCloudGroup;
}

} // namespace

CListID::CListID() noexcept : type_(ListIDNone), orgType_(ListIDNone) {}
CListID::CListID(const CListID& other) noexcept = default;
CListID::~CListID() = default;

CListID& CListID::operator=(const CListID& other) noexcept {
  CListID copy(other);
  swap(copy);
  return *this;
}

void CListID::swap(CListID& other) noexcept {
  std::swap(type_, other.type_);
  std::swap(id_, other.id_);
  std::swap(name_, other.name_);
  std::swap(symbolList_, other.symbolList_);
  std::swap(orgId_, other.orgId_);
  std::swap(orgType_, other.orgType_);
}

ListIDType CListID::GetType() const {
  return type_;
}

CString CListID::GetID() const {
  return id_;
}

CString CListID::GetOrgID() const {
  return orgId_;
}

void CListID::SetOrgID(const CString& id) {
  orgId_ = id;
}

ListIDType CListID::GetOrgType() const {
  return orgType_;
}

void CListID::SetOrgType(ListIDType type) {
  orgType_ = type;
}

CString CListID::GetName() const noexcept {
  return name_;
}

CString CListID::GetSymbolList() const noexcept {
  return symbolList_;
}

void CListID::SetData(ListIDType type, const CString& id, int /*reserved*/) noexcept {
  type_ = type;
  id_ = id;
}

CString CListID::GetGroupID() const noexcept {
  const int comma = id_.Find(',');
  return comma < 0 ? id_ : id_.Left(comma);
}

CString CListID::GetSubGroupID() const noexcept {
  const int comma = id_.Find(',');
  return comma < 0 ? CString() : id_.Mid(comma + 1);
}

bool CListID::IsEqualGroup(const CListID& other) const noexcept {
  return IsGroupType(type_) && type_ == other.type_ && GetGroupID() == other.GetGroupID();
}

bool CListID::operator==(const CListID& other) const noexcept {
  return type_ == other.type_ && id_ == other.id_;
}

bool CListID::operator!=(const CListID& other) const noexcept {
  return !(*this == other);
}

int CListID::SetNameAndList(const CString& name, const CString& list) noexcept {
  if (type_ != ListIDUserList)
    return 0;
  name_ = name;
  symbolList_ = list;
  return 1;
}

int CListID::IsValid() {
  if (type_ < ListIDNone || type_ > ListIDCloudGroup)
    return 0;
  if (type_ == ListIDUserList || IsGroupType(type_))
    return !id_.IsEmpty();
  // The other types need no id. A name without content, or the reverse, is dropped.
  if (name_.IsEmpty() || symbolList_.IsEmpty()) {
    name_.Empty();
    symbolList_.Empty();
  }
  return 1;
}

// Does nothing, and must not: terminals read a new text into an identity that has a name and an
// original identity, and go on using those.
void CListID::Clear() {}
