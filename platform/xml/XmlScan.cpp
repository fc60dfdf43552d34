#include "platform/xml/XmlScan.h"

#include "platform/xml/XmlCursor.h"
#include "platform/xml/XmlNames.h"
#include "platform/xml/XmlText.h"

namespace tq {
namespace {

// Markup and its bounds. Each Take moves behind what it names; false when the text is refused, with
// the reason in verdict_.
class Scanner {
public:
  explicit Scanner(const XmlCursor& start) : cursor_(start) {}

  XmlVerdict Scan();

private:
  bool Refuse(XmlVerdict why) {
    verdict_ = why;
    return false;
  }
  bool SkipTo(unsigned stops) { return cursor_.SkipTo(stops) || Refuse(XmlVerdict::BadCharacters); }

  bool TakeText();
  bool TakeMarkup();
  bool TakeThrough(std::string_view closing);
  bool TakeName(std::string_view& name);
  bool TakeInstruction();
  bool TakeStartTag();
  bool TakeEndTag();
  bool TakeAttribute();
  bool TakeValue();

  XmlCursor cursor_;
  int depth_ = 0;
  int pieces_ = 0;
  XmlNameTable names_;
  bool anyElement_ = false;
  XmlVerdict verdict_ = XmlVerdict::Ok;
};

// Up to and with the next `closing`, whose first byte is of class Closer.
bool Scanner::TakeThrough(std::string_view closing) {
  while (SkipTo(Closer)) {
    if (cursor_.AtEnd())
      return Refuse(XmlVerdict::Malformed);
    if (cursor_.Take(closing))
      return true;
    cursor_.TakeByte();
  }
  return false;
}

bool Scanner::TakeName(std::string_view& name) {
  bool foreign = false;
  if (!cursor_.TakeName(name, foreign))
    return Refuse(XmlVerdict::BadCharacters);
  if (name.empty())
    return Refuse(XmlVerdict::Malformed);
  if (name.size() > kXmlNameLengthLimit || !names_.Add(name))
    return Refuse(XmlVerdict::TooMany);
  if (foreign || name.starts_with(kForeignNameMark)) {
    std::string travelling;
    AppendForeignName(name, travelling);
    cursor_.ReplaceTaken(name.size(), travelling);
  }
  return true;
}

// Behind "<?".
bool Scanner::TakeInstruction() {
  std::string_view target;
  if (!TakeName(target))
    return false;
  // "<?xml ...?>" may stand at the start of a file only, and that one has been removed.
  if (target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' &&
      (target[2] | 0x20) == 'l')
    return Refuse(XmlVerdict::BadDeclaration);
  if (!cursor_.StartsWith("?>") && !cursor_.TakeBlanks())
    return Refuse(XmlVerdict::Malformed);
  return TakeThrough("?>");
}

// Behind "</".
bool Scanner::TakeEndTag() {
  --depth_;
  std::string_view name;
  if (depth_ < 0)
    return Refuse(XmlVerdict::Malformed);
  if (!TakeName(name))
    return false;
  cursor_.TakeBlanks();
  return cursor_.Take(">") || Refuse(XmlVerdict::Malformed);
}

// An attribute's value in either kind of quotation marks.
bool Scanner::TakeValue() {
  const unsigned mark = cursor_.Class() & (Apostrophe | Quotation);
  if (mark == 0)
    return Refuse(XmlVerdict::Malformed);
  cursor_.TakeByte();
  while (SkipTo(mark | Ampersand | Less)) {
    const unsigned found = cursor_.Class();
    if (found == mark) {
      cursor_.TakeByte();
      return true;
    }
    if (found != Ampersand)
      return Refuse(XmlVerdict::Malformed);
    cursor_.TakeAmpersand();
  }
  return false;
}

bool Scanner::TakeAttribute() {
  std::string_view name;
  if (!TakeName(name))
    return false;
  cursor_.TakeBlanks();
  if (!cursor_.Take("="))
    return Refuse(XmlVerdict::Malformed);
  cursor_.TakeBlanks();
  return TakeValue();
}

// Behind "<".
bool Scanner::TakeStartTag() {
  anyElement_ = true;
  if (depth_ == kXmlDepthLimit)
    return Refuse(XmlVerdict::TooDeep);
  std::string_view name;
  if (!TakeName(name))
    return false;
  for (int attributes = 0;; ++attributes) {
    const bool blank = cursor_.TakeBlanks();
    if (cursor_.Take("/>"))
      return true;
    if (cursor_.Take(">")) {
      ++depth_;
      return true;
    }
    if (!blank)
      return Refuse(XmlVerdict::Malformed);
    if (attributes == kXmlAttributeLimit)
      return Refuse(XmlVerdict::TooMany);
    if (!TakeAttribute())
      return false;
  }
}

// At "<".
bool Scanner::TakeMarkup() {
  if (cursor_.Take("</"))
    return TakeEndTag();
  if (++pieces_ > kXmlPieceLimit)
    return Refuse(XmlVerdict::TooMany);
  if (cursor_.Take("<!--"))
    return TakeThrough("-->");
  if (cursor_.Take("<![CDATA["))
    return TakeThrough("]]>");
  if (cursor_.StartsWith("<!"))
    return Refuse(XmlVerdict::DocumentType);
  if (cursor_.Take("<?"))
    return TakeInstruction();
  cursor_.TakeByte();
  return TakeStartTag();
}

// Up to the next markup, or the end.
bool Scanner::TakeText() {
  while (SkipTo(Less | Ampersand)) {
    if (cursor_.Class() != Ampersand)
      return true;
    cursor_.TakeAmpersand();
  }
  return false;
}

XmlVerdict Scanner::Scan() {
  while (TakeText() && !cursor_.AtEnd() && TakeMarkup())
    continue;
  if (verdict_ == XmlVerdict::Ok && (depth_ != 0 || !anyElement_))
    verdict_ = XmlVerdict::Malformed;
  cursor_.Finish();
  return verdict_;
}

} // namespace

XmlVerdict ScanXml(std::string_view text, XmlCharset charset, unsigned codePage,
                   std::string& rewritten) {
  rewritten.clear();
  // One byte-order mark has been taken off; the DOMs would swallow a second.
  if (charset == XmlCharset::Utf8 && text.starts_with("\xEF\xBB\xBF"))
    return XmlVerdict::Malformed;
  return Scanner(XmlCursor(text, charset, codePage, rewritten)).Scan();
}

} // namespace tq
