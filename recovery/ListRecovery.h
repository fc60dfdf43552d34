// Gives back the lists of a damaged list file, as a person would who looks at its bytes.
//
// It needs neither the terminal nor its services: the library uses it to repair the user's file,
// and a program on a support desk to look at one. docs/list-file.md describes the file.
//
// Conventions
//  1. A list that is whole in the file comes back byte for byte, whatever stands around it.
//  2. No id is ever invented. A symbol whose bytes are damaged (a zero byte, half a character, the
//     end of the file) is left out and said to be lost, for the first half of an id is another id.
//     An apostrophe, an ampersand or a "<" stays in the id where it stands, for exchanges list such
//     codes.
//  3. A well-formed file is read as the library's DOM reads it: comments, CDATA sections,
//     references, either quote, attributes in any order, elements outside of /Result/SymbolList
//     passed over. A file that gives no finding is one that the library loads whole, and the other
//     way round, but for two things that a load cannot see: text in another encoding than the file
//     names, and text between the lists that has quotation marks, which is the rest of a list whose
//     name holds what looks like the end of its element.
//  4. Time is linear in the file's size, whatever the bytes. Memory beside the file is bounded by
//     the largest list and a few bytes for each list.
//  5. Nothing throws but std::bad_alloc.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "recovery/Finding.h"

namespace tq {

enum class TextEncoding { Utf8, Big5, Gbk };

enum class ListFate {
  Whole,    // as it was stored
  Repaired, // mended, or a part of it is lost; the findings say which
  Lost,     // nothing that could be a list is left
};

struct RecoveredList {
  std::string id;
  std::string name;
  std::string symbols; // ids joined by ","; headings among them
  ListFate fate = ListFate::Whole;
  std::vector<Finding> findings; // in the order of the file, kMostFindings of them at most
  std::size_t offset = 0;        // where it begins in the file
  std::size_t line = 1;
};

inline constexpr std::size_t kMostFindings = 32;

struct RecoveryOptions {
  // Of the texts that come back. Text that is in it already is copied byte for byte, characters
  // included that no table assigns.
  TextEncoding encoding = TextEncoding::Utf8;
  // What text is taken for that could be Big5 as well as GBK, where the file does not say.
  TextEncoding assumed = TextEncoding::Big5;
};

class ListRecovery {
public:
  // `file` is the whole file, declaration included; its bytes must outlive this object.
  explicit ListRecovery(std::string_view file, const RecoveryOptions& options = {});
  ~ListRecovery();
  ListRecovery(const ListRecovery&) = delete;
  ListRecovery& operator=(const ListRecovery&) = delete;

  // Reads the next list into `list`, which is replaced. False at the end of the file.
  bool Next(RecoveredList& list);

  // --- After the last list -----------------------------------------------------------------------

  // Which of the lists that were not lost is shown first, from 0; -1 for none. The index in the
  // file counts all lists; this one counts those that came back.
  int DefaultList() const;
  // What the file as a whole has, in the order of the file.
  const std::vector<Finding>& Findings() const;
  // Of most of the text, as its bytes show, whatever the declaration says.
  TextEncoding Encoding() const;
  // Whether a save by the library made the file as it is: no finding, in it or in its lists.
  bool IsSound() const;

private:
  class Reader;
  std::unique_ptr<Reader> reader_;
};

} // namespace tq
