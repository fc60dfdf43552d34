// Splits the comma-separated id string of a list into tokens.
//
// Every "," byte separates. Empty and blank pieces are skipped. Blanks around an id are not part of
// it; those of a heading are, since its text is the user's own.
#pragma once

#include <string_view>

#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"

namespace tq {

// The id in the record of a heading row.
inline constexpr char kHeadingMarker[] = ":";

// Whether a token is a heading: it has a ":" after its first character. A token whose only ":" is
// the first character counts as an id, though no exchange has such ids. ":" is never a trail byte,
// so a byte search is exact.
bool IsHeading(std::string_view token);

// Sets `piece` to the next token of `ids`, unchanged with its blanks, and advances `at`, which
// starts at 0. False at the end.
bool NextPiece(std::string_view ids, size_t& at, std::string_view& piece);

// Whether `text` can stand in an id string as one token: not empty, not only blanks, no ",".
bool IsOneToken(std::string_view text);

struct SplitIds {
  int headings = 0;  // tokens that are headings
  bool plain = true; // `ids` can be sent to the service as it is: ids and single commas only
};

// Splits `ids` into its tokens, one for each piece: ids normalised, headings as they are written.
// `tokens` is replaced.
SplitIds SplitIdString(const CString& ids, CStringArray& tokens);

// The ids of the string, trimmed and joined by ",", without headings: the argument of the
// symbol-data service's look-up.
CString LookupString(const CString& ids);

// An id as tokens have it: no blanks around it, ASCII letters in upper case. Nothing is copied when
// `id` is so already.
void NormaliseId(CString& id);

} // namespace tq
