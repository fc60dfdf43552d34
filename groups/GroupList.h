// A group, or a sub-group, of the symbol-data service: its record, its members, its sub-groups.
// What the terminal holds as a group handle is a pointer to one.
#pragma once

#include <memory>

#include "idlist/IDList.h"
#include "platform/services/VLProxy.h"

namespace tq {
class GroupLevel;
}

// Members are fetched from the service when they are first asked for, and kept. While the service
// fails there are none, and the next question asks again; so it does for a group whose members the
// service says are none.
class CGroupList : public CIDList, public std::enable_shared_from_this<CGroupList> {
public:
  // Id and name of the record are taken as text that ends at the width of their field at the
  // latest.
  explicit CGroupList(const GroupInfo& info);
  // The same with sub-groups; null for none.
  CGroupList(const GroupInfo& info, std::unique_ptr<tq::GroupLevel> subs);
  CGroupList(const CGroupList&) = delete;
  ~CGroupList() override;

  // These fetch the members first.
  int GetCount() override;
  bool GetAt(int index, SymbolInfo* out) override;
  const CString& GetIDs() override;
  // As those of the base, with a line in the log.
  int Update3() override;
  int Update2(SymbolInfo* records, int count) override;
  int Update1(const CString& ids) override;
  // Fetches the members unless there are some, or came while the service was asked. 0 when the
  // service failed, else 1.
  virtual int LoadSymbols();

  const GroupInfo& GetInfo() const { return info_; }
  // Cut to the record's 48 bytes at a whole character.
  void SetName(const char* name);

  // The sub-groups, in the service's order. Null for an index out of range and for an id that none
  // has; ids are compared ignoring the case of ASCII letters.
  int GetSubCount() const;
  CGroupList* GetSub(int index);
  CGroupList* FindSub(const char* id);

  // The level of the sub-groups, or null; MakeSubs makes an empty one where there is none.
  tq::GroupLevel* Subs() const { return subs_.get(); }
  tq::GroupLevel& MakeSubs();

private:
  void LogContents(const char* format);

  GroupInfo info_;
  std::unique_ptr<tq::GroupLevel> subs_;
};

namespace tq {

// To be held while a group does something that may ask the service: the terminal may remove the
// group from there. Null for null.
inline std::shared_ptr<CGroupList> KeepAlive(CGroupList* group) {
  return group == nullptr ? nullptr : group->weak_from_this().lock();
}

} // namespace tq
