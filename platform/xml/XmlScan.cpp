#include "platform/xml/XmlScan.h"

#include "platform/Encoding.h"
#include "platform/xml/XmlByteClass.h"
#include "platform/xml/XmlNames.h"

#include <algorithm>
#include <iterator>

namespace tq {
namespace {

class Scanner {
public:
  Scanner(std::string_view text, XmlCharset charset, unsigned codePage, std::string& rewritten)
      : at_(text.data()), end_(at_ + text.size()), run_(at_), charset_(charset),
        codePage_(codePage), out_(rewritten) {}

  XmlVerdict Scan();

private:
  bool Refuse(XmlVerdict why) {
    verdict_ = why;
    return false;
  }
  bool StartsWith(std::string_view wanted) const {
    return std::string_view(at_, static_cast<std::size_t>(end_ - at_)).starts_with(wanted);
  }

  bool SkipTo(unsigned stops);
  bool SkipBehind(std::string_view closing);
  bool TakeUtf8();
  bool TakeCarried();
  bool TakeWideCharacters();
  void Replace(std::size_t length, std::string_view with);
  void TakeReference();
  bool TakeMarkup();
  bool TakeNameCharacter(bool first);
  bool TakeName(std::string_view& name);
  bool TakeBlanks();
  bool TakeEquals();
  bool TakeInstruction();
  bool TakeEndTag();
  bool TakeStartTag();
  bool TakeQuoted();

  const char* at_;
  const char* const end_;
  const char* run_; // what stands between here and at_ is yet to be copied into out_, unchanged
  const XmlCharset charset_;
  const unsigned codePage_;
  std::string& out_;
  int depth_ = 0;
  int pieces_ = 0;
  XmlNameTable names_;
  bool anyElement_ = false;
  XmlVerdict verdict_ = XmlVerdict::Ok;
};

// Moves to the next byte of a class in `stops`, or to the end. False when a character is refused.
bool Scanner::SkipTo(unsigned stops) {
  stops |= NotAscii | Forbidden;
  for (;;) {
    while (end_ - at_ >= kBlockSize && (stops & Closer) == 0 && IsPlainBlock(at_))
      at_ += kBlockSize;
    const char* const pause = at_ + std::min(end_ - at_, kBlockSize);
    while (at_ != pause && (ClassOf(*at_) & stops) == 0)
      ++at_;
    if (at_ == end_)
      return true;
    if (at_ == pause)
      continue;
    const unsigned found = ClassOf(*at_);
    if ((found & Forbidden) != 0)
      return Refuse(XmlVerdict::BadCharacters);
    if ((found & NotAscii) == 0)
      return true;
    if (!TakeWideCharacters())
      return Refuse(XmlVerdict::BadCharacters);
  }
}

// Moves behind the next `closing`, whose first byte is of class Closer or Greater.
bool Scanner::SkipBehind(std::string_view closing) {
  while (SkipTo(ClassOf(closing.front()) & (Closer | Greater))) {
    if (at_ == end_)
      return Refuse(XmlVerdict::Malformed);
    if (StartsWith(closing)) {
      at_ += closing.size();
      return true;
    }
    ++at_;
  }
  return false;
}

bool Scanner::TakeUtf8() {
  const std::size_t length = Utf8CharLength(at_, end_);
  at_ += length;
  return length != 0;
}

// Takes the double-byte characters that stand here, many at a time.
bool Scanner::TakeCarried() {
  constexpr std::size_t many = 256;
  constexpr std::size_t bytesOfOne = 4;
  char bytes[many * bytesOfOne];
  char* out = bytes;
  const char* p = at_;
  while (out != std::end(bytes) && p != end_ && (ClassOf(*p) & NotAscii) != 0) {
    const std::size_t length = AnsiCharLength(codePage_, p, end_);
    if (length == 0)
      return false;
    const char32_t first = static_cast<unsigned char>(p[0]);
    const char32_t pair = length == 1 ? first : first << 8 | static_cast<unsigned char>(p[1]);
    out = PutUtf8Char(kCarriedBase | pair, out);
    p += length;
  }
  Replace(static_cast<std::size_t>(p - at_), {bytes, static_cast<std::size_t>(out - bytes)});
  return true;
}

bool Scanner::TakeWideCharacters() {
  switch (charset_) {
  case XmlCharset::Utf8:
    return TakeUtf8();
  case XmlCharset::Carried:
    return TakeCarried();
  default:
    return false;
  }
}

void Scanner::Replace(std::size_t length, std::string_view with) {
  out_.append(run_, at_);
  out_.append(with);
  at_ += length;
  run_ = at_;
}

// At an ampersand. Looks only for numbers of the private plane; the DOM judges references.
void Scanner::TakeReference() {
  const char* p = at_ + 1;
  if (p == end_ || *p != '#')
    return;
  ++p;
  const bool hexadecimal = p != end_ && *p == 'x';
  if (hexadecimal)
    ++p;
  constexpr char32_t plane = 0x10000;
  char32_t value = 0;
  for (; p != end_ && *p != ';'; ++p) {
    const char letter = static_cast<char>(*p | 0x20);
    const bool digit = *p >= '0' && *p <= '9';
    if (!digit && !(hexadecimal && letter >= 'a' && letter <= 'f'))
      return;
    const auto number = static_cast<char32_t>(digit ? *p - '0' : letter - 'a' + 10);
    if (value < kCarriedBase + plane) // beyond it stays beyond it
      value = value * (hexadecimal ? 16 : 10) + number;
  }
  if (p != end_ && value >= kCarriedBase && value < kCarriedBase + plane)
    Replace(static_cast<std::size_t>(p + 1 - at_), "?");
}

// At a byte beyond ASCII in a name.
bool Scanner::TakeNameCharacter(bool first) {
  const char* character = at_;
  std::string decoded;
  switch (charset_) {
  case XmlCharset::Utf8:
    if (!TakeUtf8())
      return false;
    break;
  case XmlCharset::Carried: {
    const std::size_t length = AnsiCharLength(codePage_, at_, end_);
    if (length == 0 || !DecodeText(codePage_, {at_, length}, decoded) || decoded.empty())
      return false;
    at_ += length;
    character = decoded.data();
    break;
  }
  case XmlCharset::Ascii:
    return false;
  }
  return IsNameCharacter(TakeUtf8Char(character), first);
}

bool Scanner::TakeName(std::string_view& name) {
  const char* const start = at_;
  bool foreign = false;
  while (at_ != end_) {
    const unsigned found = ClassOf(*at_);
    const bool first = at_ == start;
    if ((found & NotAscii) != 0) {
      if (!TakeNameCharacter(first))
        return Refuse(XmlVerdict::BadCharacters);
      foreign = true;
      continue;
    }
    if ((found & (first ? NameStart : NamePart)) == 0)
      break;
    foreign |= *at_ == ':';
    ++at_;
  }
  name = {start, static_cast<std::size_t>(at_ - start)};
  if (name.empty())
    return Refuse(XmlVerdict::Malformed);
  if (name.size() > kXmlNameLengthLimit || !names_.Add(name))
    return Refuse(XmlVerdict::TooMany);
  if (foreign || name.starts_with(kForeignNameMark)) {
    std::string travelling;
    AppendForeignName(name, travelling);
    at_ = start;
    Replace(name.size(), travelling);
  }
  return true;
}

bool Scanner::TakeBlanks() {
  const char* const before = at_;
  while (at_ != end_ && (ClassOf(*at_) & Blank) != 0)
    ++at_;
  return at_ != before;
}

// Up to the quotation mark of an attribute's value.
bool Scanner::TakeEquals() {
  TakeBlanks();
  if (at_ == end_ || *at_ != '=')
    return Refuse(XmlVerdict::Malformed);
  ++at_;
  TakeBlanks();
  if (at_ == end_ || (ClassOf(*at_) & (Apostrophe | Quotation)) == 0)
    return Refuse(XmlVerdict::Malformed);
  return true;
}

// At "<?".
bool Scanner::TakeInstruction() {
  at_ += 2;
  std::string_view target;
  if (!TakeName(target))
    return false;
  // "<?xml ...?>" is for the start of a file only, and that one has been taken off.
  if (target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' &&
      (target[2] | 0x20) == 'l')
    return Refuse(XmlVerdict::BadDeclaration);
  if (!StartsWith("?>") && !TakeBlanks())
    return Refuse(XmlVerdict::Malformed);
  return SkipBehind("?>");
}

bool Scanner::TakeEndTag() {
  at_ += 2;
  --depth_;
  std::string_view name;
  if (depth_ < 0)
    return Refuse(XmlVerdict::Malformed);
  if (!TakeName(name))
    return false;
  TakeBlanks();
  if (at_ == end_ || *at_ != '>')
    return Refuse(XmlVerdict::Malformed);
  ++at_;
  return true;
}

// At a quotation mark of either kind: moves behind the next of its kind.
bool Scanner::TakeQuoted() {
  const unsigned mark = ClassOf(*at_);
  ++at_;
  while (SkipTo(mark | Ampersand | Less)) {
    if (at_ == end_ || *at_ == '<')
      return Refuse(XmlVerdict::Malformed);
    if ((ClassOf(*at_) & mark) != 0) {
      ++at_;
      return true;
    }
    const char* before = at_;
    if (charset_ == XmlCharset::Carried)
      TakeReference();
    if (at_ == before)
      ++at_;
  }
  return false;
}

bool Scanner::TakeStartTag() {
  anyElement_ = true;
  if (depth_ == kXmlDepthLimit)
    return Refuse(XmlVerdict::TooDeep);
  ++at_;
  std::string_view name;
  if (!TakeName(name))
    return false;
  for (int attributes = 0;; ++attributes) {
    const bool blank = TakeBlanks();
    if (StartsWith("/>")) {
      at_ += 2;
      return true;
    }
    if (at_ != end_ && *at_ == '>') {
      ++at_;
      ++depth_;
      return true;
    }
    if (!blank)
      return Refuse(XmlVerdict::Malformed);
    if (attributes == kXmlAttributeLimit)
      return Refuse(XmlVerdict::TooMany);
    if (!TakeName(name) || !TakeEquals() || !TakeQuoted())
      return false;
  }
}

// At "<".
bool Scanner::TakeMarkup() {
  if (StartsWith("</"))
    return TakeEndTag();
  if (++pieces_ > kXmlPieceLimit)
    return Refuse(XmlVerdict::TooMany);
  if (StartsWith("<!--")) {
    at_ += 4;
    return SkipBehind("-->");
  }
  if (StartsWith("<![CDATA[")) {
    at_ += 9;
    return SkipBehind("]]>");
  }
  if (StartsWith("<!"))
    return Refuse(XmlVerdict::DocumentType);
  return StartsWith("<?") ? TakeInstruction() : TakeStartTag();
}

XmlVerdict Scanner::Scan() {
  // One byte-order mark has been taken off; the DOMs would swallow a second.
  if (charset_ == XmlCharset::Utf8 && StartsWith("\xEF\xBB\xBF"))
    return XmlVerdict::Malformed;
  while (SkipTo(Less | Ampersand)) {
    if (at_ == end_) {
      if (depth_ != 0 || !anyElement_)
        Refuse(XmlVerdict::Malformed);
      break;
    }
    if (*at_ == '<') {
      if (!TakeMarkup())
        break;
      continue;
    }
    const char* before = at_;
    if (charset_ == XmlCharset::Carried)
      TakeReference();
    if (at_ == before)
      ++at_;
  }
  if (!out_.empty())
    out_.append(run_, at_);
  return verdict_;
}

} // namespace

XmlVerdict ScanXml(std::string_view text, XmlCharset charset, unsigned codePage,
                   std::string& rewritten) {
  rewritten.clear();
  return Scanner(text, charset, codePage, rewritten).Scan();
}

} // namespace tq
