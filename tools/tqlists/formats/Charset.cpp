#include "tools/tqlists/formats/Charset.h"

#include <algorithm>
#include <cstdio>

namespace tqlists {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD"; // U+FFFD

unsigned CodePageOf(tq::TextEncoding encoding) {
  return encoding == tq::TextEncoding::Gbk ? tq::kCodePageGbk : tq::kCodePageBig5;
}

std::size_t CharacterLength(tq::TextEncoding encoding, const char* at, const char* end) {
  if (static_cast<unsigned char>(*at) < 0x80)
    return 1;
  return encoding == tq::TextEncoding::Utf8 ? tq::Utf8CharLength(at, end)
                                            : tq::AnsiCharLength(CodePageOf(encoding), at, end);
}

// Appends text that is valid in its encoding.
void AppendDecoded(tq::TextEncoding encoding, std::string_view text, std::string& utf8) {
  if (encoding == tq::TextEncoding::Utf8) {
    utf8 += text;
    return;
  }
  std::string part;
  tq::DecodeText(CodePageOf(encoding), text, part);
  utf8 += part;
}

std::string DecodeValidRuns(std::string_view bytes, tq::TextEncoding encoding,
                            const std::function<void(std::size_t)>& bad) {
  std::string utf8;
  const char* const end = bytes.data() + bytes.size();
  const char* run = bytes.data();
  for (const char* at = run; at != end;) {
    const std::size_t length = CharacterLength(encoding, at, end);
    if (length != 0) {
      at += length;
      continue;
    }
    bad(static_cast<std::size_t>(at - bytes.data()));
    AppendDecoded(encoding, {run, static_cast<std::size_t>(at - run)}, utf8);
    utf8 += kReplacement;
    run = ++at;
  }
  AppendDecoded(encoding, {run, static_cast<std::size_t>(end - run)}, utf8);
  return utf8;
}

void AppendUtf8Character(char32_t character, std::string& text) {
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
    text += static_cast<char>(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    text += static_cast<char>(0xE0 | character >> 12);
    text += static_cast<char>(0x80 | (character >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    char four[4];
    text.append(four, tq::PutUtf8Char(character, four));
  }
}

} // namespace

const char* NameOf(tq::TextEncoding encoding) {
  if (encoding == tq::TextEncoding::Utf8)
    return "utf-8";
  return encoding == tq::TextEncoding::Gbk ? "gb2312" : "big5";
}

bool IsPlainUtf8(std::string_view text) {
  if (text.starts_with(kUtf8Mark))
    return false;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const std::size_t length = CharacterLength(tq::TextEncoding::Utf8, at, end);
    if (length == 0)
      return false;
    at += length;
  }
  return true;
}

std::string DecodeFile(std::string_view bytes, tq::TextEncoding encoding,
                       const std::function<void(std::size_t)>& bad) {
  if (tq::IsUtf16(bytes)) {
    std::string utf8;
    if (!tq::DecodeUtf16(bytes, utf8))
      bad(0);
    return utf8;
  }
  if (!bytes.starts_with(kUtf8Mark))
    return DecodeValidRuns(bytes, encoding, bad);
  return DecodeValidRuns(bytes.substr(kUtf8Mark.size()), tq::TextEncoding::Utf8,
                         [&](std::size_t at) { bad(at + kUtf8Mark.size()); });
}

Encoder::Encoder(tq::TextEncoding encoding) : encoding_(encoding), table_(CodePageOf(encoding)) {}

std::string Encoder::Encode(std::string_view utf8, const std::function<void(char32_t)>& lacking) {
  if (encoding_ == tq::TextEncoding::Utf8)
    return std::string(utf8);
  std::string encoded;
  const char* const end = utf8.data() + utf8.size();
  for (const char* at = utf8.data(); at != end;) {
    if (static_cast<unsigned char>(*at) < 0x80) {
      encoded += *at++;
      continue;
    }
    const char32_t character = tq::TakeUtf8Char(at);
    char two[2];
    const std::size_t length = table_.Encode(character, two);
    encoded.append(two, length);
    if (length == 1 && two[0] == '?')
      lacking(character);
  }
  return encoded;
}

std::size_t Encoder::CutLength(std::string_view encoded, std::size_t limit) const {
  const char* const end = encoded.data() + encoded.size();
  std::size_t cut = 0;
  std::size_t kept = 0;
  while (cut < encoded.size()) {
    const std::size_t length =
        std::max<std::size_t>(1, CharacterLength(encoding_, encoded.data() + cut, end));
    kept += std::min<std::size_t>(length, 2);
    if (kept > limit)
      break;
    cut += length;
  }
  return cut;
}

std::string Named(char32_t character) {
  char code[16];
  std::snprintf(code, sizeof code, " (U+%04X)", static_cast<unsigned>(character));
  std::string text;
  AppendUtf8Character(character, text);
  return text + code;
}

} // namespace tqlists
