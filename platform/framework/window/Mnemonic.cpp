#include "platform/framework/window/Mnemonic.h"

namespace tq {

char AsMnemonic(char letter) {
  if (letter >= 'a' && letter <= 'z')
    return static_cast<char>(letter - 'a' + 'A');
  const bool is = (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9');
  return is ? letter : '\0';
}

char MnemonicOf(const char* text) {
  for (const char* at = text; *at != '\0'; ++at) {
    if (*at != '&')
      continue;
    if (*++at != '&')
      return AsMnemonic(*at);
  }
  return '\0';
}

} // namespace tq
