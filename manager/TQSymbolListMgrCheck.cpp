// Checks of names, identifiers and working copies.
#include "manager/TQSymbolListMgr.h"
#include "platform/Text.h"
#include "symbollist/ListKind.h"
#include "symbollist/OwnedLists.h"
#include "symbollist/StorableText.h"

int CTQSymbolListMgr::CheckNameExist(const CString& name, int skipOne, int skip,
                                     int kind) noexcept {
  const tq::OwnedLists* lists = ListsOf(kind);
  return lists != nullptr && lists->HasName(name, skipOne != 0 ? skip : -1);
}

int CTQSymbolListMgr::CheckIDandName(const CString& id, const CString& name, int kind) noexcept {
  const CSymbolList* list = FindList(id, kind);
  if (list == nullptr)
    return 0;
  return list->IsSameName(name) ? 3 : 1;
}

int CTQSymbolListMgr::CheckSymbolListExist(const CString& id, int kind) noexcept {
  return FindList(id, kind) != nullptr;
}

int CTQSymbolListMgr::CheckListAndNameExist(const CString& id, const CString& name,
                                            int kind) noexcept {
  const tq::OwnedLists* lists = ListsOf(kind);
  return lists != nullptr && lists->HasIdAndName(id, name);
}

bool CTQSymbolListMgr::IsModifyList(CPtrArray* lists, int defaultIndex) noexcept {
  return lists == nullptr || defaultIndex != defaultIndex_ ||
         !tq::SameNamesAndContents(*lists, *lists_);
}

bool CTQSymbolListMgr::IsModifyCountList(CPtrArray* lists) noexcept {
  return lists == nullptr || !tq::SameNamesAndContents(*lists, *cloudLists_);
}

int CTQSymbolListMgr::CheckValidSymbolList(const CString& id, int kind) noexcept {
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

void CTQSymbolListMgr::CutStringAndGetParamBefore(CString& text, char separator,
                                                  CString& before) noexcept {
  tq::CutBefore(text, separator, before);
}
