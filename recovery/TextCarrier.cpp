#include "recovery/TextCarrier.h"

#include <algorithm>

#include "recovery/xml/Reference.h"

namespace tq {
namespace {

// Whether a byte does not come back as it stands.
bool IsChanged(char byte) {
  return byte == '&' || byte == '\t' || byte == '\n' || byte == '\r';
}

unsigned CodePageOf(bool big5) {
  return big5 ? kCodePageBig5 : kCodePageGbk;
}

std::ptrdiff_t CountLost(std::string_view text) {
  return std::count(text.begin(), text.end(), '?');
}

} // namespace

Charset CharsetOf(TextEncoding encoding) {
  switch (encoding) {
  case TextEncoding::Big5:
    return Charset::Big5;
  case TextEncoding::Gbk:
    return Charset::Gbk;
  default:
    return Charset::Utf8;
  }
}

std::size_t CutLengthInCodePage(std::string_view text, TextEncoding encoding, std::size_t limit) {
  const char* const end = text.data() + text.size();
  std::size_t length = 0;
  for (const char* at = text.data(); at != end;) {
    const bool ascii = static_cast<unsigned char>(*at) < 0x80;
    const std::size_t bytes = ascii ? 1 : CharLength(CharsetOf(encoding), at, end);
    length += std::min<std::size_t>(bytes, 2);
    if (length > limit)
      return static_cast<std::size_t>(at - text.data());
    at += std::max<std::size_t>(bytes, 1);
  }
  return text.size();
}

bool TextCarrier::Append(char32_t character, std::string& out) {
  if (character < 0x80) {
    out += static_cast<char>(character);
    return true;
  }
  char bytes[2];
  if (to_ == TextEncoding::Utf8) {
    AppendUtf8(character, out);
    return true;
  }
  if (!encoder_)
    encoder_.emplace(CodePageOf(to_ == TextEncoding::Big5));
  const std::size_t length = encoder_->Encode(character, bytes);
  // Systems have characters of one byte in their tables that the code page does not have.
  if (!IsTextOf(CharsetOf(to_), {bytes, length}))
    bytes[0] = '?';
  out.append(bytes, length);
  return length != 1 || bytes[0] != '?';
}

// `from` is the encoding asked for, UTF-8 or ISO 8859-1.
bool TextCarrier::Walk(std::string_view text, Charset from, std::string& out) {
  bool carried = true;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const auto byte = static_cast<unsigned char>(*at);
    if (*at == '&') {
      const Reference reference = ReadReference({at, static_cast<std::size_t>(end - at)});
      carried &= Append(reference.length != 0 ? reference.character : U'&', out);
      at += std::max<std::size_t>(reference.length, 1);
    } else if (byte < 0x80) {
      const bool lineEnd = *at == '\r' && at + 1 != end && at[1] == '\n';
      out += IsChanged(*at) ? ' ' : *at;
      at += lineEnd ? 2 : 1;
    } else if (from == CharsetOf(to_)) {
      const std::size_t length = CharLength(from, at, end);
      out.append(at, length);
      at += length;
    } else {
      carried &= Append(from == Charset::Utf8 ? TakeUtf8Char(at) : char32_t{byte}, out);
      at += from == Charset::Utf8 ? 0 : 1;
    }
  }
  return carried;
}

bool TextCarrier::Carry(std::string_view text, Charset from, std::string& out) {
  out.clear();
  if (std::none_of(text.begin(), text.end(), IsChanged) &&
      (from == CharsetOf(to_) || IsPlain(text))) {
    out = text;
    return true;
  }
  const bool table = from == Charset::Big5 || from == Charset::Gbk;
  if (!table || from == CharsetOf(to_) || IsPlain(text))
    return Walk(text, from, out);
  const bool known = DecodeText(CodePageOf(from == Charset::Big5), text, decoded_);
  const bool carried = Walk(decoded_, Charset::Utf8, out);
  return carried && known && CountLost(decoded_) == CountLost(text);
}

} // namespace tq
