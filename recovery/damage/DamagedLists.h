// The lists of a file that is not well-formed: each is found by itself, so that damage to one says
// nothing about the others.
#pragma once

#include <string_view>
#include <vector>

#include "recovery/ListSource.h"
#include "recovery/damage/DamagedPieces.h"
#include "recovery/damage/Openings.h"
#include "recovery/xml/SectionEnds.h"
#include "recovery/xml/TagReader.h"

namespace tq {

class DamagedLists : public ListSource {
public:
  // Of the whole text, declaration included.
  explicit DamagedLists(std::string_view text)
      : text_(text), faults_(1), reader_(text, Charset::Latin1, faults_), ends_(text) {}

  bool Next(RawList& list) override;

private:
  bool TakePiece(RawList& list);
  bool ReadWhole(std::size_t begin, RawList& list);
  bool TakePart(RawList& list);
  bool TakeList(RawList& list);
  void TakeLists();
  void TakeTag(Opening opening);
  void TakeInstruction();
  void TakeThrough(Section section);
  void TakeType();
  bool TakeRemains();
  void TakeDamagedIndex(std::size_t begin, std::size_t end);
  void NoteRemains(std::size_t begin, std::size_t end);
  void NoteSecondFile(std::size_t at);
  void NoteEnd();

  const std::string_view text_;
  FaultList faults_; // of the latest strict reading
  TagReader reader_; // any byte beyond ASCII is a character: encodings are judged later
  Tag tag_;
  std::size_t at_ = 0;
  std::vector<Extent> pieces_; // remains that have been found and not yet read
  std::size_t nextPiece_ = 0;
  bool ended_ = false; // a "</Result>" has been passed
  bool secondFile_ = false;
  bool brokenEnd_ = false;
  bool typed_ = false;
  SectionEnds ends_;
};

} // namespace tq
