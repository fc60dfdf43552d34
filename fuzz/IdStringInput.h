// Any bytes as the id string of a list: how it is split, what the service is asked for, and which
// rows result. The expected result is computed here a second time, in the plainest way.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "fuzz/Input.h"
#include "idlist/IDList.h"
#include "idlist/IdString.h"
#include "idlist/StorableText.h"

namespace fuzz {

inline bool IsPlainBlank(const std::string& token) {
  return token.find_first_not_of(" \t\n\v\f\r") == std::string::npos;
}

inline std::string PlainId(std::string token) {
  token.erase(token.find_last_not_of(" \t\n\v\f\r") + 1);
  return token.erase(0, token.find_first_not_of(" \t\n\v\f\r"));
}

inline std::vector<std::string> PlainTokens(std::string_view ids) {
  std::vector<std::string> tokens;
  std::string token;
  for (const char byte : ids) {
    if (byte != ',') {
      token += byte;
      continue;
    }
    if (!IsPlainBlank(token))
      tokens.push_back(token);
    token.clear();
  }
  if (!IsPlainBlank(token))
    tokens.push_back(token);
  return tokens;
}

inline bool IsPlainHeading(const std::string& token) {
  return token.find(':', 1) != std::string::npos;
}

inline std::string TextOf(const CString& text) {
  return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

inline std::string CheckSplitting(std::string_view ids) {
  const CString text(ids.data(), static_cast<int>(ids.size()));
  const std::vector<std::string> expected = PlainTokens(ids);
  CStringArray tokens;
  const tq::SplitIds split = tq::SplitIdString(text, tokens);
  if (tokens.GetSize() != static_cast<int>(expected.size()))
    return "another number of tokens";
  int headings = 0;
  std::string lookup;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const bool heading = IsPlainHeading(expected[i]);
    const std::string written = heading ? expected[i] : PlainId(expected[i]);
    CString token(written.data(), static_cast<int>(written.size()));
    if (tokens[static_cast<int>(i)] != (heading ? token : token.MakeUpper()))
      return "another token";
    headings += heading ? 1 : 0;
    if (!heading)
      lookup += (lookup.empty() ? "" : ",") + written;
  }
  if (split.headings != headings)
    return "another number of headings";
  if (TextOf(tq::LookupString(text)) != lookup)
    return "another look-up string";
  if (split.plain != (ids == lookup))
    return "the id string is the look-up string, or not, unlike said";
  return "";
}

// In order, each row must belong to a later token than the row before: a heading, or a record with
// the token's id. The service reads an id up to a NUL, and so does this check.
inline std::string CheckRows(CIDList& list) {
  const CStringArray& tokens = list.GetTokens();
  const int rows = list.GetCount();
  int token = 0;
  for (int row = 0; row < rows; ++row, ++token) {
    SymbolInfo record;
    if (!list.GetAt(row, &record))
      return "a row was not answered";
    const bool heading = std::strcmp(record.id, tq::kHeadingMarker) == 0;
    while (token < tokens.GetSize() && (heading ? !IsPlainHeading(TextOf(tokens[token]))
                                                : std::strcmp(tokens[token], record.id) != 0))
      ++token;
    if (token >= tokens.GetSize())
      return "a row belongs to no token";
  }
  SymbolInfo outside;
  return list.GetAt(rows, &outside) || list.GetAt(-1, &outside) || list.GetAt(0, nullptr)
             ? "a row outside of the list was answered"
             : "";
}

inline std::string CheckList(const CString& text) {
  CIDList list;
  const CString ids = tq::StorableText(text);
  if (!tq::IsStorable(ids) || (tq::IsStorable(text) && ids != text))
    return "what can be stored is not what is kept";
  if (list.Update1(text) != (ids.IsEmpty() ? 0 : 1) || list.IsModified() != (ids.IsEmpty() ? 0 : 1))
    return "Update1 did not tell whether the string was replaced";
  if (list.GetIDs() != ids)
    return "the id string is not the one that was set";
  std::string broken = CheckRows(list);
  const int rows = list.GetCount();
  if (!broken.empty())
    return broken;
  if (list.Update1(ids) != 0 || list.Update3() != 1 || list.GetCount() != rows)
    return "asking again gives other rows";
  CIDList copy(list);
  if (copy.GetCount() != rows || copy.GetIDs() != ids)
    return "a copy is not the same";
  return CheckRows(copy);
}

// Gives the service's own records back to a list.
inline std::string CheckAdopting(const CString& ids) {
  SymbolInfo* records = nullptr;
  int count = 0;
  if (!VLGetSymbolInfos(ids, &records, &count))
    return "the service failed";
  std::string joined;
  for (int i = 0; i < count; ++i)
    joined += (i > 0 ? "," : "") + std::string(records[i].id);
  CIDList list;
  list.Update2(records, count);
  if (list.GetCount() != count || TextOf(list.GetIDs()) != joined)
    return "the adopted records are not the list's";
  return CheckRows(list);
}

inline std::string CheckIdString(const unsigned char* data, std::size_t size) {
  const std::string_view ids = Begin(data, size);
  const CString text(ids.data(), static_cast<int>(ids.size()));
  std::string broken = CheckSplitting(ids);
  if (broken.empty())
    broken = CheckList(text);
  if (broken.empty())
    broken = CheckAdopting(text);
  return broken.empty() ? EndOfServices() : broken;
}

} // namespace fuzz
