#include "symboltable/UpperText.h"

#include <cstdint>
#include <cstring>

namespace tq {
namespace {

enum class Letters { Upper, SomeLower, DoubleByte };

constexpr std::uint64_t Repeated(std::uint8_t byte) {
  return 0x0101010101010101u * byte;
}

// Eight bytes at once: adding 0x1f sets the top bit of an ASCII byte from 'a' on, adding 5 that of
// one beyond 'z'.
Letters Classify(std::uint64_t bytes) {
  constexpr std::uint64_t top = Repeated(0x80);
  if ((bytes & top) != 0)
    return Letters::DoubleByte;
  const std::uint64_t lower = (bytes + Repeated(0x1f)) & ~(bytes + Repeated(0x05)) & top;
  return lower != 0 ? Letters::SomeLower : Letters::Upper;
}

Letters Classify(std::string_view text) {
  Letters result = Letters::Upper;
  while (!text.empty()) {
    std::uint64_t bytes = 0;
    const std::size_t taken = text.size() < sizeof bytes ? text.size() : sizeof bytes;
    if (taken == sizeof bytes)
      std::memcpy(&bytes, text.data(), sizeof bytes);
    else
      for (std::size_t i = 0; i < taken; ++i)
        bytes = bytes << 8 | static_cast<unsigned char>(text[i]);
    const Letters part = Classify(bytes);
    if (part == Letters::DoubleByte)
      return part;
    if (part == Letters::SomeLower)
      result = part;
    text.remove_prefix(taken);
  }
  return result;
}

char UpperAscii(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

std::string_view UpperCased(CString& text, UpperBuffer& buffer) {
  const std::string_view view = ViewOf(text);
  const Letters letters = Classify(view);
  if (letters == Letters::Upper)
    return view;
  if (letters == Letters::DoubleByte || view.size() > buffer.size()) {
    text.MakeUpper();
    return ViewOf(text);
  }
  for (std::size_t i = 0; i < view.size(); ++i)
    buffer[i] = UpperAscii(view[i]);
  return {buffer.data(), view.size()};
}

void MakeUpper(CString& text) {
  if (Classify(ViewOf(text)) != Letters::Upper)
    text.MakeUpper();
}

} // namespace tq
