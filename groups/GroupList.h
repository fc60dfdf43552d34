// A group, or a sub-group, of the symbol-data service: its record, its members, its sub-groups.
// What the terminal holds as a group handle is a pointer to one.
#pragma once

#include <memory>

#include "platform/services/VLProxy.h"
#include "symbollist/IDList.h"

namespace tq {
class GroupLevel;
}

// Members are fetched lazily and kept. An empty group, or one for which the service failed, asks
// the service again at the next call.
class CGroupList : public CIDList, public std::enable_shared_from_this<CGroupList> {
public:
  // The texts of the record may lack their NUL.
  explicit CGroupList(const GroupInfo& info);
  // Takes over the sub-groups; null for none.
  CGroupList(const GroupInfo& info, std::unique_ptr<tq::GroupLevel> subs);
  CGroupList(const CGroupList&) = delete;
  ~CGroupList() override;

  // These fetch the members first.
  int GetCount() override;
  bool GetAt(int index, SymbolInfo* out) override;
  const CString& GetIDs() override;
  // Those of the base class, with a line in the log.
  int Update3() override;
  int Update2(SymbolInfo* records, int count) override;
  int Update1(const CString& ids) override;
  // Fetches the members if the group has none. Members that the terminal sets while the service is
  // asked are kept. 0 when the service fails, else 1.
  virtual int LoadSymbols();

  const GroupInfo& GetInfo() const { return info_; }
  // Cut to the record's 48 bytes at a whole character.
  void SetName(const char* name);

  // The sub-groups, in the service's order. Null for an index out of range and for an unknown id;
  // ids are compared ignoring the case of ASCII letters.
  int GetSubCount() const;
  CGroupList* GetSub(int index);
  CGroupList* FindSub(const char* id);

  // The level of the sub-groups, or null. MakeSubs makes an empty one if there is none.
  tq::GroupLevel* Subs() const { return subs_.get(); }
  tq::GroupLevel& MakeSubs();

private:
  void LogContents(const char* format);

  GroupInfo info_;
  std::unique_ptr<tq::GroupLevel> subs_;
};

namespace tq {

// Hold this while a group may ask the service: the terminal is re-entrant there and may remove the
// group. Null for null.
inline std::shared_ptr<CGroupList> KeepAlive(CGroupList* group) {
  return group == nullptr ? nullptr : group->weak_from_this().lock();
}

} // namespace tq
