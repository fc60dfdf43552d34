#include "symbollist/IdString.h"

#include <cstring>

namespace tq {
namespace {

int CountTokens(const char* text, const char* end) {
  int count = 0;
  for (const char* at = text; at < end;) {
    const void* comma = std::memchr(at, ',', static_cast<size_t>(end - at));
    const char* stop = comma ? static_cast<const char*>(comma) : end;
    count += stop > at;
    at = stop + 1;
  }
  return count;
}

} // namespace

bool IsHeading(const char* token, int length) {
  return length > 1 && std::memchr(token + 1, ':', static_cast<size_t>(length - 1)) != nullptr;
}

SplitIds SplitIdString(const CString& ids, CStringArray& tokens) {
  SplitIds result;
  const char* at = ids.GetString();
  const char* end = at + ids.GetLength();
  tokens.SetSize(CountTokens(at, end));
  int index = 0;
  while (at < end) {
    const void* comma = std::memchr(at, ',', static_cast<size_t>(end - at));
    const char* stop = comma ? static_cast<const char*>(comma) : end;
    int length = static_cast<int>(stop - at);
    if (length == 0 || (comma && stop + 1 == end))
      result.plain = false;
    if (length > 0) {
      tokens[index++].SetString(at, length);
      result.headings += IsHeading(at, length);
    }
    at = stop + 1;
  }
  if (result.headings > 0)
    result.plain = false;
  return result;
}

CString LookupString(const CStringArray& tokens) {
  CString lookup;
  for (int i = 0; i < tokens.GetSize(); ++i) {
    const CString& token = tokens[i];
    if (IsHeading(token.GetString(), token.GetLength()))
      continue;
    if (!lookup.IsEmpty())
      lookup += ',';
    lookup += token;
  }
  return lookup;
}

void NormaliseId(CString& id) {
  id.Trim();
  id.MakeUpper();
}

} // namespace tq
