#include "recovery/damage/DamagedPieces.h"

#include <algorithm>
#include <array>
#include <optional>

#include "recovery/damage/Anchors.h"
#include "recovery/xml/Bytes.h"

namespace tq {
namespace {

class PieceSplitter {
public:
  PieceSplitter(std::string_view text, Extent remains) : text_(text), remains_(remains) {}

  std::vector<Extent> Split();

private:
  std::optional<std::size_t> SplitInFrontOf(const Anchor& anchor) const;
  std::optional<std::size_t> BehindDamage(Extent gap) const;
  std::optional<std::size_t> RestOfAnother(Extent gap) const;
  std::string_view TextOf(Extent gap) const { return text_.substr(gap.begin, gap.end - gap.begin); }
  bool Has(Field field) const { return seen_[static_cast<std::size_t>(field)]; }
  void Begin(std::size_t at);

  const std::string_view text_;
  const Extent remains_;
  std::vector<Extent> pieces_;
  std::array<bool, 4> seen_{};
  Anchor last_; // the latest one of this piece
  bool any_ = false;
};

// Behind the last control byte or, without one, the last line end.
std::optional<std::size_t> PieceSplitter::BehindDamage(Extent gap) const {
  std::optional<std::size_t> line;
  for (std::size_t at = gap.end; at > gap.begin; --at) {
    if (IsControl(text_[at - 1]))
      return at;
    if (!line && text_[at - 1] == '\n')
      line = at;
  }
  return line;
}

// Where in a value the rest of an attribute's beginning stands: "2330.TW,23me='".
std::optional<std::size_t> PieceSplitter::RestOfAnother(Extent gap) const {
  const std::string_view all = text_.substr(0, gap.end);
  const std::size_t equals = all.find("='", gap.begin);
  if (equals == std::string_view::npos)
    return std::nullopt;
  constexpr std::size_t longest = sizeof("Value") - 1;
  for (std::size_t at = equals - std::min(longest, equals - gap.begin); at < equals; ++at) {
    if (AnchorOfRest(text_, at, gap.end))
      return at;
  }
  return equals;
}

// Where another list begins between the latest attribute and this one, which came already or comes
// too late; none when it is part of a name.
std::optional<std::size_t> PieceSplitter::SplitInFrontOf(const Anchor& anchor) const {
  const Extent gap{last_.value, anchor.begin};
  if (const auto damage = BehindDamage(gap))
    return damage;
  if (!Has(anchor.field))
    return std::nullopt;
  if (anchor.field == Field::Id || (anchor.field == Field::Name && last_.field > Field::Name)) {
    const std::size_t less = TextOf(gap).rfind('<');
    return less != std::string_view::npos ? gap.begin + less : gap.end;
  }
  if (const auto rest = RestOfAnother(gap))
    return rest;
  const std::size_t comma = TextOf(gap).rfind(',');
  const bool symbols = last_.field == Field::Symbols && anchor.field == Field::Symbols;
  if (symbols && comma != std::string_view::npos)
    return gap.begin + comma + 1;
  return std::nullopt;
}

void PieceSplitter::Begin(std::size_t at) {
  pieces_.back().end = at;
  pieces_.push_back({at, remains_.end});
  seen_ = {};
  any_ = false;
}

std::vector<Extent> PieceSplitter::Split() {
  pieces_.push_back(remains_);
  for (const Anchor& anchor : FindAnchors(text_, remains_.begin, remains_.end)) {
    if (anchor.field == Field::Other)
      continue;
    const bool late = any_ && (Has(anchor.field) || anchor.field < last_.field);
    if (late) {
      if (const auto split = SplitInFrontOf(anchor))
        Begin(*split);
    }
    seen_[static_cast<std::size_t>(anchor.field)] = true;
    last_ = anchor;
    any_ = true;
  }
  return std::move(pieces_);
}

} // namespace

std::vector<Extent> PiecesOf(std::string_view text, Extent remains) {
  return PieceSplitter(text, remains).Split();
}

} // namespace tq
