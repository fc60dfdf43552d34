// The symbol that the user means with what was typed.
#pragma once

#include "dialogs/DialogSources.h"

namespace tq {

enum class TypedMatch { None, One, Several };

// A full id, or a bare code on the default exchanges, or else a name, letter by letter as the
// service spells it. Several: the code is listed on more than one default exchange, or more than
// one symbol has the name; which of them is meant only the user can tell. `id` is the full id of
// the one, and stays as it is otherwise.
TypedMatch FindTypedSymbol(const DialogSources& sources, const CString& text, CString& id);

} // namespace tq
