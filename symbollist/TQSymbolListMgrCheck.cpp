// Checks of names, identifiers and working copies.
#include "symbollist/ListArray.h"
#include "symbollist/ListKind.h"
#include "symbollist/ParameterText.h"
#include "symbollist/StorableText.h"
#include "symbollist/TQSymbolListMgr.h"

int CTQSymbolListMgr::CheckNameExist(const CString& name, int skipOne, int skip, int kind) {
  const CPtrArray* lists = ListsOf(kind);
  return lists != nullptr && tq::FindListByName(*lists, name, skipOne != 0 ? skip : -1) >= 0;
}

int CTQSymbolListMgr::CheckIDandName(const CString& id, const CString& name, int kind) {
  const CPtrArray* lists = ListsOf(kind);
  const int index = lists == nullptr ? -1 : tq::FindListById(*lists, id);
  if (index < 0)
    return 0;
  return tq::ListAt(*lists, index)->IsSameName(name) ? 3 : 1;
}

int CTQSymbolListMgr::CheckSymbolListExist(const CString& id, int kind) {
  const CPtrArray* lists = ListsOf(kind);
  return lists != nullptr && tq::FindListById(*lists, id) >= 0;
}

// Identifiers need not be unique in a file that somebody else wrote, so one of several may be the
// one with the name.
int CTQSymbolListMgr::CheckListAndNameExist(const CString& id, const CString& name, int kind) {
  const CPtrArray* lists = ListsOf(kind);
  for (int i = 0; lists != nullptr && i < lists->GetSize(); ++i) {
    if (tq::ListAt(*lists, i)->IsSameID(id) && tq::ListAt(*lists, i)->GetName() == name)
      return 1;
  }
  return 0;
}

bool CTQSymbolListMgr::IsModifyList(CPtrArray* lists, int defaultIndex) {
  return lists == nullptr || defaultIndex != defaultIndex_ ||
         !tq::SameNamesAndContents(*lists, lists_);
}

bool CTQSymbolListMgr::IsModifyCountList(CPtrArray* lists) {
  return lists == nullptr || !tq::SameNamesAndContents(*lists, cloudLists_);
}

int CTQSymbolListMgr::CheckValidSymbolList(const CString& id, int kind) {
  constexpr int kTaken = 1;
  constexpr int kTooLong = 2;
  constexpr int kNotForAFile = 4;
  constexpr int kIdLimit = sizeof(TQSymbolListInfo::ID) - 1;
  int problems = 0;
  if (CheckSymbolListExist(id, kind == tq::kCloudGroupType ? tq::kCloudLists : kind) != 0)
    problems |= kTaken;
  if (id.GetLength() > kIdLimit)
    problems |= kTooLong;
  if (id.FindOneOf("'&<") >= 0 || !tq::IsStorable(id))
    problems |= kNotForAFile;
  return problems;
}

void CTQSymbolListMgr::CutStringAndGetParamBefore(CString& text, char separator, CString& before) {
  tq::CutBefore(text, separator, before);
}
