#include "platform/xml/XmlText.h"

#include "platform/Encoding.h"
#include "platform/framework/CString.h"
#include "platform/services/tqCommon.h"
#include "platform/xml/XmlDeclaration.h"
#include "platform/xml/XmlNames.h"
#include "platform/xml/XmlScan.h"

#include <algorithm>
#include <optional>

namespace tq {
namespace {

constexpr std::size_t kShortText = 512; // bytes; list names and ids are far shorter

// A list file holds text of the process's code page whatever its declaration says: the writer names
// big5 or gb2312 by the interface language, and on Windows the code page does not follow that. So a
// declaration that this process would write now stands for the code page, as does the code page's
// own.
bool IsProcessText(unsigned declared) {
  const unsigned written = ::IsTraditionChinese() != 0 ? kCodePageBig5 : kCodePageGbk;
  return declared == written || declared == AnsiCodePage();
}

bool IsStructured(unsigned codePage, std::string_view text) {
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const bool ascii = static_cast<unsigned char>(*at) < 0x80;
    const std::size_t length = ascii ? 1 : AnsiCharLength(codePage, at, end);
    if (length == 0)
      return false;
    at += length;
  }
  return true;
}

// The buffer holds the text, in UTF-8.
XmlVerdict ScanDecoded(XmlText& text) {
  std::string rewritten;
  const XmlVerdict verdict = ScanXml(text.buffer, XmlCharset::Utf8, kCodePageBig5, rewritten);
  if (!rewritten.empty())
    text.buffer.swap(rewritten);
  text.utf8 = text.buffer;
  return verdict;
}

// Text of the other Chinese code page. The structure is checked by us, so that all platforms refuse
// the same bytes whatever their tables make of them.
XmlVerdict PrepareForeign(unsigned codePage, std::string_view body, XmlText& text) {
  if (!IsStructured(codePage, body) || !DecodeText(codePage, body, text.buffer))
    return XmlVerdict::BadCharacters;
  return ScanDecoded(text);
}

// Text of ISO 8859-1: each byte is the code point.
void DecodeLatin(std::string_view body, std::string& utf8) {
  utf8.reserve(2 * body.size());
  for (const char c : body) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      utf8 += c;
      continue;
    }
    utf8 += static_cast<char>(0xC0 | byte >> 6);
    utf8 += static_cast<char>(0x80 | (byte & 0x3F));
  }
}

XmlVerdict PrepareBody(XmlEncoding encoding, std::string_view body, XmlText& text) {
  const unsigned declared = encoding == XmlEncoding::Big5 ? kCodePageBig5 : kCodePageGbk;
  const bool chinese = encoding == XmlEncoding::Big5 || encoding == XmlEncoding::Gbk;
  if (chinese && !IsProcessText(declared))
    return PrepareForeign(declared, body, text);
  if (encoding == XmlEncoding::Latin1) {
    DecodeLatin(body, text.buffer);
    return ScanDecoded(text);
  }
  text.carried = chinese;
  XmlCharset charset = chinese ? XmlCharset::Carried : XmlCharset::Utf8;
  if (encoding == XmlEncoding::Ascii)
    charset = XmlCharset::Ascii;
  const XmlVerdict verdict = ScanXml(body, charset, AnsiCodePage(), text.buffer);
  text.utf8 = text.buffer.empty() ? body : std::string_view(text.buffer);
  return verdict;
}

// A text in UTF-16 begins with its mark, as the recommendation has it.
XmlVerdict PrepareUtf16(std::string_view file, XmlText& text) {
  std::string decoded;
  if (!DecodeUtf16(file, decoded))
    return XmlVerdict::BadCharacters;
  XmlDeclaration declaration;
  declaration.encoding = XmlEncoding::Utf16;
  const XmlVerdict verdict = ReadXmlDeclaration(decoded, declaration);
  if (verdict != XmlVerdict::Ok)
    return verdict;
  if (declaration.encoding != XmlEncoding::Utf16)
    return XmlVerdict::BadDeclaration; // the mark says otherwise
  decoded.erase(0, declaration.length);
  text.buffer.swap(decoded);
  return ScanDecoded(text);
}

// Takes the two bytes, or the one, that a carried character at `at` stands for. False when it is
// none.
bool TakeCarried(const char*& at, char*& out) {
  // All of the plane, and nothing else, begins with these twelve bits.
  const auto byte = [at](int i) { return static_cast<unsigned char>(at[i]); };
  if (byte(0) != 0xF3 || (byte(1) & 0xF0) != 0xB0)
    return false;
  const unsigned pair = (byte(1) & 0x0FU) << 12 | (byte(2) & 0x3FU) << 6 | (byte(3) & 0x3FU);
  if (pair > 0xFF)
    *out++ = static_cast<char>(pair >> 8);
  *out++ = static_cast<char>(pair & 0xFF);
  at += 4;
  return true;
}

// Writes the text's bytes; `out` has room for as many as `utf8` has, and there are never more.
std::size_t EncodeText(std::string_view utf8, bool carried, char* out) {
  std::optional<CharacterEncoder> encoder; // seldom needed
  const char* at = utf8.data();
  const char* const end = at + utf8.size();
  char* const start = out;
  while (at != end) {
    if (static_cast<unsigned char>(*at) < 0x80) {
      *out++ = *at++;
      continue;
    }
    if (carried && TakeCarried(at, out))
      continue;
    if (!encoder)
      encoder.emplace(AnsiCodePage());
    char bytes[2];
    out = std::copy_n(bytes, encoder->Encode(TakeUtf8Char(at), bytes), out);
  }
  return static_cast<std::size_t>(out - start);
}

bool IsAscii(std::string_view text) {
  return std::none_of(text.begin(), text.end(),
                      [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

} // namespace

XmlVerdict PrepareXml(const char* data, std::size_t size, XmlText& text) {
  text.utf8 = {};
  text.buffer.clear();
  text.carried = false;
  if (size > kXmlSizeLimit)
    return XmlVerdict::TooLarge;
  const std::string_view file(data, size);
  if (IsUtf16(file))
    return PrepareUtf16(file, text);
  XmlDeclaration declaration;
  const XmlVerdict verdict = ReadXmlDeclaration(file, declaration);
  if (verdict != XmlVerdict::Ok)
    return verdict;
  if (declaration.encoding == XmlEncoding::Utf16)
    return XmlVerdict::BadDeclaration; // it is not
  return PrepareBody(declaration.encoding, file.substr(declaration.length), text);
}

void AssignXmlName(std::string_view name, bool carried, CString& value) {
  std::string bytes;
  if (!ReadForeignName(name, bytes))
    AssignXmlText(name, carried, value);
  else if (carried)
    value.SetString(bytes.data(), static_cast<int>(bytes.size()));
  else
    AssignXmlText(bytes, carried, value);
}

bool IsXmlNamespace(std::string_view name) {
  return name == "xmlns" || name.starts_with(kForeignDeclarationMark);
}

void AssignXmlText(std::string_view utf8, bool carried, CString& value) {
  if (IsAscii(utf8)) {
    value.SetString(utf8.data(), static_cast<int>(utf8.size()));
    return;
  }
  char local[kShortText];
  std::string large;
  char* out = local;
  if (utf8.size() > sizeof local) {
    large.resize(utf8.size());
    out = large.data();
  }
  const std::size_t length = EncodeText(utf8, carried, out);
  value.SetString(out, static_cast<int>(length));
}

} // namespace tq
