// Owners for what CTQSymbolListMgr hands out, for callers in C++: each releases what it has in the
// way that it is to be released (ownership.md), on every path. Nothing of this header is in the
// library: a terminal that wants other owners makes its own.
//
//   for (const SymbolInfo& symbol : TQGetSymbolInfos(manager, 1))
//     Show(symbol);
//   TQOwnedLists lists = TQGetSymbolLists(manager, TQListKindUser);
//   lists[0].SetName("Favourites");
//   manager.SetSymbolList(&lists.Array());
//
// An owner can be moved, not copied. None of it throws.
#pragma once

#include <memory>
#include <utility>

#include "manager/TQSymbolListMgr.h"

struct TQReleaseToService {
  void operator()(void* records) const noexcept { VLFree(records); }
};
struct TQReleaseToManager {
  void operator()(SymbolInfo* records) const noexcept {
    CTQSymbolListMgr::FreeSymbolInfos(records);
  }
};

// An array of records. Without a success it has none.
template <class RECORD, class RELEASE> class TQOwnedRecords {
public:
  TQOwnedRecords() noexcept = default;
  // Runs `call`, which takes a RECORD** and an int* and answers non-zero for success, and keeps
  // what it hands out.
  template <class CALL> explicit TQOwnedRecords(CALL&& call) noexcept {
    RECORD* records = nullptr;
    int count = 0;
    succeeded_ = call(&records, &count) != 0;
    records_.reset(records);
    count_ = succeeded_ && records != nullptr && count > 0 ? count : 0;
  }
  TQOwnedRecords(TQOwnedRecords&& other) noexcept { *this = std::move(other); }
  TQOwnedRecords& operator=(TQOwnedRecords&& other) noexcept {
    records_ = std::move(other.records_);
    count_ = std::exchange(other.count_, 0);
    succeeded_ = std::exchange(other.succeeded_, false);
    return *this;
  }

  // Whether the operation succeeded; nothing found is a success, too.
  explicit operator bool() const noexcept { return succeeded_; }
  int Count() const noexcept { return count_; }
  // 0 <= index < Count().
  const RECORD& operator[](int index) const noexcept { return records_.get()[index]; }
  const RECORD* begin() const noexcept { return records_.get(); }
  const RECORD* end() const noexcept { return records_.get() + count_; }

private:
  std::unique_ptr<RECORD[], RELEASE> records_;
  int count_ = 0;
  bool succeeded_ = false;
};

template <class RECORD> using TQServiceRecords = TQOwnedRecords<RECORD, TQReleaseToService>;
using TQManagerRecords = TQOwnedRecords<SymbolInfo, TQReleaseToManager>;

// GetSymbolInfos, GetBaseAttrs and GetAllSymbolInfos of the manager.
inline TQServiceRecords<SymbolInfo> TQGetSymbolInfos(CTQSymbolListMgr& manager, int exchId,
                                                     int subId = -1) noexcept {
  return TQServiceRecords<SymbolInfo>([&](SymbolInfo** records, int* count) {
    return manager.GetSymbolInfos(exchId, subId, records, count);
  });
}
inline TQServiceRecords<BaseAttr> TQGetBaseAttrs(CTQSymbolListMgr& manager,
                                                 const char* symbols) noexcept {
  return TQServiceRecords<BaseAttr>([&](BaseAttr** records, int* count) {
    return manager.GetBaseAttrs(symbols, records, count);
  });
}
inline TQManagerRecords TQGetAllSymbolInfos(CTQSymbolListMgr& manager) noexcept {
  return TQManagerRecords(
      [&](SymbolInfo** records, int* count) { return manager.GetAllSymbolInfos(records, count); });
}

// Copies of lists, each made with `new`.
class TQOwnedLists {
public:
  TQOwnedLists() noexcept = default;
  TQOwnedLists(TQOwnedLists&&) noexcept = default;
  TQOwnedLists& operator=(TQOwnedLists&& other) noexcept {
    TQOwnedLists taken(std::move(other)); // other's may be this one's
    DeleteAll();
    lists_ = std::move(taken.lists_);
    return *this;
  }
  ~TQOwnedLists() { DeleteAll(); }

  int Count() const noexcept { return lists_.GetSize(); }
  // 0 <= index < Count(); another index stops the program, as in a CPtrArray.
  CSymbolList& operator[](int index) const { return *static_cast<CSymbolList*>(lists_[index]); }

  // The array itself, for the operations that take one and copy its lists (SetSymbolList,
  // SetCloudSymbolList, IsModifyList) or append copies to it (GetSymbolList). The lists stay this
  // object's.
  CPtrArray& Array() noexcept { return lists_; }

  void Add(std::unique_ptr<CSymbolList> list) {
    if (list != nullptr)
      lists_.Add(list.release());
  }
  // Takes one out, and the others close up.
  std::unique_ptr<CSymbolList> Take(int index) {
    std::unique_ptr<CSymbolList> list(&(*this)[index]);
    lists_.RemoveAt(index);
    return list;
  }

private:
  void DeleteAll() noexcept {
    for (int i = 0; i < Count(); ++i)
      delete static_cast<CSymbolList*>(lists_[i]);
    lists_.RemoveAll();
  }

  CPtrArray lists_;
};

// Copies of all lists of a kind; none for a kind that has none.
inline TQOwnedLists TQGetSymbolLists(CTQSymbolListMgr& manager, int kind) noexcept {
  TQOwnedLists lists;
  manager.GetSymbolList(lists.Array(), kind);
  return lists;
}
