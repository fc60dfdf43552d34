// The user's lists on the broker's server: the lists of kind 8 and the cloud map.
//
// Operations are those of CTQSymbolListMgr; manager/TQSymbolListMgr.h says for each what it takes
// and returns. The symbol-data service, the log and TQSCall may let the terminal call any of them
// from within another one.
#pragma once

#include <utility>

#include "cloud/CloudMap.h"
#include "symbollist/OwnedLists.h"
#include "symbollist/SymbolChanges.h"

class CGroupMgr;

namespace tq {

class CloudLists {
public:
  explicit CloudLists(RenameMoved rename) : rename_(std::move(rename)) {}

  const OwnedLists& Lists() const { return lists_; }
  void Clear() { lists_.Destroy(); }

  // Into the map, and into the lists.
  void Set(const CString& id, const CString& name, const CString& symbols);
  // Into the map alone.
  void SetInMap(const CString& id, const CString& name, const CString& symbols);
  // Gives a list its symbols, or adds it.
  void Update(const CString& id, const CString& name, const CString& symbols, bool allowEmpty);
  int Add(const CString& id, const CString& name, const CString& symbols, bool allowEmpty);
  void Replace(const CPtrArray& lists) { lists_.Replace(CopyAllMoved(lists, rename_)); }

  CString MapText() const { return map_.Text(); }
  // Gives one cloud group (a CGroupList, or null), or all of them, what the map says.
  void UpdateGroup(void* handle) const;
  void RefreshGroups(CGroupMgr& cloudGroups) const;

private:
  RenameMoved rename_;
  OwnedLists lists_;
  CloudMap map_;
};

} // namespace tq
