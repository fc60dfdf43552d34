// The bytes of an XML file as text: what its beginning says about the encoding, UTF-16 decoded, and
// where a place in the text is in the file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "recovery/Finding.h"
#include "recovery/RawList.h"
#include "recovery/xml/Charset.h"

namespace tq {

enum class DeclarationState {
  Fine,    // there is none, or a good one
  Unknown, // it names an encoding that is not read
  Broken,
};

class FileText {
public:
  // `file` must outlive this object. A file in UTF-16 is decoded, the only one that is copied.
  explicit FileText(std::string_view file);
  FileText(const FileText&) = delete;
  FileText& operator=(const FileText&) = delete;

  // Without a byte-order mark, declaration included. Half a character of UTF-16 is a byte 0xFF.
  std::string_view Text() const { return text_; }
  // How much of it the declaration takes; 0 when there is none, or none that is fine.
  std::size_t DeclarationLength() const { return declared_; }

  DeclarationState Declaration() const { return state_; }
  // The one that the file says it is in, by its mark or its declaration or, without both, UTF-8.
  Charset Declared() const { return charset_; }
  // Whether it says so.
  bool IsDeclared() const { return isDeclared_; }
  // Whether a byte-order mark says what the text is in.
  bool IsMarked() const { return marked_; }

private:
  friend class PlaceFinder;
  void DecodeUtf16(bool little, std::size_t mark);
  void ReadDeclaration();

  const std::string_view file_;
  std::string decoded_;
  std::string_view text_;
  std::size_t declared_ = 0;
  std::size_t begin_ = 0; // of the text in the file
  DeclarationState state_ = DeclarationState::Fine;
  Charset charset_ = Charset::Utf8;
  bool isDeclared_ = false;
  bool marked_ = false;
  bool wide_ = false; // in UTF-16
};

// Turns places in the text into findings with their place in the file. Linear as long as places
// come in the order of the file.
class PlaceFinder {
public:
  explicit PlaceFinder(const FileText& file) : file_(file) {}

  Finding Find(const RawFault& fault);
  // Offset and line alone.
  Finding Find(std::size_t at);

private:
  void MoveTo(std::size_t at);
  void JumpTo(std::size_t at);
  void StepTo(std::size_t at);

  const FileText& file_;
  std::size_t at_ = 0;     // in the text
  std::size_t offset_ = 0; // in the file, behind its mark
  std::size_t line_ = 1;
  std::size_t lineOffset_ = 0;
};

} // namespace tq
