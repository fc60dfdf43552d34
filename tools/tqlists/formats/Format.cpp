#include "tools/tqlists/formats/Format.h"

#include "platform/Encoding.h"

namespace tqlists {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

} // namespace

Format FormatOf(std::string_view bytes, const std::string& path, Format otherwise) {
  if (bytes.starts_with(kMark))
    bytes.remove_prefix(kMark.size());
  const std::size_t first = bytes.find_first_not_of(" \t\r\n");
  const char start = first == std::string_view::npos ? ' ' : bytes[first];
  if (start == '<')
    return Format::Lists;
  if (start == '{')
    return Format::Json;
  const std::string name = LowerCase(path);
  if (name.ends_with(".xml"))
    return Format::Lists;
  if (name.ends_with(".json"))
    return Format::Json;
  if (name.ends_with(".csv"))
    return Format::Csv;
  return name.ends_with(".txt") ? Format::Text : otherwise;
}

std::unique_ptr<Reader> MakeReader(Format format, std::string_view bytes, const std::string& stem,
                                   tq::TextEncoding assumed) {
  switch (format) {
  case Format::Text:
    return MakeTextReader(bytes, stem);
  case Format::Csv:
    return MakeCsvReader(bytes, stem);
  case Format::Json:
    return MakeJsonReader(bytes, stem);
  default:
    return MakeListFileReader(bytes, assumed);
  }
}

} // namespace tqlists
