// The text forms of identities.
#include <string_view>

#include "platform/LibraryString.h"
#include "platform/Text.h"
#include "symbolid/ListID.h"

namespace {

constexpr char kTypeMark = ',';
constexpr char kListMark = ';';
// One character of type, the mark, the id.
constexpr int kTypeMarkPosition = 1;
constexpr int kIdPosition = 2;

ListIDType TypeOf(const CString& text) {
  return ListIDType{tq::LeadingInt(tq::ViewOf(text).substr(0, kTypeMarkPosition))};
}

bool HasMarkInPlace(const CString& text) {
  return text.Find(kTypeMark) == kTypeMarkPosition;
}

// The digit of a type that needs an id, and nothing behind it.
bool IsTypeWithoutItsId(const CString& text) {
  constexpr std::string_view typesWithId = "12378";
  return text.GetLength() == kTypeMarkPosition && typesWithId.find(text[0]) != typesWithId.npos;
}

struct GroupKind {
  int groupType; // the service's
  ListIDType type;
};

// The group types of three digits are never met, as one character is read. They are no licence to
// read more of them: a terminal that stored "201,x" has lived with its being refused.
constexpr GroupKind kGroupKinds[] = {
    {1, ListIDGroup}, {201, ListIDGroup}, {3, ListIDGroup3}, {101, ListIDGroup101}};

} // namespace

CString CListID::ToString() const {
  const CString id = type_ == ListIDAllSymbols ? tq::LibraryString(tq::kStringAllSymbols) : id_;
  CString text;
  text.Format("%d,%s", type_ == ListIDNone ? int{ListIDUserList} : int{type_}, id.GetString());
  return text;
}

CString CListID::ToStringForList() const {
  CString text = ToString();
  AddNameAndSymbolList(text);
  return text;
}

void CListID::AddNameAndSymbolList(CString& text) const {
  if (type_ != ListIDUserList || name_.IsEmpty() || symbolList_.IsEmpty())
    return;
  text += kListMark;
  text += name_;
  text += kTypeMark;
  text += symbolList_;
}

void CListID::ReadTypeAndID(const CString& text) {
  type_ = TypeOf(text);
  id_ = text.Mid(kIdPosition);
}

int CListID::FromString(const CString& text) {
  Clear();
  // Holdings are read without the comma in second place: "6" alone and "6x12" are of that type,
  // with nothing and "12" as their id. The type is the first character's even so, which differs for
  // " 6". "3" alone keeps its type too, so that the terminal can say what is missing; it is not
  // valid.
  if (tq::LeadingInt(tq::ViewOf(text)) == ListIDHoldings || HasMarkInPlace(text) ||
      IsTypeWithoutItsId(text)) {
    ReadTypeAndID(text);
  } else {
    type_ = ListIDUserList;
    id_.Empty();
  }
  return IsValid();
}

int CListID::FromStringForList(const CString& text) {
  Clear();
  if (HasMarkInPlace(text)) {
    const int end = text.Find(kListMark, kIdPosition);
    ReadTypeAndID(end < 0 ? text : text.Left(end));
  } else {
    type_ = ListIDUserList;
    id_.Empty();
  }
  if (type_ == ListIDUserList) {
    const int mark = text.Find(kListMark);
    GetNameAndSymbolList(mark < 0 ? CString() : text.Mid(mark + 1));
  }
  return IsValid();
}

void CListID::GetNameAndSymbolList(CString text) {
  name_.Empty();
  CutStringAndGetParamBefore(text, kTypeMark, name_);
  symbolList_ = text;
}

void CListID::CutStringAndGetParamBefore(CString& text, char separator, CString& before) {
  tq::CutBefore(text, separator, before);
}

int CListID::ConvertFromGroupID(const char* groupId) noexcept {
  const CString text = groupId;
  if (!HasMarkInPlace(text))
    return 0;
  const int groupType = TypeOf(text);
  for (const GroupKind& kind : kGroupKinds) {
    if (kind.groupType != groupType)
      continue;
    SetData(kind.type, text.Mid(kIdPosition), 0);
    return IsValid();
  }
  return 0;
}
