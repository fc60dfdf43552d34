// Parameter strings: fields behind each other with a separator between them.
#pragma once

#include "platform/framework/CString.h"

namespace tq {

// Takes the first field off `text`: `before` gets the text up to the first `separator` and `text`
// keeps what is behind it; without a separator `before` gets all of it and `text` becomes empty. By
// whole characters. An empty `text` leaves both alone. Both may be one object, which then keeps
// what is behind.
inline void CutBefore(CString& text, char separator, CString& before) {
  if (text.IsEmpty())
    return;
  const int at = text.Find(separator);
  if (at < 0) {
    before = text;
    text.Empty();
    return;
  }
  const CString rest = text.Mid(at + 1);
  before = text.Left(at);
  text = rest;
}

} // namespace tq
