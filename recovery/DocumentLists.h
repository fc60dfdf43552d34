// The lists of a well-formed file, as the library's DOM finds them: the elements at
// /Result/SymbolList/List.
#pragma once

#include "recovery/ListSource.h"
#include "recovery/xml/DocumentWalk.h"

namespace tq {

// Which elements of the list file's path the latest piece of a walk belongs to.
class ListPath {
public:
  // After each piece that is a start tag.
  void Enter(const DocumentWalk& walk);
  bool IsLists() const { return level_ == 2 && inLists_; }
  bool IsList() const { return level_ == 3 && inLists_ && isList_; }
  bool IsInLists() const { return inLists_; }

private:
  std::size_t level_ = 0;
  bool inResult_ = false;
  bool inLists_ = false;
  bool isList_ = false;
};

class DocumentLists : public ListSource {
public:
  // `text` is well-formed from `at` on.
  DocumentLists(std::string_view text, std::size_t at, Charset charset);

  // Whether the text is a document that is to be read so. It is not when text between its lists has
  // quotation marks: no save writes any, and the rest of a list looks like that whose name ends
  // what seems to be its element. The first fault goes to `faults`, which holds one.
  static bool IsReadable(std::string_view text, std::size_t at, Charset charset, FaultList& faults);

  bool Next(RawList& list) override;

private:
  void TakeLists();
  void TakeList(RawList& list) const;

  const std::string_view text_;
  FaultList faults_;
  DocumentWalk walk_;
  ListPath path_;
};

// A value of a well-formed element.
RawValue ValueOf(const Tag& tag, std::string_view name);

} // namespace tq
