#include "tools/tqlists/lists/XmlTags.h"

#include <algorithm>

namespace tqlists {
namespace {

constexpr std::string_view kXmlBlanks = " \t\r\n";
constexpr std::string_view kNameEnds = " \t\r\n=/>'\"<";

std::string_view NameAt(std::string_view document, std::size_t at) {
  const std::size_t end = std::min(document.find_first_of(kNameEnds, at), document.size());
  return document.substr(at, end - at);
}

} // namespace

std::optional<std::string_view> Tag::Attribute(std::string_view wanted) const {
  for (const auto& [attribute, value] : attributes) {
    if (attribute == wanted)
      return value;
  }
  return std::nullopt;
}

bool XmlTags::PassOver(std::string_view opening, std::string_view closing) {
  if (!document_.substr(at_).starts_with(opening))
    return false;
  const std::size_t end = document_.find(closing, at_ + opening.size());
  at_ = end == std::string_view::npos ? document_.size() : end + closing.size();
  return true;
}

bool XmlTags::Next(Tag& tag) {
  for (;;) {
    at_ = std::min(document_.find('<', at_), document_.size());
    if (at_ == document_.size())
      return false;
    if (PassOver("<!--", "-->") || PassOver("<![CDATA[", "]]>") || PassOver("<?", "?>"))
      continue;
    ReadTag(tag);
    return true;
  }
}

void XmlTags::ReadTag(Tag& tag) {
  tag = {};
  tag.offset = at_++;
  const bool end = at_ < document_.size() && document_[at_] == '/';
  at_ += end ? 1 : 0;
  tag.name = NameAt(document_, at_);
  at_ += tag.name.size();
  for (;;) {
    at_ = std::min(document_.find_first_not_of(kXmlBlanks, at_), document_.size());
    const std::string_view name = NameAt(document_, at_);
    const std::size_t open = document_.find_first_of("'\"", at_ + name.size());
    if (name.empty() || open == std::string_view::npos)
      break;
    const std::size_t close = std::min(document_.find(document_[open], open + 1), document_.size());
    tag.attributes.emplace_back(name, document_.substr(open + 1, close - open - 1));
    at_ = std::min(close + 1, document_.size());
  }
  const bool empty = document_.substr(at_).starts_with("/>");
  tag.opens = !end;
  tag.closes = end || empty;
  at_ = std::min(document_.find('>', at_), document_.size());
  at_ = std::min(at_ + 1, document_.size());
}

std::string_view XmlTags::TextBehind() const {
  return document_.substr(at_, document_.find('<', at_) - at_);
}

std::string_view RootOf(std::string_view document) {
  for (std::size_t at = document.find('<'); at != std::string_view::npos;
       at = document.find('<', at + 1)) {
    const std::string_view name = NameAt(document, at + 1);
    if (!name.empty() && name.front() != '?' && name.front() != '!')
      return name;
  }
  return {};
}

} // namespace tqlists
