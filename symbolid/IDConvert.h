// CIDConvert: an id with a number for its kind, and the full id that combines the two.
//
// Conventions that hold for the whole class
//  1. A value: copying copies all of it. Any thread, one object at a time.
//  2. Text is in the process's ANSI code page, of any length.
//  3. Nothing fails or throws. A null text counts as empty.
//  4. The two constructors are not inverses of each other: composing joins with ".", splitting
//     looks for ",". The second reads what the first composes as kind 0 with the whole text as id,
//     unless the id contains a comma. Callers have stored both forms: do not adapt one to the
//     other.
#pragma once

#include <cstdint>

#include "platform/framework/CString.h"
#include "tqSymbolApi.h"

class TQSYMBOL_API CIDConvert {
public:
  // The full id becomes the kind as a decimal number, "." and the id: 3 and "AB" give "3.AB".
  CIDConvert(int idType, const char* id) noexcept;
  // Stores the text as the full id and splits it at its first ",". The kind is the number at the
  // start of the text before the comma (leading blanks and a sign allowed; 0 when there is none,
  // the nearest int when it is out of range). The id is all that follows, further commas included.
  // Without a comma the kind is 0 and the id is the whole text.
  CIDConvert(const char* fullId) noexcept;

  // Not movable: an assignment always copies and leaves the source intact, as callers expect that
  // go on reading from it.
  CIDConvert(const CIDConvert&) = default;
  CIDConvert& operator=(const CIDConvert&) = default;
  ~CIDConvert() = default;

  // These return copies.
  CString GetFullID() const noexcept;
  CString GetID() const noexcept;
  int GetIDType() const noexcept;

private:
  std::int32_t idType_;
  CString id_;
  CString fullId_;
};
