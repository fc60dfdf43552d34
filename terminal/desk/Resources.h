// The window's own templates and texts. Each program brings its own: the library's are in force
// only while one of its operations runs, and these are again when it has returned.
#pragma once

#include "platform/framework/window/ResourceContext.h"

namespace desk {

enum class Word {
#define DESK_WORD(name, traditional, simplified) name,
#include "terminal/desk/Words.inc"
#undef DESK_WORD
};

// In the terminal's language. Unlike ResourceContext::Text it may be asked at any time: the window
// is drawn, and messages come, while a dialog of the library's is open over it.
CString Text(Word word);

// For the ResourceContext under which the window runs.
tq::Resources Resources();

// The module with the DIALOG resources, on Windows; elsewhere null.
void* OwnModule();

} // namespace desk
