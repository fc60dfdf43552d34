#include "idlist/IdString.h"

#include <algorithm>

#include "platform/Text.h"

namespace tq {
namespace {

int CountPieces(std::string_view ids) {
  int count = 0;
  std::string_view piece;
  for (size_t at = 0; NextPiece(ids, at, piece);)
    ++count;
  return count;
}

} // namespace

bool IsHeading(std::string_view token) {
  return token.find(':', 1) != std::string_view::npos;
}

bool NextPiece(std::string_view ids, size_t& at, std::string_view& piece) {
  while (at < ids.size()) {
    const size_t end = std::min(ids.find(',', at), ids.size());
    piece = ids.substr(at, end - at);
    at = end + 1;
    if (!Trimmed(piece).empty())
      return true;
  }
  return false;
}

bool IsOneToken(std::string_view text) {
  return !Trimmed(text).empty() && text.find(',') == std::string_view::npos;
}

SplitIds SplitIdString(const CString& ids, CStringArray& tokens) {
  SplitIds result;
  const std::string_view text = ViewOf(ids);
  tokens.SetSize(CountPieces(text));
  size_t plainLength = 0; // of the look-up string if `ids` is plain
  std::string_view piece;
  int index = 0;
  for (size_t at = 0; NextPiece(text, at, piece); ++index) {
    const bool heading = IsHeading(piece);
    const std::string_view token = heading ? piece : Trimmed(piece);
    tokens[index].SetString(token.data(), static_cast<int>(token.size()));
    if (heading)
      ++result.headings;
    else
      tokens[index].MakeUpper();
    plainLength += token.size() + (index > 0 ? 1 : 0);
  }
  result.plain = result.headings == 0 && plainLength == text.size();
  return result;
}

CString LookupString(const CString& ids) {
  CString lookup;
  lookup.Preallocate(ids.GetLength());
  std::string_view piece;
  for (size_t at = 0; NextPiece(ViewOf(ids), at, piece);) {
    if (IsHeading(piece))
      continue;
    if (!lookup.IsEmpty())
      lookup += ',';
    const std::string_view id = Trimmed(piece);
    lookup.Append(id.data(), static_cast<int>(id.size()));
  }
  return lookup;
}

void NormaliseId(CString& id) {
  id.Trim();
  id.MakeUpper();
}

} // namespace tq
