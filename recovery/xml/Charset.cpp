#include "recovery/xml/Charset.h"

#include <algorithm>

#include "platform/Encoding.h"

namespace tq {
namespace {

bool IsBeyondAscii(char byte) {
  return static_cast<unsigned char>(byte) >= 0x80;
}

const char* NextBeyondAscii(const char* at, const char* end) {
  return std::find_if(at, end, IsBeyondAscii);
}

// What a character costs is the negative logarithm of how probable it is in the name of a list,
// estimated by the blocks of the encoding: both code pages put what is used often in front.
constexpr double kBroken = 16;
constexpr double kRare = 13.5;
constexpr double kUnassigned = 14.8;

double CostInBig5(unsigned lead, unsigned trail) {
  if (lead == 0xC6 && trail > 0x7E)
    return kUnassigned;
  if (lead >= 0xA4 && lead <= 0xBB) // used often, of few strokes
    return 8.4;
  if (lead >= 0xBC && lead <= 0xC6) // used often, of many strokes
    return 9.5;
  if (lead >= 0xA1 && lead <= 0xA3) // punctuation and symbols
    return 11;
  return lead >= 0xC9 && lead <= 0xF9 ? kRare : kUnassigned;
}

double CostInGbk(unsigned lead, unsigned trail) {
  if (trail < 0xA1 || lead < 0xA1) // what GBK has more than GB2312
    return kUnassigned;
  if (lead >= 0xB0 && lead <= 0xD7) // used often
    return 8.3;
  if (lead == 0xA1 || lead == 0xA3) // punctuation and wide letters
    return 11;
  return lead >= 0xD8 && lead <= 0xF7 ? 12.2 : kUnassigned;
}

double CostInUtf8(std::size_t length, unsigned first) {
  if (length == 3 && first >= 0xE4 && first <= 0xE9) // the ideographs
    return 9;
  return length == 3 ? 11 : kRare;
}

double CostOfCharacter(Charset charset, const char* at, std::size_t length) {
  const unsigned first = static_cast<unsigned char>(at[0]);
  const unsigned second = length > 1 ? static_cast<unsigned char>(at[1]) : 0U;
  switch (charset) {
  case Charset::Big5:
    return CostInBig5(first, second);
  case Charset::Gbk:
    return CostInGbk(first, second);
  case Charset::Utf8:
    return CostInUtf8(length, first);
  default:
    return kRare;
  }
}

double CostOfText(Charset charset, std::string_view text) {
  double cost = 0;
  const char* const end = text.data() + text.size();
  for (const char* at = NextBeyondAscii(text.data(), end); at != end;
       at = NextBeyondAscii(at, end)) {
    const std::size_t length = CharLength(charset, at, end);
    cost += length == 0 ? kBroken : CostOfCharacter(charset, at, length);
    at += std::max<std::size_t>(length, 1);
  }
  return cost;
}

} // namespace

std::size_t CharLength(Charset charset, const char* at, const char* end) {
  switch (charset) {
  case Charset::Ascii:
    return 0;
  case Charset::Latin1:
    return 1;
  case Charset::Utf8:
    return Utf8CharLength(at, end);
  case Charset::Big5:
    return AnsiCharLength(kCodePageBig5, at, end);
  case Charset::Gbk:
    return AnsiCharLength(kCodePageGbk, at, end);
  }
  return 0;
}

bool IsPlain(std::string_view text) {
  return std::none_of(text.begin(), text.end(), IsBeyondAscii);
}

bool IsTextOf(Charset charset, std::string_view text) {
  const char* const end = text.data() + text.size();
  for (const char* at = NextBeyondAscii(text.data(), end); at != end;
       at = NextBeyondAscii(at, end)) {
    const std::size_t length = CharLength(charset, at, end);
    if (length == 0)
      return false;
    at += length;
  }
  return true;
}

Charset LikeliestCharset(std::string_view text, Charset expected, double trust) {
  // Text in another encoding is hardly ever UTF-8 by chance.
  if (IsPlain(text) || (expected == Charset::Utf8 && IsTextOf(expected, text)))
    return expected;
  Charset likeliest = expected;
  double least = CostOfText(expected, text) - trust;
  for (const Charset charset : {Charset::Utf8, Charset::Big5, Charset::Gbk}) {
    const double cost = CostOfText(charset, text);
    if (charset == expected || cost >= least)
      continue;
    likeliest = charset;
    least = cost;
  }
  return likeliest;
}

} // namespace tq
