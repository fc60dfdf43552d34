#include "groups/GroupList.h"

#include <utility>

#include "groups/GroupLevel.h"
#include "platform/Log.h"
#include "platform/ServiceArray.h"

CGroupList::CGroupList(const GroupInfo& info) : CGroupList(info, nullptr) {}

CGroupList::CGroupList(const GroupInfo& info, std::unique_ptr<tq::GroupLevel> subs)
    : info_(info), subs_(std::move(subs)) {
  tq::TerminateTexts(info_);
}

CGroupList::~CGroupList() = default;

int CGroupList::GetCount() {
  LoadSymbols();
  return CIDList::GetCount();
}

bool CGroupList::GetAt(int index, SymbolInfo* out) {
  LoadSymbols();
  return CIDList::GetAt(index, out);
}

const CString& CGroupList::GetIDs() {
  LoadSymbols();
  return CIDList::GetIDs();
}

int CGroupList::Update3() {
  const int result = CIDList::Update3();
  LogContents("CGroupList::Update3 GroupName=%s, Symbols=%s");
  return result;
}

int CGroupList::Update2(SymbolInfo* records, int count) {
  const int result = CIDList::Update2(records, count);
  LogContents("CGroupList::Update2 GroupName=%s, Symbols=%s");
  return result;
}

// Only this line has blanks around "=". Readers of the log look for them: do not change them.
int CGroupList::Update1(const CString& ids) {
  const int result = CIDList::Update1(ids);
  LogContents("CGroupList::Update1 GroupName = %s, Symbols = %s");
  return result;
}

// Writes what the list holds now; the own GetIDs would fetch members for it. The texts are copied
// because the terminal may change them while the line is written.
void CGroupList::LogContents(const char* format) {
  const CString name = info_.szName;
  const CString ids = CIDList::GetIDs();
  tq::LogLine(tq::kLogChange, format, name.GetString(), ids.GetString());
}

int CGroupList::LoadSymbols() {
  if (!CIDList::GetIDs().IsEmpty())
    return 1;
  tq::ServiceArray<SymbolInfo> members("VLGetGroupSymbol");
  if (VLGetGroupSymbol(info_.nType, info_.szID, members.List(), members.Count(), 1) == 0)
    return 0;
  members.Check();
  // Members that the terminal has set meanwhile, those of a cloud list for example, are kept.
  if (!CIDList::GetIDs().IsEmpty())
    return 1;
  const int count = *members.Count();
  Update2(members.Release(), count); // which releases the array
  return 1;
}

void CGroupList::SetName(const char* name) {
  tq::SetGroupName(info_, name);
}

int CGroupList::GetSubCount() const {
  return subs_ == nullptr ? 0 : subs_->Count();
}

CGroupList* CGroupList::GetSub(int index) {
  return subs_ != nullptr && subs_->Has(index) ? subs_->ListAt(index) : nullptr;
}

CGroupList* CGroupList::FindSub(const char* id) {
  return subs_ == nullptr ? nullptr : GetSub(subs_->Find(id));
}

tq::GroupLevel& CGroupList::MakeSubs() {
  if (subs_ == nullptr)
    subs_ = std::make_unique<tq::GroupLevel>();
  return *subs_;
}
