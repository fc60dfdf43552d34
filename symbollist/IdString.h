// The comma-joined id string of a list, taken apart.
#pragma once

#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"

namespace tq {

// What a heading row's record carries in its id field.
inline constexpr char kHeadingMarker[] = ":";

// Whether a token is a heading: ":" somewhere after its first character. A token that only begins with
// ":" is an id like any other, one that no exchange has. ":" is never the second byte of a double-byte
// character, so a plain byte search is exact.
bool IsHeading(const char* token, int length);

struct SplitIds {
  int headings = 0; // tokens that are headings
  bool plain =
      true; // `ids` is already the look-up string: no heading, no empty token, no last comma
};

// Splits `ids` at every ",". Empty tokens, the trailing one included, are left out. `tokens` is
// replaced.
SplitIds SplitIdString(const CString& ids, CStringArray& tokens);

// The tokens that are not headings, joined by ",": what the symbol-data service is asked.
CString LookupString(const CStringArray& tokens);

// An id as records bear it: no blanks around it, ASCII letters in upper case. Nothing is copied when
// `id` is so already.
void NormaliseId(CString& id);

} // namespace tq
