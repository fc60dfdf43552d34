#include "recovery/ListSource.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

#include "recovery/xml/Bytes.h"
#include "recovery/xml/Reference.h"

namespace tq {
namespace {

// A number with its references resolved; what is no ASCII character makes it none.
std::string Resolved(std::string_view value) {
  std::string text;
  while (!value.empty()) {
    const Reference reference = value[0] == '&' ? ReadReference(value) : Reference{};
    const bool ascii = reference.length != 0 && reference.character < 0x80;
    text += ascii ? static_cast<char>(reference.character) : value[0];
    value.remove_prefix(ascii ? reference.length : 1);
  }
  return text;
}

std::string_view WithoutBlanks(std::string_view text) {
  text.remove_prefix(BehindBlanks(text, 0));
  while (!text.empty() && IsBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

// As the library reads it (symbollist/ListFile.cpp).
std::optional<int> ShortNumber(std::string_view text) {
  text = WithoutBlanks(text);
  if (text.starts_with('+'))
    text.remove_prefix(1);
  std::int16_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end || text.empty())
    return std::nullopt;
  return number;
}

} // namespace

void ListSource::TakeIndex(std::string_view value, std::size_t at) {
  if (isListFile_)
    return;
  isListFile_ = true;
  index_ = ShortNumber(Resolved(value));
  if (!index_)
    Note(Fault::BadIndex, at, value.size());
}

void ListSource::MissIndex(std::size_t at, std::size_t length) {
  if (!isListFile_)
    Note(Fault::BadIndex, at, length);
  isListFile_ = true;
}

} // namespace tq
