#include "platform/Encoding.h"

namespace tq {

std::size_t CharacterEncoder::Encode(char32_t character, char (&bytes)[2]) {
  const bool privateUse = character >= 0xE000 && character <= 0xF8FF;
  const std::size_t length = privateUse ? 0 : EncodeAssigned(character, bytes);
  if (length != 0)
    return length;
  bytes[0] = '?';
  return 1;
}

} // namespace tq
