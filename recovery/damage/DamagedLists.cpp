#include "recovery/damage/DamagedLists.h"

#include <algorithm>

#include "recovery/DocumentLists.h"
#include "recovery/damage/Anchors.h"
#include "recovery/damage/DamagedList.h"
#include "recovery/xml/Bytes.h"

namespace tq {
namespace {

constexpr std::string_view kIndexAnchor = "DefaultIdx='";

constexpr std::size_t kMostShown = 40;

bool IsDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

// An attribute whose name is beyond ASCII is what damage has made of another one.
bool HasAllOfAList(const Tag& tag) {
  const bool plain = std::all_of(tag.attributes.begin(), tag.attributes.end(),
                                 [](const TagAttribute& one) { return IsPlain(one.name); });
  return plain && tag.Find("ID") != nullptr && tag.Find("Name") != nullptr &&
         tag.Find("Value") != nullptr;
}

// The number behind the attribute's beginning; empty when it does not end as it should.
std::string_view NumberIn(std::string_view value) {
  std::size_t digits = value.starts_with('-') ? 1 : 0;
  while (digits < value.size() && IsDigit(value[digits]))
    ++digits;
  const std::string_view rest = value.substr(digits);
  const bool ends = rest.empty() || IsQuote(rest[0]) || rest.substr(1).starts_with('>');
  return ends ? value.substr(0, digits) : std::string_view();
}

} // namespace

bool DamagedLists::Next(RawList& list) {
  for (;;) {
    if (TakePiece(list))
      return true;
    at_ = BehindBlanks(text_, at_);
    if (at_ == text_.size())
      break;
    if (TakePart(list))
      return true;
  }
  NoteEnd();
  return false;
}

bool DamagedLists::TakePiece(RawList& list) {
  if (nextPiece_ == pieces_.size())
    return false;
  const Extent piece = pieces_[nextPiece_++];
  const std::size_t begin = BehindBlanks(text_, piece.begin);
  if (begin >= piece.end || OpeningAt(text_, begin) != Opening::List || !ReadWhole(begin, list))
    ReadDamagedList(text_, piece, list);
  return true;
}

// The list at `begin` if it is a well-formed element with everything that a list has, and ends
// where one can.
bool DamagedLists::ReadWhole(std::size_t begin, RawList& list) {
  std::size_t end = begin;
  faults_.Clear();
  reader_.Read(end, tag_);
  if (!faults_.IsEmpty() || !IsElementEnd(text_, end) || !HasAllOfAList(tag_))
    return false;
  list = {};
  list.begin = begin;
  list.end = end;
  list.id = ValueOf(tag_, "ID");
  list.name = ValueOf(tag_, "Name");
  list.symbols = ValueOf(tag_, "Value");
  return true;
}

// True when that is a whole list.
bool DamagedLists::TakePart(RawList& list) {
  const Opening opening = text_[at_] == '<' ? OpeningAt(text_, at_) : Opening::None;
  switch (opening) {
  case Opening::List:
    return TakeList(list);
  case Opening::Lists:
    TakeLists();
    return false;
  case Opening::Instruction:
    TakeInstruction();
    return false;
  case Opening::Comment:
    TakeThrough(Section::Comment);
    return false;
  case Opening::CharacterData:
    TakeThrough(Section::CharacterData);
    return false;
  case Opening::Type:
    TakeType();
    return false;
  case Opening::None:
    TakeRemains();
    return false;
  default:
    TakeTag(opening);
    return false;
  }
}

void DamagedLists::NoteSecondFile(std::size_t at) {
  if (ended_ && !secondFile_)
    Note(Fault::Overwritten, at, kMostShown);
  secondFile_ = secondFile_ || ended_;
}

bool DamagedLists::TakeList(RawList& list) {
  const std::size_t begin = at_;
  NoteSecondFile(begin);
  if (ReadWhole(begin, list)) {
    at_ = list.end;
    return true;
  }
  at_ = EndOfDamagedList(text_, begin + 1);
  pieces_ = PiecesOf(text_, {begin, at_});
  nextPiece_ = 0;
  return false;
}

void DamagedLists::TakeLists() {
  const std::size_t begin = at_;
  NoteSecondFile(begin);
  faults_.Clear();
  reader_.Read(at_, tag_);
  const TagAttribute* index = tag_.Find("DefaultIdx");
  if (faults_.IsEmpty() && index != nullptr)
    return TakeIndex(index->value, begin);
  at_ = EndOfRemains(text_, begin + 1);
  if (!faults_.IsEmpty())
    Note(Fault::BrokenMarkup, begin, at_ - begin);
  TakeDamagedIndex(begin, at_);
}

void DamagedLists::TakeDamagedIndex(std::size_t begin, std::size_t end) {
  for (std::size_t at = begin; at < end; ++at) {
    if (!Resembles(text_.substr(at, end - at), kIndexAnchor))
      continue;
    const std::size_t value = at + kIndexAnchor.size();
    return TakeIndex(NumberIn(text_.substr(value, end - value)), value);
  }
  MissIndex(begin, end - begin);
}

// A tag without attributes.
void DamagedLists::TakeTag(Opening opening) {
  const std::size_t begin = at_;
  if (opening == Opening::Result)
    NoteSecondFile(begin);
  at_ = BehindBlanks(text_, at_ + LengthOf(opening));
  if (at_ < text_.size() && text_[at_] == '>')
    ++at_;
  else
    Note(Fault::BrokenMarkup, begin, at_ - begin);
  ended_ = ended_ || opening == Opening::ResultEnd;
}

void DamagedLists::TakeInstruction() {
  const std::size_t begin = at_;
  if (begin != 0 && text_.substr(at_).starts_with("<?xml ") && !secondFile_) {
    Note(Fault::Overwritten, begin, kMostShown);
    secondFile_ = true;
  }
  std::size_t stop = text_.find_first_of("?<", at_ + 2);
  while (stop < text_.size() && text_[stop] == '?' && !text_.substr(stop).starts_with("?>"))
    stop = text_.find_first_of("?<", stop + 1);
  const bool whole = stop < text_.size() && text_[stop] == '?';
  at_ = whole ? stop + 2 : EndOfRemains(text_, begin + 1);
  if (!whole)
    Note(Fault::BrokenMarkup, begin, at_ - begin);
}

// A comment or a CDATA section that ends; without its end it is only what opens it.
void DamagedLists::TakeThrough(Section section) {
  const std::string_view opening = OpeningOf(section);
  const std::size_t begin = at_;
  at_ += opening.size();
  const std::size_t end = ends_.Find(section, at_);
  // What holds another opening was not closed where it should have been.
  const std::size_t other = text_.substr(0, std::min(end, text_.size())).find(opening, at_);
  if (end != std::string_view::npos && other == std::string_view::npos)
    at_ = end + ClosingOf(section).size();
  else
    Note(Fault::BrokenMarkup, begin, opening.size());
}

void DamagedLists::TakeType() {
  if (!typed_)
    Note(Fault::DocumentType, at_, kMostShown);
  typed_ = true;
  at_ = std::min(text_.find_first_of("<>", at_ + 1), text_.size());
  while (at_ < text_.size() && (IsBlank(text_[at_]) || text_[at_] == ']' || text_[at_] == '>'))
    ++at_;
}

void DamagedLists::NoteRemains(std::size_t begin, std::size_t end) {
  const std::string_view remains = text_.substr(begin, end - begin);
  const std::size_t zero = remains.find('\0');
  if (zero != std::string_view::npos)
    Note(Fault::ZeroBytes, begin + zero, 0);
  if (remains.find_first_not_of(std::string_view("\0 \t\r\n", 5)) == std::string_view::npos)
    return;
  brokenEnd_ = brokenEnd_ || LooksLikeResultEnd(text_, begin);
  const bool markup = remains.find_first_of("<>") != std::string_view::npos;
  Note(markup ? Fault::BrokenMarkup : Fault::OutsideOfLists, begin, end - begin);
}

// What is no whole opening: a list that has lost its beginning, or bytes that belong to none.
bool DamagedLists::TakeRemains() {
  const std::size_t begin = at_;
  const bool list = LooksLikeList(text_, at_);
  at_ = list ? EndOfDamagedList(text_, begin + 1) : EndOfRemains(text_, begin + 1);
  const std::vector<Anchor> anchors = FindAnchors(text_, begin, at_);
  const bool any = std::any_of(anchors.begin(), anchors.end(),
                               [](const Anchor& one) { return one.field != Field::Other; });
  if (list || any) {
    NoteSecondFile(begin);
    pieces_ = PiecesOf(text_, {begin, at_});
    nextPiece_ = 0;
    return true;
  }
  if (text_.substr(begin, at_ - begin).find("Idx=") != std::string_view::npos)
    TakeDamagedIndex(begin, at_);
  NoteRemains(begin, at_);
  return false;
}

void DamagedLists::NoteEnd() {
  if (!IsListFile())
    MissIndex(0, 0);
  if (!ended_ && !brokenEnd_)
    Note(Fault::CutOff, text_.size(), 0);
  ended_ = true;
}

} // namespace tq
