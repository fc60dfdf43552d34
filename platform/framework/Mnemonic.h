// The letters that controls are reached by. Internal.
#pragma once

namespace tq {

// The letter or digit behind the ampersand of a label's or button's text, as a capital; 0 when
// there is none. Two ampersands are one that is shown. No trail byte of a double-byte character is
// an ampersand.
char MnemonicOf(const char* text);
// `letter` as MnemonicOf gives them, 0 when it is neither letter nor digit.
char AsMnemonic(char letter);

} // namespace tq
