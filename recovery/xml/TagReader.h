// Strict reading of one start tag, as the recommendation of XML 1.0 has it.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "recovery/RawList.h"
#include "recovery/xml/Charset.h"

namespace tq {

struct TagAttribute {
  std::string_view name;
  std::string_view value; // as it stands, references included
};

struct Tag {
  std::string_view name;
  std::vector<TagAttribute> attributes;
  bool isEmpty = false; // "<.../>"

  // Null when there is none of that name.
  const TagAttribute* Find(std::string_view wanted) const;
};

// Faults in the order in which they are found, up to a number.
class FaultList {
public:
  explicit FaultList(std::size_t most) : most_(most) {}

  // A run of zero bytes counts as one fault.
  void Note(Fault fault, std::size_t at, std::size_t length);
  bool IsFull() const { return faults_.size() >= most_; }
  bool IsEmpty() const { return faults_.empty(); }
  const std::vector<RawFault>& All() const { return faults_; }
  void Clear() { faults_.clear(); }

private:
  const std::size_t most_;
  std::vector<RawFault> faults_;
};

class TagReader {
public:
  // What is in `text` is noted in `faults`; reading ends as soon as it is full.
  TagReader(std::string_view text, Charset charset, FaultList& faults)
      : text_(text), charset_(charset), faults_(faults) {}

  // At a "<" in front of a name: reads the tag and moves behind it. Behind a fault it goes on where
  // the tag seems to end.
  void Read(std::size_t& at, Tag& tag);
  // Moves over the characters of a name, perhaps none.
  std::string_view TakeName(std::size_t& at);
  // At a byte that is neither "<" nor the quotation mark that is waited for: moves over a character
  // or a reference.
  void TakeCharacter(std::size_t& at);

private:
  bool AtEnd(std::size_t at) const { return at >= text_.size(); }
  bool Note(Fault fault, std::size_t at, std::size_t length = 16);
  bool TakeAttribute(std::size_t& at, Tag& tag);
  bool TakeValue(std::size_t& at, std::string_view& value);
  bool GoesOn(std::size_t at, char quote) const;
  bool TakeNameCharacter(std::size_t& at, bool first);
  void SkipToEnd(std::size_t& at, Tag& tag) const;

  const std::string_view text_;
  const Charset charset_;
  FaultList& faults_;
};

} // namespace tq
