#include "recovery/xml/DocumentWalk.h"

#include <algorithm>

#include "platform/xml/XmlCursor.h"
#include "recovery/xml/Bytes.h"

namespace tq {
namespace {

// What does not go by unlooked at between tags.
constexpr unsigned kNotPlain = NotAscii | Forbidden | Ampersand | Closer;

bool IsReservedTarget(std::string_view target) {
  constexpr std::string_view reserved = "xml";
  return target.size() == reserved.size() &&
         std::equal(target.begin(), target.end(), reserved.begin(),
                    [](char one, char lower) { return (one | 0x20) == lower; });
}

} // namespace

DocumentWalk::DocumentWalk(std::string_view text, std::size_t at, Charset charset,
                           FaultList& faults)
    : text_(text), faults_(faults), reader_(text, charset, faults), at_(at), begin_(at),
      ends_(text) {}

bool DocumentWalk::Note(Fault fault, std::size_t at, std::size_t length) {
  faults_.Note(fault, at, length);
  stopped_ = stopped_ || fault == Fault::Limit;
  return false;
}

DocumentPiece DocumentWalk::Next() {
  begin_ = at_;
  if (stopped_ || faults_.IsFull())
    return DocumentPiece::End;
  if (at_ == text_.size())
    return Finish();
  return text_[at_] == '<' ? TakeMarkup() : TakeText();
}

DocumentPiece DocumentWalk::Finish() {
  stopped_ = true;
  return open_.empty() && anyElement_ ? DocumentPiece::End : BreakOff();
}

// The text ends in the middle of markup, or of an element.
DocumentPiece DocumentWalk::BreakOff() {
  stopped_ = true;
  Note(Fault::CutOff, text_.size(), 0);
  return DocumentPiece::End;
}

DocumentPiece DocumentWalk::TakeText() {
  bool outside = false;
  while (at_ < text_.size() && text_[at_] != '<' && !faults_.IsFull()) {
    if ((outside || !open_.empty()) && (ClassOf(text_[at_]) & kNotPlain) == 0) {
      ++at_;
      continue;
    }
    if (open_.empty() && !outside && !IsBlank(text_[at_]) && !IsControl(text_[at_])) {
      Note(Fault::OutsideOfLists, at_);
      outside = true;
    }
    if (Rest().starts_with("]]>"))
      Note(Fault::BrokenMarkup, at_, 3);
    reader_.TakeCharacter(at_);
  }
  return DocumentPiece::Text;
}

// At "<".
DocumentPiece DocumentWalk::TakeMarkup() {
  const std::string_view rest = Rest();
  if (rest.starts_with("</"))
    return TakeFinish();
  if (++pieces_ > std::size_t{kXmlPieceLimit})
    Note(Fault::Limit, at_);
  if (rest.starts_with("<!--"))
    return TakeComment();
  if (rest.starts_with("<![CDATA["))
    return TakeCharacterData();
  if (rest.starts_with("<!"))
    return TakeType();
  return rest.starts_with("<?") ? TakeInstruction() : TakeStart();
}

// Up to and with the closing; when it is missing the text goes on behind the opening.
void DocumentWalk::TakeThrough(Section section) {
  const std::size_t found = ends_.Find(section, at_);
  if (found == std::string_view::npos) {
    Note(Fault::BrokenMarkup, begin_);
    return;
  }
  while (at_ < found && !faults_.IsFull()) {
    if (text_[at_] == '&')
      ++at_;
    else
      reader_.TakeCharacter(at_);
  }
  at_ = found + ClosingOf(section).size();
}

DocumentPiece DocumentWalk::TakeComment() {
  at_ += OpeningOf(Section::Comment).size();
  const std::size_t dashes = text_.find("--", at_);
  if (dashes != std::string_view::npos && !text_.substr(dashes).starts_with("-->"))
    Note(Fault::BrokenMarkup, dashes);
  TakeThrough(Section::Comment);
  return DocumentPiece::Other;
}

DocumentPiece DocumentWalk::TakeCharacterData() {
  if (open_.empty())
    Note(Fault::OutsideOfLists, at_);
  at_ += OpeningOf(Section::CharacterData).size();
  TakeThrough(Section::CharacterData);
  return DocumentPiece::Other;
}

DocumentPiece DocumentWalk::TakeType() {
  Note(Fault::DocumentType, at_);
  at_ = std::min(text_.find_first_of("<>", at_ + 1), text_.size());
  if (at_ != text_.size() && text_[at_] == '>')
    ++at_;
  return DocumentPiece::Other;
}

DocumentPiece DocumentWalk::TakeInstruction() {
  at_ += 2;
  const std::string_view target = reader_.TakeName(at_);
  if (IsReservedTarget(target))
    Note(Fault::Declaration, begin_);
  else if (target.empty() || (!Rest().starts_with("?>") && BehindBlanks(text_, at_) == at_))
    Note(Fault::BrokenMarkup, begin_);
  if (target.size() > kXmlNameLengthLimit || (!target.empty() && !names_.Add(target)))
    Note(Fault::Limit, begin_);
  TakeThrough(Section::Instruction);
  return DocumentPiece::Other;
}

DocumentPiece DocumentWalk::TakeFinish() {
  at_ += 2;
  const std::string_view name = reader_.TakeName(at_);
  at_ = BehindBlanks(text_, at_);
  if (at_ == text_.size())
    return BreakOff();
  const bool ends = Rest().starts_with(">");
  const auto opened = std::find_if(open_.rbegin(), open_.rend(),
                                   [&](const OpenElement& one) { return one.name == name; });
  if (open_.empty() || opened != open_.rbegin() || !ends)
    Note(Fault::BrokenMarkup, begin_);
  if (opened != open_.rend())
    open_.erase(opened.base() - 1, open_.end());
  at_ += ends ? 1 : 0;
  return DocumentPiece::Finish;
}

void DocumentWalk::CountNames() {
  const auto add = [this](std::string_view name) {
    if (name.size() > kXmlNameLengthLimit || (!name.empty() && !names_.Add(name)))
      Note(Fault::Limit, begin_);
  };
  add(tag_.name);
  for (const TagAttribute& attribute : tag_.attributes)
    add(attribute.name);
}

void DocumentWalk::Enter() {
  const TagAttribute* space = tag_.Find("xmlns");
  const bool inherited = !open_.empty() && open_.back().inNamespace;
  inNamespace_ = space != nullptr ? !space->value.empty() : inherited;
  if (open_.size() == std::size_t{kXmlDepthLimit})
    Note(Fault::Limit, begin_);
  else if (!tag_.isEmpty)
    open_.push_back({tag_.name, inNamespace_});
}

DocumentPiece DocumentWalk::TakeStart() {
  std::size_t behind = at_ + 1;
  if (behind == text_.size())
    return BreakOff();
  if (reader_.TakeName(behind).empty()) {
    Note(Fault::StrayLess, at_);
    ++at_;
    return DocumentPiece::Text;
  }
  if (open_.empty() && anyElement_)
    Note(Fault::OutsideOfLists, at_);
  anyElement_ = true;
  reader_.Read(at_, tag_);
  CountNames();
  Enter();
  return DocumentPiece::Start;
}

} // namespace tq
