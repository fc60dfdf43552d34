#include "accounts/Holdings.h"

#include <utility>

#include "platform/framework/SeededHash.h"

namespace tq {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";
constexpr size_t kFirstSlots = 64;

std::string_view WithoutBlanks(std::string_view piece) {
  const size_t first = piece.find_first_not_of(kBlanks);
  if (first == std::string_view::npos)
    return {};
  return piece.substr(first, piece.find_last_not_of(kBlanks) + 1 - first);
}

// Calls take(piece) for each piece that is not empty. "," is never the second byte of a double-byte
// character, so a plain byte search is exact.
template <typename Take> void ForEachPiece(std::string_view text, Take take) {
  for (size_t at = 0; at < text.size();) {
    const size_t comma = text.find(',', at);
    const size_t end = comma == std::string_view::npos ? text.size() : comma;
    if (end > at)
      take(text.substr(at, end - at));
    at = end + 1;
  }
}

void Join(std::string& text, std::string_view id) {
  if (!text.empty())
    text += ',';
  text += id;
}

CString ToText(const std::string& text) {
  return CString(text.data(), static_cast<int>(text.size()));
}

} // namespace

CString TidyHoldings(const char* text) {
  if (text == nullptr)
    return CString();
  const std::string_view given(text);
  std::string tidy;
  tidy.reserve(given.size());
  ForEachPiece(given, [&](std::string_view piece) {
    const std::string_view id = WithoutBlanks(piece);
    if (!id.empty())
      Join(tidy, id);
  });
  return ToText(tidy);
}

void MergedHoldings::Add(const CString& holdings) {
  const std::string_view text(holdings.GetString(), static_cast<size_t>(holdings.GetLength()));
  ForEachPiece(text, [&](std::string_view id) { AddId(id); });
}

CString MergedHoldings::Text() const {
  return ToText(text_);
}

void MergedHoldings::AddId(std::string_view id) {
  if (count_ * 2 >= slots_.size())
    Grow();
  const auto hash = static_cast<uint32_t>(SeededHash(id));
  const size_t mask = slots_.size() - 1;
  size_t slot = hash & mask;
  for (++steps_; slots_[slot].length != 0; slot = (slot + 1) & mask, ++steps_) {
    if (IsAt(slots_[slot], hash, id))
      return;
  }
  Join(text_, id);
  const auto length = static_cast<uint32_t>(id.size());
  slots_[slot] = {hash, static_cast<uint32_t>(text_.size()) - length, length};
  ++count_;
}

bool MergedHoldings::IsAt(const Slot& slot, uint32_t hash, std::string_view id) const {
  return slot.hash == hash && std::string_view(text_).substr(slot.begin, slot.length) == id;
}

void MergedHoldings::Grow() {
  const std::vector<Slot> old = std::move(slots_);
  slots_.assign(old.empty() ? kFirstSlots : old.size() * 2, Slot{});
  const size_t mask = slots_.size() - 1;
  for (const Slot& used : old) {
    if (used.length == 0)
      continue;
    size_t slot = used.hash & mask;
    for (++steps_; slots_[slot].length != 0; ++steps_)
      slot = (slot + 1) & mask;
    slots_[slot] = used;
  }
}

} // namespace tq
