// Any bytes as an identifier from a person or a settings file: a typed combination, an identity of
// a list in both text forms, an id with its kind.
#pragma once

#include <string>

#include "fuzz/Input.h"
#include "symbolid/IDConvert.h"
#include "symbolid/ListID.h"
#include "symbolid/OptFutID.h"

namespace fuzz {

inline CString WholeText(std::string_view bytes) {
  return CString(bytes.data(), static_cast<int>(bytes.size()));
}

inline bool IsKnownError(int error) {
  return (error >= OptFutNoError && error <= OptFutCommoditiesDiffer) ||
         (error >= OptFutSpreadLength && error <= OptFutKindsEqual);
}

inline bool HasPlainStrike(const CString& code) {
  for (int i = 3; i < 8; ++i)
    if (code.GetAt(i) < '0' || code.GetAt(i) > '9')
      return false;
  return true;
}

// A text that passes the check is in a form that the exchange takes. So the result without a check
// must be the same (for strikes in digits; "100.0" is a number that the check does not accept), and
// its legs can be described.
inline std::string CheckSeparated(const CString& text) {
  COptFutID id;
  CString legs[4] = {"-", "-", "-", "-"};
  char sides[4] = {'-', '-', '-', '-'};
  const int checked = id.SeparateID(text, 'S', legs[0], sides[0], legs[1], sides[1], 1);
  const int unchecked = id.SeparateID(text, 'S', legs[2], sides[2], legs[3], sides[3], 0);
  if (!IsKnownError(id.GetErrorCode()))
    return "an unknown error";
  if (!checked)
    return legs[0] == "-" && legs[1] == "-" && sides[0] == '-' && sides[1] == '-'
               ? ""
               : "a failure changed the outputs";
  if (HasPlainStrike(legs[0]) &&
      (!unchecked || legs[0] != legs[2] || legs[1] != legs[3] || sides[0] != sides[2]))
    return "a good combination comes out otherwise without a check";
  if (legs[0].GetLength() != 10 || legs[1].GetLength() != 10 || sides[1] != 'S')
    return "a leg is no code";
  CString description;
  char side = '-';
  return id.MergeID(description, side, legs[0], sides[0], legs[1], sides[1], 0) && side == 'S'
             ? ""
             : "a good combination has no description";
}

// The descriptions of the texts on both sides of the first blank.
inline std::string CheckMerged(std::string_view bytes) {
  const std::size_t blank = bytes.find(' ');
  const CString id1 = WholeText(bytes.substr(0, blank));
  const CString id2 = WholeText(blank == bytes.npos ? bytes : bytes.substr(blank + 1));
  for (const int check : {0, 1}) {
    COptFutID id;
    CString text;
    char side = '-';
    const int merged = id.MergeID(text, side, id1, 'B', id2, 'S', check);
    if ((merged != 0) == text.IsEmpty() || (merged != 0) != (side == 'S'))
      return "MergeID did not keep what it returned";
    id.MergeID2(text, side, id1, 'B', id2, 'S', check, nullptr);
    id.MergeFuturID(text, side, id1, 'B', id2, 'S');
    if (!IsKnownError(id.GetErrorCode()))
      return "an unknown error";
  }
  return "";
}

// A valid identity that is written and read again is the same. Type 0 is written as another type,
// type 4 with a label.
inline std::string CheckListID(const CString& text) {
  CListID list;
  CListID again;
  const bool valid = list.FromString(text) != 0;
  const bool comes = valid && list.GetType() != ListIDNone && list.GetType() != ListIDAllSymbols;
  if (comes && (!again.FromString(list.ToString()) || again != list))
    return "an identity is not read back";
  CListID whole;
  const bool wholeValid = whole.FromStringForList(text) != 0;
  if (!wholeValid || whole.GetType() == ListIDNone || whole.GetType() == ListIDAllSymbols)
    return "";
  CListID wholeAgain;
  if (!wholeAgain.FromStringForList(whole.ToStringForList()) || wholeAgain != whole)
    return "a long identity is not read back";
  const bool carries = !whole.GetName().IsEmpty() && !whole.GetSymbolList().IsEmpty();
  return !carries || (wholeAgain.GetName() == whole.GetName() &&
                      wholeAgain.GetSymbolList() == whole.GetSymbolList())
             ? ""
             : "a list's name and content are not read back";
}

inline std::string CheckConverted(const CString& text) {
  const CIDConvert split(text);
  const CString id = split.GetID();
  if (split.GetFullID() != text)
    return "the full id is not the text";
  const int before = text.GetLength() - id.GetLength();
  if (before == 0 ? split.GetIDType() != 0 : text.GetAt(before - 1) != ',')
    return "the text is split at another place";
  CString joined;
  joined.Format("%d.%s", split.GetIDType(), id.GetString());
  return CIDConvert(split.GetIDType(), id).GetFullID() == joined ? "" : "the parts join otherwise";
}

inline std::string CheckIdentifiers(const unsigned char* data, std::size_t size) {
  const std::string_view bytes = Begin(data, size);
  // Identities come from settings, which hold no NUL; combinations may be any bytes.
  const CString text(std::string(bytes).c_str());
  std::string broken = CheckSeparated(WholeText(bytes));
  if (broken.empty())
    broken = CheckMerged(bytes);
  if (broken.empty())
    broken = CheckListID(text);
  if (broken.empty())
    broken = CheckConverted(text);
  return broken.empty() ? EndOfServices() : broken;
}

} // namespace fuzz
