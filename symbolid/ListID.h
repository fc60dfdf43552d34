// CListID: the identity of a page's source of symbols: a list of the user's, a group or sub-group
// of the symbol-data service, all symbols. It converts to and from a short text, which terminals
// keep in their settings. For a user list there is also a longer text with the list's name and
// content, so that the list can be shown where it is not known.
//
// Conventions that hold for all of it
//  1. A value type: copies are independent. Any thread, one object at a time; operations that take
//     a manager only on the user-interface thread.
//  2. Text is in the process's ANSI code page, of any length.
//  3. Results are int: non-zero for success or "yes", 0 for failure or "no". Nothing throws. A text
//     that cannot be parsed gives an empty id, in most cases with type 1, which is not valid.
//  4. The id of a sub-group is the group's and its own, joined by a comma: "2,01".
//  5. The text forms are stored by terminals: do not change them.
#pragma once

#include "platform/framework/CString.h"
#include "tqSymbolApi.h"

class CTQSymbolListMgr;

// Kinds of sources. Stored as numbers: do not change them. 5 is not used.
enum ListIDType : int {
  ListIDNone = 0,       // written as 1
  ListIDUserList = 1,   // id: a list's identifier; the only kind with name and content
  ListIDGroup = 2,      // id: a group of the service's group type 1, or of one without a kind here
  ListIDGroup3 = 3,     // id: a group of group type 3
  ListIDAllSymbols = 4, // no id; its text shows a label for people
  ListIDHoldings = 6,   // id: a list from a trading account
  ListIDGroup101 = 7,   // id: a group of group type 101
  ListIDCloudGroup = 8, // id: a group of group type 201, the cloud lists
};

// What CListID can do, for those who pass identities on without knowing the class. The slots stand
// in this order: add none in between. Nothing is deleted through this base.
class TQSYMBOL_API CListIDUtil {
public:
  virtual ListIDType GetType() const = 0;
  virtual CString GetID() const = 0;
  virtual CString GetOrgID() const = 0;
  virtual void SetOrgID(const CString& id) = 0;
  virtual ListIDType GetOrgType() const = 0;
  virtual void SetOrgType(ListIDType type) = 0;
  virtual CString ToString() const = 0;
  virtual CString ToStringForList() const = 0;
  virtual int FromString(const CString& text) = 0;
  virtual int FromStringForList(const CString& text) = 0;

protected:
  CListIDUtil() = default;
  CListIDUtil(const CListIDUtil&) = default;
  CListIDUtil& operator=(const CListIDUtil&) = default;
  ~CListIDUtil() = default;
};

// A terminal may derive from it. What a derived class overrides holds for CListIDUtil as well.
class TQSYMBOL_API CListID : public CListIDUtil {
public:
  // Type 0, all texts empty.
  CListID() noexcept;
  CListID(const CListID& other) noexcept;
  CListID& operator=(const CListID& other) noexcept;
  virtual ~CListID();
  // Swaps all contents.
  void swap(CListID& other) noexcept;

  ListIDType GetType() const override;
  CString GetID() const override;
  // An original identity, stored for the caller: neither compared nor written.
  CString GetOrgID() const override;
  void SetOrgID(const CString& id) override;
  ListIDType GetOrgType() const override;
  void SetOrgType(ListIDType type) override;
  // Name and content of a user list; empty for other types. The content is symbol ids joined by
  // ",".
  CString GetName() const noexcept;
  CString GetSymbolList() const noexcept;

  // Sets type and id without any check. Name and content stay. `reserved` is ignored.
  void SetData(ListIDType type, const CString& id, int reserved) noexcept;

  // "<type>,<id>": "2,01". Type 0 is written as 1. Type 4 has the label for all symbols, in the
  // interface language, instead of an id.
  CString ToString() const override;
  // The same, followed for a user list with name and content by ";<name>,<content>":
  // "1,A1;Favourites,2330.TW,2317.TW". When it is read back, a name ends at its first comma and an
  // id at its first semicolon.
  CString ToStringForList() const override;
  // Parses what ToString writes: one character of type, a comma, the id. A text that reads as the
  // number 6 need not have the comma in second place; its id still begins at the third character.
  // The single digit of a type that needs an id (1, 2, 3, 7, 8) gives that type with an empty id.
  // Other texts give type 1 with an empty id. Name and content stay. Returns whether the result is
  // valid: a type of 0 to 8 and, for types 1, 2, 3, 7 and 8, an id. For the other types name and
  // content are emptied unless both are set.
  int FromString(const CString& text) override;
  // Parses what ToStringForList writes; the id ends at the first ";". For type 1 name and content
  // are the texts before and after the first comma behind it; a missing one is empty. A text whose
  // first comma is not in second place gives type 1 with an empty id. Returns as FromString does.
  int FromStringForList(const CString& text) override;

  // Sets type and id from a group of the service, "<group type>,<id>" with one digit of type: 1
  // gives type 2, 3 gives type 3. Returns 1, or 0 with nothing changed for any other text. An empty
  // id is set too, but returns 0, as it names no group.
  int ConvertFromGroupID(const char* groupId) noexcept;
  // The group and the sub-group: the id before and after its first comma. Without one the sub-group
  // is empty.
  CString GetGroupID() const noexcept;
  CString GetSubGroupID() const noexcept;
  // Whether both are groups (types 2, 3, 7, 8), of one type and with the same group part, letter
  // case regarded. Other types are no groups, so never.
  bool IsEqualGroup(const CListID& other) const noexcept;

  // Type and id, letter case regarded; nothing else is compared.
  bool operator==(const CListID& other) const noexcept;
  bool operator!=(const CListID& other) const noexcept;

  // Sets name and content of a user list. 0 for any other type, with nothing changed.
  int SetNameAndList(const CString& name, const CString& list) noexcept;
  // The same with what the manager's user list of this id has. A name of the manager's goes before
  // `name`, which stands when the manager does not know the list; the content is then empty. 0,
  // with nothing changed, without a manager. The manager stays the caller's.
  int SetNameAndList(const CString& name, CTQSymbolListMgr* mgr) noexcept;
  int SetNameAndList(CTQSymbolListMgr* mgr) noexcept;

private:
  int IsValid();
  void Clear();
  void ReadTypeAndID(const CString& text);
  void AddNameAndSymbolList(CString& text) const;
  void GetNameAndSymbolList(CString text);
  static void CutStringAndGetParamBefore(CString& text, char separator, CString& before);

  ListIDType type_;
  CString id_;
  CString name_;
  CString symbolList_;
  CString orgId_;
  ListIDType orgType_;
};
