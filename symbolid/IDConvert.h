// CIDConvert: an id text bound to a number that says what kind of id it is, with the two combined.
//
// Conventions that hold for the whole class
//  1. A value: copying copies all of it. Any thread, one object at a time.
//  2. Text is in the process's ANSI code page, of any length.
//  3. Nothing fails or throws. A null text is not meant to be given; it is taken as an empty one.
//  4. The two constructors are no inverses of each other, and callers have stored both forms:
//     composing joins with ".", splitting looks for ",". What the first constructor composes, the
//     second reads as kind 0 and the whole text as id, unless the id itself holds a comma. Neither
//     is to be made to follow the other.
#pragma once

#include <cstdint>

#include "platform/framework/CString.h"
#include "tqSymbolApi.h"

class TQSYMBOL_API CIDConvert {
public:
  // The full id becomes the kind as a decimal number, "." and the id: 3 and "AB" give "3.AB".
  CIDConvert(int idType, const char* id) noexcept;
  // Keeps the text as the full id and splits it at its first ",": the number that stands at the
  // start of the text before it (leading blanks and a sign allowed, 0 when there is none, the
  // nearest value when it is too large) is the kind; all that follows the comma, further commas
  // included, is the id. Without a comma the kind is 0 and the id the whole text.
  CIDConvert(const char* fullId) noexcept;

  // There is no moving of its own: assigning from a temporary copies too, and the source keeps its
  // texts, as callers expect who go on reading from it.
  CIDConvert(const CIDConvert&) = default;
  CIDConvert& operator=(const CIDConvert&) = default;
  ~CIDConvert() = default;

  // Copies, the caller's own.
  CString GetFullID() const noexcept;
  CString GetID() const noexcept;
  int GetIDType() const noexcept;

private:
  std::int32_t idType_;
  CString id_;
  CString fullId_;
};
