#include "recovery/xml/TagReader.h"

#include <algorithm>
#include <string>

#include "platform/Encoding.h"
#include "platform/xml/XmlCursor.h"
#include "platform/xml/XmlNames.h"
#include "recovery/xml/Bytes.h"
#include "recovery/xml/Reference.h"

namespace tq {
namespace {

// What does not go by unlooked at in a value.
constexpr unsigned kLookedAt = NotAscii | Forbidden | Less | Ampersand | Apostrophe | Quotation;

// The character at `at`, which is a whole one beyond ASCII; 0 when the system has no table for it.
char32_t CharacterAt(Charset charset, const char* at, std::size_t length) {
  std::string decoded;
  if (charset == Charset::Utf8)
    return TakeUtf8Char(at);
  if (charset == Charset::Latin1)
    return static_cast<unsigned char>(*at);
  const unsigned codePage = charset == Charset::Big5 ? kCodePageBig5 : kCodePageGbk;
  if (!DecodeText(codePage, {at, length}, decoded) || decoded.empty())
    return 0;
  const char* first = decoded.data();
  return TakeUtf8Char(first);
}

} // namespace

const TagAttribute* Tag::Find(std::string_view wanted) const {
  const auto found = std::find_if(attributes.begin(), attributes.end(),
                                  [&](const TagAttribute& one) { return one.name == wanted; });
  return found != attributes.end() ? &*found : nullptr;
}

void FaultList::Note(Fault fault, std::size_t at, std::size_t length) {
  if (fault == Fault::ZeroBytes && !faults_.empty() && faults_.back().fault == fault &&
      faults_.back().at + faults_.back().length == at)
    faults_.back().length += length;
  else if (!IsFull() &&
           (fault != Fault::CutOff || faults_.empty() || faults_.back().fault != fault))
    faults_.push_back({fault, at, length});
}

bool TagReader::Note(Fault fault, std::size_t at, std::size_t length) {
  faults_.Note(fault, at, length);
  return false;
}

void TagReader::TakeCharacter(std::size_t& at) {
  const char byte = text_[at];
  const char* const here = text_.data() + at;
  std::size_t length = 1;
  if (byte == '&') {
    length = ReadReference(text_.substr(at)).length;
    if (length == 0)
      Note(Fault::StrayAmpersand, at);
  } else if (static_cast<unsigned char>(byte) >= 0x80) {
    length = CharLength(charset_, here, text_.data() + text_.size());
    if (length == 0)
      Note(Fault::HalfCharacter, at, 1);
  } else if (IsControl(byte)) {
    Note(byte == '\0' ? Fault::ZeroBytes : Fault::ControlByte, at, 1);
  }
  at += std::max<std::size_t>(length, 1);
}

bool TagReader::TakeNameCharacter(std::size_t& at, bool first) {
  const char* const here = text_.data() + at;
  const std::size_t length = CharLength(charset_, here, text_.data() + text_.size());
  if (length == 0 || !IsNameCharacter(CharacterAt(charset_, here, length), first))
    return false;
  at += length;
  return true;
}

std::string_view TagReader::TakeName(std::size_t& at) {
  const std::size_t start = at;
  while (!AtEnd(at)) {
    const unsigned classes = ClassOf(text_[at]);
    const bool first = at == start;
    if ((classes & NotAscii) != 0) {
      if (!TakeNameCharacter(at, first))
        break;
    } else if ((classes & (first ? NameStart : NamePart)) != 0) {
      ++at;
    } else {
      break;
    }
  }
  return text_.substr(start, at - start);
}

// Whether the value goes on behind a stray byte: its quotation mark comes before other markup.
bool TagReader::GoesOn(std::size_t at, char quote) const {
  const char stops[] = {quote, '<', '>', '\n'};
  const std::size_t stop = text_.find_first_of({stops, sizeof stops}, at);
  return stop != std::string_view::npos && text_[stop] == quote;
}

// Behind the quotation mark.
bool TagReader::TakeValue(std::size_t& at, std::string_view& value) {
  const char quote = text_[at - 1];
  const std::size_t start = at;
  while (!faults_.IsFull()) {
    while (!AtEnd(at) && (ClassOf(text_[at]) & kLookedAt) == 0)
      ++at;
    if (AtEnd(at))
      break;
    const char byte = text_[at];
    if (byte == quote) {
      const bool ends = AtEnd(at + 1) || IsBlank(text_[at + 1]) || text_[at + 1] == '/' ||
                        text_[at + 1] == '>' || !GoesOn(at + 1, quote);
      value = text_.substr(start, at - start);
      if (ends)
        return ++at, true;
      Note(Fault::StrayApostrophe, at++);
    } else if (byte == '<') {
      Note(Fault::StrayLess, at);
      if (!GoesOn(at + 1, quote))
        return false;
      ++at;
    } else {
      TakeCharacter(at);
    }
  }
  return AtEnd(at) && Note(Fault::CutOff, at, 0);
}

bool TagReader::TakeAttribute(std::size_t& at, Tag& tag) {
  const std::size_t start = at;
  TagAttribute attribute;
  attribute.name = TakeName(at);
  const bool repeated = tag.Find(attribute.name) != nullptr;
  if (attribute.name.empty() || repeated)
    Note(Fault::BrokenMarkup, start);
  if (attribute.name.empty())
    return false;
  at = BehindBlanks(text_, at);
  if (AtEnd(at))
    return Note(Fault::CutOff, at, 0);
  if (text_[at] != '=')
    return Note(Fault::BrokenMarkup, start);
  at = BehindBlanks(text_, at + 1);
  if (AtEnd(at))
    return Note(Fault::CutOff, at, 0);
  if (!IsQuote(text_[at]))
    return Note(Fault::BrokenMarkup, start);
  if (!TakeValue(++at, attribute.value))
    return false;
  if (!repeated && tag.attributes.size() <= kXmlAttributeLimit)
    tag.attributes.push_back(attribute);
  return true;
}

void TagReader::SkipToEnd(std::size_t& at, Tag& tag) const {
  at = std::min(text_.find_first_of("<>", at), text_.size());
  if (AtEnd(at) || text_[at] == '<')
    return;
  tag.isEmpty = text_[at - 1] == '/';
  ++at;
}

void TagReader::Read(std::size_t& at, Tag& tag) {
  tag.attributes.clear();
  tag.isEmpty = false;
  tag.name = TakeName(++at);
  while (!faults_.IsFull()) {
    const std::size_t blanks = at;
    at = BehindBlanks(text_, at);
    if (AtEnd(at)) {
      Note(Fault::CutOff, at, 0);
      return;
    }
    tag.isEmpty = text_.substr(at).starts_with("/>");
    if (tag.isEmpty || text_[at] == '>') {
      at += tag.isEmpty ? 2 : 1;
      return;
    }
    if (tag.attributes.size() == kXmlAttributeLimit)
      Note(Fault::Limit, at);
    if (at == blanks)
      Note(Fault::BrokenMarkup, at);
    if (at == blanks || !TakeAttribute(at, tag))
      return SkipToEnd(at, tag);
  }
}

} // namespace tq
