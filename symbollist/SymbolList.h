// One watch list: ids with an identifier, a display name and the mark of a system list.
#pragma once

#include <string>

#include "idlist/IDList.h"
#include "platform/CodePage.h"
#include "symbollist/TQSymbolListInfo.h"

namespace tq {
class ListFollower;
class ListIndex;
class XmlElement;

// A list as one element of the list file, put behind what `document` holds:
// <List ID='%s' Name='%s' Value='%s' Flag='%d'/> and a line feed.
void AppendListElement(const TQSymbolListInfo& list, const CString& ids, std::string& document);
} // namespace tq

// The terminal gets lists from CTQSymbolListMgr: live ones, which stay the manager's, or copies,
// which it deletes.
class TQSYMBOL_API CSymbolList : public CIDList {
public:
  CSymbolList() noexcept;
  // Copies everything and works the system flag out anew. The service is not asked.
  CSymbolList(const CSymbolList& other) noexcept;
  CSymbolList& operator=(const CSymbolList&) = delete;
  ~CSymbolList() override;

  // Copies identifier and name into `*out`. Null is allowed and does nothing.
  void GetListInfo(TQSymbolListInfo* out) const noexcept {
    if (out != nullptr)
      *out = info_;
  }
  CString GetID() const noexcept { return CString(info_.ID); }
  CString GetName() const noexcept { return CString(info_.Name); }
  // Whether `id` is this list's identifier, ignoring letter case. A null id is no list's.
  bool IsSameID(const char* id) const noexcept {
    return id != nullptr && tq::CompareNoCase(id, info_.ID) == 0;
  }
  // Whether `name` is this list's display name, ignoring letter case. A null name is no list's.
  bool IsSameName(const char* name) const noexcept {
    return name != nullptr && tq::CompareNoCase(name, info_.Name) == 0;
  }
  // 1 when the identifier is one of the six system ids, ignoring letter case, else 0.
  int GetFlag() const noexcept { return flag_; }

  // Reads the list from a List element of the list file: the attributes ID, Name and Value; Flag is
  // worked out from the identifier, whatever the file says. Returns 0, with the list empty, when
  // the element carries no attributes at all, else 1. The ids are resolved at once.
  int FillFromElement(const tq::XmlElement& element) noexcept;

  // Identifiers are kept up to 36 bytes and names up to 64, both cut at a whole character; bytes
  // that the list file cannot hold are left out, with a line in the log. Setting the identifier
  // works the system flag out anew.
  void SetID(const char* id) noexcept;
  void SetName(const char* name) noexcept;

  // The list as one element of the list file:
  // <List ID='%s' Name='%s' Value='%s' Flag='%d'/> and a line feed. Nothing is escaped: names are
  // screened where they are entered, and the file must come back as it was.
  void ToXml(CString& out) noexcept;
  // The same, put behind what `document` holds, and the room that it needs there.
  void AppendXml(std::string& document) noexcept;
  size_t XmlLength() noexcept;

private:
  friend class tq::ListIndex;

  void UpdateFlag();

  TQSymbolListInfo info_;
  int flag_;
  tq::ListFollower* follower_ = nullptr; // the index that finds this list
  long long order_ = 0;                  // its order number there
};
