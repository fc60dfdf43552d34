#include "platform/xml/XmlDeclaration.h"

#include "platform/CodePage.h"

namespace tq {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// The encoding names that this system's programs and those that users keep lists with write.
struct EncodingName {
  std::string_view name;
  XmlEncoding encoding;
};
constexpr EncodingName kEncodingNames[] = {
    {"big5", XmlEncoding::Big5},     {"cp950", XmlEncoding::Big5},
    {"x-x-big5", XmlEncoding::Big5}, {"gb2312", XmlEncoding::Gbk},
    {"gbk", XmlEncoding::Gbk},       {"cp936", XmlEncoding::Gbk},
    {"utf-8", XmlEncoding::Utf8},    {"us-ascii", XmlEncoding::Ascii},
    {"ascii", XmlEncoding::Ascii},   {"iso-8859-1", XmlEncoding::Latin1},
    {"utf-16", XmlEncoding::Utf16},
};

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

class Reader {
public:
  explicit Reader(std::string_view text) : text_(text) {}

  std::size_t Left() const { return text_.size(); }

  bool Take(std::string_view wanted) {
    if (text_.substr(0, wanted.size()) != wanted)
      return false;
    text_.remove_prefix(wanted.size());
    return true;
  }

  bool TakeBlanks() {
    const std::size_t before = text_.size();
    while (!text_.empty() && IsBlank(text_.front()))
      text_.remove_prefix(1);
    return text_.size() != before;
  }

  // name = "value" in either kind of quotes.
  bool TakeAssignment(std::string_view name, std::string_view& value) {
    if (!Take(name))
      return false;
    TakeBlanks();
    if (!Take("="))
      return false;
    TakeBlanks();
    if (text_.empty() || (text_.front() != '"' && text_.front() != '\''))
      return false;
    const std::size_t end = text_.find(text_.front(), 1);
    if (end == std::string_view::npos)
      return false;
    value = text_.substr(1, end - 1);
    text_.remove_prefix(end + 1);
    return true;
  }

private:
  std::string_view text_;
};

bool FindEncoding(std::string_view name, XmlEncoding& encoding) {
  for (const EncodingName& known : kEncodingNames) {
    if (EqualNoCase(known.name.data(), known.name.size(), name.data(), name.size())) {
      encoding = known.encoding;
      return true;
    }
  }
  return false;
}

// What stands between "<?xml" and "?>". `encoding` stays empty when it is not named.
bool TakeDeclaration(Reader& reader, std::string_view& encoding) {
  std::string_view version;
  std::string_view standalone = "no";
  if (!reader.TakeBlanks() || !reader.TakeAssignment("version", version) || version != "1.0")
    return false;
  bool blank = reader.TakeBlanks();
  if (blank && reader.TakeAssignment("encoding", encoding)) {
    if (encoding.empty())
      return false;
    blank = reader.TakeBlanks();
  }
  if (blank && reader.TakeAssignment("standalone", standalone))
    reader.TakeBlanks();
  return (standalone == "yes" || standalone == "no") && reader.Take("?>");
}

} // namespace

XmlVerdict ReadXmlDeclaration(std::string_view file, XmlDeclaration& declaration) {
  Reader reader(file);
  const bool marked = declaration.encoding == XmlEncoding::Utf8 && reader.Take(kUtf8Mark);
  declaration.length = file.size() - reader.Left();
  // A longer name, as of an instruction for style sheets, is no declaration.
  constexpr std::string_view opening = "<?xml";
  const std::string_view rest = file.substr(declaration.length);
  if (rest.size() <= opening.size() || !reader.Take(opening) || !IsBlank(rest[opening.size()]))
    return XmlVerdict::Ok;
  std::string_view encoding;
  if (!TakeDeclaration(reader, encoding))
    return XmlVerdict::BadDeclaration;
  declaration.length = file.size() - reader.Left();
  if (!encoding.empty() && !FindEncoding(encoding, declaration.encoding))
    return XmlVerdict::UnknownEncoding;
  if (marked && declaration.encoding != XmlEncoding::Utf8)
    return XmlVerdict::BadDeclaration; // the mark says otherwise
  return XmlVerdict::Ok;
}

} // namespace tq
