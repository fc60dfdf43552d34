#include "recovery/xml/FileText.h"

#include <algorithm>

#include "platform/Encoding.h"
#include "platform/xml/XmlDeclaration.h"

namespace tq {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::size_t kUtf16Mark = 2;
constexpr char kHalf = '\xFF'; // what half a character of UTF-16 becomes
constexpr std::size_t kMostText = 40;

// Whether a file without a mark is in UTF-16: of its first bytes every second one is zero.
bool IsUnmarkedUtf16(std::string_view file, bool little) {
  constexpr std::size_t enough = 16;
  for (std::size_t i = 0; i < enough; ++i) {
    if (i >= file.size() || (file[i] == '\0') != ((i % 2 == 1) == little))
      return false;
  }
  return true;
}

Charset CharsetOf(XmlEncoding encoding) {
  switch (encoding) {
  case XmlEncoding::Big5:
    return Charset::Big5;
  case XmlEncoding::Gbk:
    return Charset::Gbk;
  case XmlEncoding::Latin1:
    return Charset::Latin1;
  case XmlEncoding::Ascii:
    return Charset::Ascii;
  default:
    return Charset::Utf8;
  }
}

// A character of one unit; U+FFFE and U+FFFF are none.
void AppendUnit(char32_t character, std::string& out) {
  if (character < 0xFFFE)
    AppendUtf8(character, out);
  else
    out += kHalf;
}

// The length in UTF-16 of what takes `length` bytes in UTF-8.
std::size_t WideLength(std::size_t length) {
  return length == 4 ? 4 : 2;
}

std::size_t PieceLength(const char* at, const char* end) {
  if (static_cast<unsigned char>(*at) < 0x80)
    return 1;
  return std::max<std::size_t>(Utf8CharLength(at, end), 1);
}

} // namespace

FileText::FileText(std::string_view file) : file_(file), text_(file) {
  if (IsUtf16(file))
    DecodeUtf16(file[0] == '\xFF', kUtf16Mark);
  else if (IsUnmarkedUtf16(file, true) || IsUnmarkedUtf16(file, false))
    DecodeUtf16(IsUnmarkedUtf16(file, true), 0);
  else if (file.starts_with(kUtf8Mark)) {
    marked_ = isDeclared_ = true;
    begin_ = kUtf8Mark.size();
    text_.remove_prefix(begin_);
  }
  ReadDeclaration();
}

void FileText::DecodeUtf16(bool little, std::size_t mark) {
  wide_ = true;
  marked_ = mark != 0;
  begin_ = mark;
  const auto unit = [&](std::size_t at) {
    const auto first = static_cast<unsigned char>(file_[at]);
    const auto second = static_cast<unsigned char>(file_[at + 1]);
    return char32_t{little ? second * 256U + first : first * 256U + second};
  };
  for (std::size_t at = mark; at < file_.size(); at += 2) {
    const char32_t first = at + 1 < file_.size() ? unit(at) : char32_t{0xDC00};
    const char32_t second = at + 3 < file_.size() ? unit(at + 2) : char32_t{0};
    if (first < 0xD800 || first > 0xDFFF) {
      AppendUnit(first, decoded_);
    } else if (first < 0xDC00 && second >= 0xDC00 && second <= 0xDFFF) {
      AppendUtf8(0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00), decoded_);
      at += 2;
    } else {
      decoded_ += kHalf;
    }
  }
  text_ = decoded_;
}

void FileText::ReadDeclaration() {
  if (marked_ && text_.starts_with(kUtf8Mark))
    return; // a second mark, which is text
  XmlDeclaration declaration;
  if (wide_)
    declaration.encoding = XmlEncoding::Utf16;
  const XmlVerdict verdict = ReadXmlDeclaration(text_, declaration);
  const bool utf16 = declaration.encoding == XmlEncoding::Utf16;
  const bool contradicts = marked_ && !wide_ && declaration.encoding != XmlEncoding::Utf8;
  if (verdict == XmlVerdict::UnknownEncoding)
    state_ = DeclarationState::Unknown;
  else if (verdict != XmlVerdict::Ok || utf16 != (wide_ && marked_) || contradicts)
    state_ = DeclarationState::Broken;
  if (state_ != DeclarationState::Fine)
    return;
  declared_ = declaration.length;
  charset_ = CharsetOf(declaration.encoding);
  isDeclared_ = isDeclared_ || wide_ || declared_ != 0;
}

Finding PlaceFinder::Find(std::size_t at) {
  MoveTo(std::min(at, file_.text_.size()));
  Finding finding;
  finding.offset = file_.begin_ + offset_;
  finding.line = line_;
  finding.column = offset_ - lineOffset_ + 1;
  if (line_ == 1)
    finding.column += file_.begin_;
  return finding;
}

Finding PlaceFinder::Find(const RawFault& fault) {
  Finding finding = Find(fault.at);
  finding.fault = fault.fault;
  if (fault.at < file_.text_.size())
    finding.text = file_.text_.substr(fault.at, std::min(fault.length, kMostText));
  return finding;
}

void PlaceFinder::MoveTo(std::size_t at) {
  if (at < at_) {
    at_ = offset_ = lineOffset_ = 0;
    line_ = 1;
  }
  if (file_.wide_)
    StepTo(at);
  else
    JumpTo(at);
}

// Where a character takes as many bytes in the text as in the file.
void PlaceFinder::JumpTo(std::size_t at) {
  const std::string_view gone = file_.text_.substr(0, at);
  for (std::size_t end = gone.find('\n', at_); end != gone.npos; end = gone.find('\n', end + 1)) {
    ++line_;
    lineOffset_ = end + 1;
  }
  at_ = offset_ = at;
}

void PlaceFinder::StepTo(std::size_t at) {
  const std::string_view text = file_.text_;
  while (at_ < at) {
    const bool lineEnd = text[at_] == '\n';
    const std::size_t length = PieceLength(text.data() + at_, text.data() + text.size());
    at_ += length;
    offset_ += WideLength(length);
    if (!lineEnd)
      continue;
    ++line_;
    lineOffset_ = offset_;
  }
}

} // namespace tq
