// CListID: which source of symbols a page of the terminal shows. A list of the user's, a group or
// sub-group of the symbol-data service, all symbols. It turns itself into a short text, which
// terminals keep in their own settings, and back; for a user list also into a longer text that
// carries the list's name and content, so that it can be shown where the list is not known.
//
// Conventions that hold for all of it
//  1. A value: copies are independent. It may be used on any thread, one object at a time, except
//     that the operations that take a manager belong to the user-interface thread.
//  2. Text is in the process's ANSI code page, of any length.
//  3. Results are int: non-zero for success or "yes", 0 for failure or "no". Nothing throws, and no
//     text makes an operation fail loudly: what cannot be read gets an empty id, and mostly type 1,
//     which is not valid.
//  4. Of a group with a sub-group the id is both, joined by a comma: "2,01".
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
  // Exchanges all that two of them hold.
  void swap(CListID& other) noexcept;

  ListIDType GetType() const override;
  CString GetID() const override;
  // The identity that this one had at first, kept for whoever set it: not compared, not written.
  CString GetOrgID() const override;
  void SetOrgID(const CString& id) override;
  ListIDType GetOrgType() const override;
  void SetOrgType(ListIDType type) override;
  // Name and content; empty but for user lists. The content is symbol ids joined by ",".
  CString GetName() const noexcept;
  CString GetSymbolList() const noexcept;

  // Sets type and id, of which nothing is checked. Name and content stay. The number is not used.
  void SetData(ListIDType type, const CString& id, int reserved) noexcept;

  // "<type>,<id>": "2,01". Type 0 is written as 1. Of type 4 the label for all symbols in the
  // interface language stands in place of the id.
  CString ToString() const override;
  // The same, and for a user list with name and content ";<name>,<content>" behind it:
  // "1,A1;Favourites,2330.TW,2317.TW". A name with a comma is cut there when it is read back, and
  // an id with a semicolon likewise.
  CString ToStringForList() const override;
  // Reads what ToString writes: one character of type, a comma, the id. A text that reads as the
  // number 6 need not have the comma in second place: its id begins at the third character all the
  // same. The digit alone of a type that needs an id (1, 2, 3, 7, 8) gives that type with an empty
  // id. Other texts give type 1 with an empty id. Name and content stay as they are. Returns
  // whether the result is valid: a type of 0 to 8 and, for types 1, 2, 3, 7 and 8, an id. Of the
  // other types name and content are emptied unless both are there.
  int FromString(const CString& text) override;
  // Reads what ToStringForList writes; the id ends at the first ";". For type 1 name and content
  // are the texts around the first comma behind it; what is missing is empty. Texts whose first
  // comma is not in second place give type 1 with an empty id. Returns as FromString does.
  int FromStringForList(const CString& text) override;

  // Takes over a group of the service, "<group type>,<id>" with one digit of type: 1 becomes type
  // 2, 3 type 3. Returns 1, or 0 with nothing changed for any other text. An empty id is taken over
  // too, and 0 returned, as it names no group.
  int ConvertFromGroupID(const char* groupId) noexcept;
  // The id up to its first comma, and behind it: the group, and the sub-group or "".
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
