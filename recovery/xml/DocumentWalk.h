// Goes over an XML text strictly, piece by piece: what the library's scan and the platform's DOM
// together check (platform/xml/XmlScan.h), with every fault noted.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/xml/XmlNames.h"
#include "recovery/xml/SectionEnds.h"
#include "recovery/xml/TagReader.h"

namespace tq {

enum class DocumentPiece { End, Text, Start, Finish, Other };

class DocumentWalk {
public:
  // Starts at `at`, behind the declaration. Faults are noted in `faults`; the walk ends when it is
  // full, or at a limit of the library.
  DocumentWalk(std::string_view text, std::size_t at, Charset charset, FaultList& faults);

  // Moves over the next piece and says what it is.
  DocumentPiece Next();

  // Where the latest piece begins and ends.
  std::size_t Begin() const { return begin_; }
  std::size_t End() const { return at_; }
  // The latest start tag.
  const Tag& LastTag() const { return tag_; }
  // The elements that are open behind the latest piece: with Start the new one is among them unless
  // it is empty.
  std::size_t Depth() const { return open_.size(); }
  // Whether the latest start tag's element is in no namespace.
  bool IsPlainElement() const { return !inNamespace_; }

private:
  struct OpenElement {
    std::string_view name;
    bool inNamespace = false;
  };

  bool Note(Fault fault, std::size_t at, std::size_t length = 16);
  std::string_view Rest() const { return text_.substr(at_); }
  DocumentPiece Finish();
  DocumentPiece BreakOff();
  DocumentPiece TakeText();
  DocumentPiece TakeMarkup();
  DocumentPiece TakeStart();
  DocumentPiece TakeFinish();
  DocumentPiece TakeComment();
  DocumentPiece TakeCharacterData();
  DocumentPiece TakeType();
  DocumentPiece TakeInstruction();
  void TakeThrough(Section section);
  void CountNames();
  void Enter();

  const std::string_view text_;
  FaultList& faults_;
  TagReader reader_;
  std::size_t at_;
  std::size_t begin_;
  Tag tag_;
  bool inNamespace_ = false;
  bool anyElement_ = false;
  bool stopped_ = false;
  std::size_t pieces_ = 0;
  std::vector<OpenElement> open_;
  SectionEnds ends_;
  XmlNameTable names_;
};

} // namespace tq
