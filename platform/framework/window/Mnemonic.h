// The letters by which controls are reached with Alt. Internal.
#pragma once

namespace tq {

// The letter or digit behind the ampersand in a label's or button's text, in upper case; 0 when
// there is none. A doubled ampersand is a literal one. No trail byte of a double-byte character is
// an ampersand.
char MnemonicOf(const char* text);
// `letter` as MnemonicOf gives them, 0 when it is neither letter nor digit.
char AsMnemonic(char letter);

} // namespace tq
