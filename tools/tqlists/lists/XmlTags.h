// The tags of a well-formed XML document, one after the other.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace tqlists {

struct Tag {
  std::string_view name;
  std::vector<std::pair<std::string_view, std::string_view>> attributes; // values as they stand
  std::size_t offset = 0;
  bool opens = false;
  bool closes = false; // both for an element without contents

  std::optional<std::string_view> Attribute(std::string_view wanted) const;
};

class XmlTags {
public:
  // A document in which DocumentFaults finds nothing; of any other the answers mean nothing. It is
  // in ASCII's bytes: not in UTF-16.
  explicit XmlTags(std::string_view document) : document_(document) {}

  // False behind the last tag. Comments, instructions and CDATA sections are passed over.
  bool Next(Tag& tag);
  // The text between the tag that came last and the next one.
  std::string_view TextBehind() const;

private:
  bool PassOver(std::string_view opening, std::string_view closing);
  void ReadTag(Tag& tag);

  const std::string_view document_;
  std::size_t at_ = 0;
};

// The name of the root element, also of a damaged document; empty when there is none.
std::string_view RootOf(std::string_view document);

} // namespace tqlists
