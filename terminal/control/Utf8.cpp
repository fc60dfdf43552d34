#include "terminal/control/TableFile.h"

namespace standin {
namespace {

// What the first byte of a character determines: how many bytes follow, and the range of the second
// one (which excludes overlong forms, surrogates and everything past the last character).
struct Lead {
  int trailing; // -1: not a first byte
  unsigned char least;
  unsigned char most;
};

Lead LeadOf(unsigned char byte) {
  constexpr unsigned char kLeast = 0x80;
  constexpr unsigned char kMost = 0xBF;
  if (byte < 0x80)
    return {0, 0, 0};
  if (byte >= 0xC2 && byte <= 0xDF)
    return {1, kLeast, kMost};
  if (byte >= 0xE0 && byte <= 0xEF)
    return {2, byte == 0xE0 ? static_cast<unsigned char>(0xA0) : kLeast,
            byte == 0xED ? static_cast<unsigned char>(0x9F) : kMost};
  if (byte >= 0xF0 && byte <= 0xF4)
    return {3, byte == 0xF0 ? static_cast<unsigned char>(0x90) : kLeast,
            byte == 0xF4 ? static_cast<unsigned char>(0x8F) : kMost};
  return {-1, 0, 0};
}

} // namespace

bool IsUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    Lead lead = LeadOf(static_cast<unsigned char>(text[i]));
    if (lead.trailing < 0)
      return false;
    for (; lead.trailing > 0; --lead.trailing) {
      if (++i >= text.size())
        return false;
      const auto byte = static_cast<unsigned char>(text[i]);
      if (byte < lead.least || byte > lead.most)
        return false;
      lead.least = 0x80;
      lead.most = 0xBF;
    }
  }
  return true;
}

} // namespace standin
