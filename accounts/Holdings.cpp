#include "accounts/Holdings.h"

#include <utility>

#include "platform/Text.h"
#include "platform/framework/SeededHash.h"

namespace tq {
namespace {

constexpr size_t kFirstSlots = 64;

void Join(std::string& text, std::string_view id) {
  if (!text.empty())
    text += ',';
  text += id;
}

} // namespace

CString TidyHoldings(const char* text) {
  if (text == nullptr)
    return CString();
  const std::string_view given(text);
  std::string tidy;
  tidy.reserve(given.size());
  ForEachPiece(given, [&tidy](int, std::string_view piece) {
    if (const std::string_view id = Trimmed(piece); !id.empty())
      Join(tidy, id);
  });
  return ToCString(tidy);
}

void MergedHoldings::Add(const CString& holdings) {
  ForEachPiece(ViewOf(holdings), [this](int, std::string_view id) {
    if (!id.empty())
      AddId(id);
  });
}

CString MergedHoldings::Text() const {
  return ToCString(text_);
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
