#include "platform/Encoding.h"

#include <algorithm>
#include <iconv.h>

namespace tq {
namespace {

constexpr char kEuroInGbk = '\x80'; // in Windows' code page 936, but not in iconv's table
constexpr char32_t kEuroSign = 0x20AC;
constexpr char kEuroInUtf8[] = "\xE2\x82\xAC";
constexpr std::size_t kUtf8PerByte = 2; // a double-byte character takes three or four

const iconv_t kNoTable = reinterpret_cast<iconv_t>(-1);

const char* TableName(unsigned codePage) {
  return codePage == kCodePageBig5 ? "CP950" : "CP936";
}

// Decodes `text` up to the first error and appends the result to `utf8`. Returns the bytes
// consumed.
std::size_t DecodeRun(iconv_t table, std::string_view text, std::string& utf8) {
  const std::size_t start = utf8.size();
  utf8.resize(start + text.size() * kUtf8PerByte);
  char* in = const_cast<char*>(text.data());
  char* out = utf8.data() + start;
  std::size_t inLeft = text.size();
  std::size_t outLeft = utf8.size() - start;
  ::iconv(table, &in, &inLeft, &out, &outLeft);
  utf8.resize(utf8.size() - outLeft);
  return text.size() - inLeft;
}

void DecodeAll(iconv_t table, unsigned codePage, std::string_view text, std::string& utf8) {
  for (;;) {
    text.remove_prefix(DecodeRun(table, text, utf8));
    if (text.empty())
      return;
    const bool euro = codePage == kCodePageGbk && text.front() == kEuroInGbk;
    utf8 += euro ? kEuroInUtf8 : "?";
    const char* const end = text.data() + text.size();
    text.remove_prefix(std::max<std::size_t>(1, AnsiCharLength(codePage, text.data(), end)));
  }
}

} // namespace

bool DecodeText(unsigned codePage, std::string_view text, std::string& utf8) {
  utf8.clear();
  const iconv_t table = ::iconv_open("UTF-8", TableName(codePage));
  if (table == kNoTable)
    return false;
  DecodeAll(table, codePage, text, utf8);
  ::iconv_close(table);
  return true;
}

CharacterEncoder::CharacterEncoder(unsigned codePage)
    : codePage_(codePage), table_(::iconv_open(TableName(codePage), "UTF-32LE")) {}

CharacterEncoder::~CharacterEncoder() {
  if (table_ != kNoTable)
    ::iconv_close(table_);
}

std::size_t CharacterEncoder::EncodeAssigned(char32_t character, char (&bytes)[2]) {
  if (codePage_ == kCodePageGbk && character == kEuroSign) {
    bytes[0] = kEuroInGbk;
    return 1;
  }
  char source[4];
  for (unsigned i = 0; i < sizeof source; ++i)
    source[i] = static_cast<char>(character >> (8 * i) & 0xFF);
  char* in = source;
  char* out = bytes;
  std::size_t inLeft = sizeof source;
  std::size_t outLeft = sizeof bytes;
  if (table_ != kNoTable && ::iconv(table_, &in, &inLeft, &out, &outLeft) == 0)
    return sizeof bytes - outLeft;
  return 0;
}

} // namespace tq
