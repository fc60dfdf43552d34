// The comma-joined id string of a list, taken apart.
//
// The string is split at every byte ",", whatever stands in front of it, as the list file's readers
// do. A piece that is empty or nothing but blanks is no token. Blanks around an id do not belong to
// it; those of a heading do, for its text is the user's.
#pragma once

#include <string_view>

#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"

namespace tq {

// What a heading row's record carries in its id field.
inline constexpr char kHeadingMarker[] = ":";

// Whether a token is a heading: ":" somewhere after its first character. A token that only begins
// with ":" is an id like any other, one that no exchange has. ":" is never the second byte of a
// double-byte character, so a plain byte search is exact.
bool IsHeading(std::string_view token);

// Takes the next piece of `ids` that is a token, as it is written, blanks included: sets `piece`
// and moves `at`, which starts at 0, behind it. False at the end.
bool NextPiece(std::string_view ids, size_t& at, std::string_view& piece);

// Whether `text` can stand in an id string as one token: not empty, not only blanks, no ",".
bool IsOneToken(std::string_view text);

struct SplitIds {
  int headings = 0;  // tokens that are headings
  bool plain = true; // `ids` is already the look-up string: ids, single commas, nothing else
};

// Splits `ids` into its tokens, one for each piece: ids normalised, headings as they are written.
// `tokens` is replaced.
SplitIds SplitIdString(const CString& ids, CStringArray& tokens);

// The ids of the string, as they are written but without blanks around them, joined by ",": what
// the symbol-data service is asked. Headings are left out.
CString LookupString(const CString& ids);

// An id as tokens have it: no blanks around it, ASCII letters in upper case. Nothing is copied when
// `id` is so already.
void NormaliseId(CString& id);

} // namespace tq
