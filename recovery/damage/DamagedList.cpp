#include "recovery/damage/DamagedList.h"

#include <algorithm>
#include <array>
#include <optional>

#include "recovery/damage/Anchors.h"
#include "recovery/damage/Openings.h"
#include "recovery/xml/Bytes.h"
#include "recovery/xml/Reference.h"

namespace tq {
namespace {

// As many damaged bytes can have been the beginning of an attribute.
constexpr std::size_t kLostAnchor = 5;

class DamagedListReader {
public:
  DamagedListReader(std::string_view text, Extent remains, RawList& list)
      : text_(text), remains_(remains), list_(list) {}

  void Read();

private:
  using Place = std::optional<Anchor>;

  Place& At(Field field) { return places_[static_cast<std::size_t>(field)]; }
  void ChooseAnchors();
  void FindMissing(Field field);
  std::size_t BeginBehind(Field field);
  std::size_t EndInFrontOf(Field field);
  void TakeFront(std::size_t first);
  void TakeValues();
  void TakeValue(const Anchor& anchor, std::size_t end, bool last);
  void CloseInside(const Anchor& anchor, std::size_t end, RawValue& value);
  void CloseLast(const Anchor& anchor, RawValue& value);
  void SplitLost(RawValue& front, RawValue& back);
  void NoteStray(std::string_view value);
  void NoteMarkup(std::size_t at) { list_.faults.push_back({Fault::BrokenMarkup, at, kPiece}); }
  RawValue* ValueOf(Field field);
  std::string_view Part(std::size_t begin, std::size_t end) const {
    return text_.substr(begin, std::max(begin, end) - begin);
  }

  static constexpr std::size_t kPiece = 16;

  const std::string_view text_;
  const Extent remains_;
  RawList& list_;
  std::vector<Anchor> anchors_;
  std::array<Place, 4> places_;
};

RawValue* DamagedListReader::ValueOf(Field field) {
  switch (field) {
  case Field::Id:
    return &list_.id;
  case Field::Name:
    return &list_.name;
  case Field::Symbols:
    return &list_.symbols;
  default:
    return nullptr;
  }
}

// Identifiers are never like markup, and nothing but a name has text of the user's own.
void DamagedListReader::ChooseAnchors() {
  anchors_ = FindAnchors(text_, remains_.begin, remains_.end);
  if (const Place rest = AnchorOfRest(text_, remains_.begin, remains_.end)) {
    const auto behind = std::find_if(anchors_.begin(), anchors_.end(),
                                     [&](const Anchor& one) { return one.begin > rest->value; });
    const Field next = behind != anchors_.end() ? behind->field : Field::Other;
    const bool known = rest->field != Field::Other;
    if (known || (next != Field::Id && next != Field::Other))
      At(known ? rest->field : static_cast<Field>(static_cast<int>(next) - 1)) = rest;
  }
  for (const Anchor& anchor : anchors_) {
    if (anchor.field == Field::Other)
      continue;
    const bool first = anchor.field == Field::Id || anchor.field == Field::Name;
    if (!first || !At(anchor.field))
      At(anchor.field) = anchor;
  }
  for (const Field field : {Field::Id, Field::Name, Field::Symbols, Field::Flag})
    FindMissing(field);
}

// Where the value of the attribute in front of this one begins.
std::size_t DamagedListReader::BeginBehind(Field field) {
  for (std::size_t i = static_cast<std::size_t>(field); i > 0; --i) {
    if (places_[i - 1])
      return places_[i - 1]->value;
  }
  return remains_.begin;
}

std::size_t DamagedListReader::EndInFrontOf(Field field) {
  for (std::size_t i = static_cast<std::size_t>(field) + 1; i < places_.size(); ++i) {
    if (places_[i])
      return places_[i]->begin;
  }
  return remains_.end;
}

void DamagedListReader::FindMissing(Field field) {
  if (At(field))
    return;
  At(field) = FindDamagedAnchor(text_, BeginBehind(field), EndInFrontOf(field), field);
  if (At(field))
    NoteMarkup(At(field)->begin);
}

// What stands in front of the first attribute when the list's own beginning is missing: the end of
// the value in front of it.
void DamagedListReader::TakeFront(std::size_t first) {
  const std::size_t begin = BehindBlanks(text_, remains_.begin);
  if (first == places_.size() || first == 0 || OpeningAt(text_, begin) == Opening::List ||
      LooksLikeList(text_, begin) || begin >= places_[first]->begin)
    return;
  const auto field = static_cast<Field>(first - 1);
  Anchor anchor{field, begin, begin, '\'', false};
  RawValue* value = ValueOf(field);
  CloseInside(anchor, places_[first]->begin, *value);
  const std::string_view bytes = value->bytes;
  const auto control = std::find_if(bytes.rbegin(), bytes.rend(), IsControl).base();
  value->bytes.remove_prefix(static_cast<std::size_t>(control - bytes.begin()));
  value->present = value->tornFront = true;
}

// In front of another attribute, which begins at `end`.
void DamagedListReader::CloseInside(const Anchor& anchor, std::size_t end, RawValue& value) {
  std::size_t behind = end;
  while (behind > anchor.value && IsBlank(text_[behind - 1]))
    --behind;
  const std::size_t length = behind - anchor.value;
  const auto is = [&](std::size_t back, auto what) {
    return length >= back && what(text_[behind - back]);
  };
  const auto isMark = [&](char byte) { return byte == anchor.quote; };
  value.tornBack = false;
  if (is(1, isMark)) {
    behind -= 1;
  } else if (behind == end && is(1, IsDamage) && is(2, isMark)) {
    behind -= 2;
  } else if (is(1, IsDamage)) {
    behind -= 1;
    NoteMarkup(behind);
  } else {
    value.tornBack = true;
  }
  value.bytes = Part(anchor.value, behind);
}

// The number of bytes at the end of a list that are no value: "'/>", or what is left of it, or what
// is left of the next attribute's beginning.
bool IsRestOfList(std::string_view rest) {
  const std::string_view bare = rest.substr(BehindBlanks(rest, 0));
  if (bare.size() <= 2 && std::all_of(bare.begin(), bare.end(), [](char byte) {
        return byte == '/' || byte == '>' || IsDamage(byte);
      }))
    return true;
  for (const Field field : {Field::Id, Field::Name, Field::Symbols, Field::Flag}) {
    if (WrittenAs(field).substr(0, WrittenAs(field).size() - 1).starts_with(rest))
      return true;
  }
  return false;
}

// The last value: its quotation mark stands in front of the element's end.
void DamagedListReader::CloseLast(const Anchor& anchor, RawValue& value) {
  std::size_t end = remains_.end;
  while (end > anchor.value && IsBlank(text_[end - 1]))
    --end;
  const std::string_view all = Part(anchor.value, end);
  const std::size_t mark = all.rfind(anchor.quote);
  const bool whole = all.ends_with("/>") && all.size() > 2;
  value.tornBack = false;
  if (mark != std::string_view::npos && IsRestOfList(all.substr(mark + 1))) {
    value.bytes = all.substr(0, mark);
  } else if (whole && IsDamage(all[all.size() - 3])) {
    value.bytes = all.substr(0, all.size() - 3);
    NoteMarkup(end - 3);
  } else {
    value.bytes = all;
    value.tornBack = true;
  }
}

void DamagedListReader::NoteStray(std::string_view value) {
  constexpr std::size_t most = 64;
  for (std::size_t at = value.find_first_of("'\"&<"); at != std::string_view::npos;
       at = value.find_first_of("'\"&<", at + 1)) {
    Fault fault = value[at] == '<' ? Fault::StrayLess : Fault::StrayApostrophe;
    if (value[at] == '&')
      fault = Fault::StrayAmpersand;
    const bool reference = value[at] == '&' && ReadReference(value.substr(at)).length != 0;
    if (!reference && value[at] != '"' && list_.faults.size() < most)
      list_.faults.push_back(
          {fault, static_cast<std::size_t>(value.data() - text_.data()) + at, kPiece});
  }
}

void DamagedListReader::TakeValue(const Anchor& anchor, std::size_t end, bool last) {
  RawValue* value = ValueOf(anchor.field);
  RawValue flag;
  if (value == nullptr)
    value = &flag;
  // An attribute of another name ends what cannot hold one.
  for (const Anchor& other : anchors_) {
    const bool inside = other.begin > anchor.value && other.begin < end;
    if (anchor.field != Field::Name && other.field == Field::Other && inside) {
      end = other.begin;
      last = false;
    }
  }
  if (last)
    CloseLast(anchor, *value);
  else
    CloseInside(anchor, end, *value);
  value->present = true;
  value->tornFront = !anchor.sure;
  if (value == &flag && flag.tornBack)
    NoteMarkup(anchor.begin);
}

void DamagedListReader::TakeValues() {
  std::vector<Anchor> chosen;
  for (const Place& place : places_) {
    if (place)
      chosen.push_back(*place);
  }
  std::sort(chosen.begin(), chosen.end(),
            [](const Anchor& one, const Anchor& other) { return one.begin < other.begin; });
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    const bool last = i + 1 == chosen.size();
    TakeValue(chosen[i], last ? remains_.end : chosen[i + 1].begin, last);
  }
}

// When damaged bytes have taken the place of an attribute's beginning, what stands behind them is
// the end of that attribute's value.
void DamagedListReader::SplitLost(RawValue& front, RawValue& back) {
  if (!front.present || back.present)
    return;
  const std::string_view all = front.bytes;
  const std::size_t first = FindControl(all);
  const auto control = std::find_if(all.rbegin(), all.rend(), IsControl).base();
  const auto behind = static_cast<std::size_t>(control - all.begin());
  if (first == all.size() || behind - first < kLostAnchor)
    return;
  back.present = back.tornFront = true;
  back.tornBack = front.tornBack;
  back.bytes = all.substr(behind);
  front.bytes = all.substr(0, first);
  front.tornBack = true;
  list_.faults.push_back(
      {Fault::ControlByte, static_cast<std::size_t>(all.data() - text_.data()) + first, 1});
}

void DamagedListReader::Read() {
  list_ = {};
  list_.damaged = true;
  list_.begin = remains_.begin;
  list_.end = remains_.end;
  ChooseAnchors();
  TakeValues();
  const auto first = std::find_if(places_.begin(), places_.end(),
                                  [](const Place& place) { return place.has_value(); });
  TakeFront(static_cast<std::size_t>(first - places_.begin()));
  if (!list_.symbols.present && !list_.name.present)
    SplitLost(list_.id, list_.symbols);
  SplitLost(list_.id, list_.name);
  SplitLost(list_.name, list_.symbols);
  for (const RawValue* value : {&list_.id, &list_.name, &list_.symbols})
    NoteStray(value->bytes);
}

} // namespace

void ReadDamagedList(std::string_view text, Extent remains, RawList& list) {
  DamagedListReader(text, remains, list).Read();
}

} // namespace tq
