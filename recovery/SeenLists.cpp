#include "recovery/SeenLists.h"

#include <array>
#include <cstdio>

namespace tq {
namespace {

constexpr std::uint64_t kHashStart = 0xCBF29CE484222325;

char LowerLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

// Spreads what the last bytes changed over all bits.
std::uint64_t Mixed(std::uint64_t hash) {
  hash = (hash ^ hash >> 32) * 0xD6E8FEB86659FD93;
  hash = (hash ^ hash >> 32) * 0xD6E8FEB86659FD93;
  return hash ^ hash >> 32;
}

std::uint64_t HashOf(std::string_view text, std::uint64_t start) {
  for (const char c : text)
    start = (start ^ static_cast<unsigned char>(c)) * 0x100000001B3;
  return Mixed(start ^ text.size());
}

std::uint64_t HashOfId(std::string_view id) {
  std::uint64_t hash = kHashStart;
  for (const char c : id)
    hash = (hash ^ static_cast<unsigned char>(LowerLetter(c))) * 0x100000001B3;
  return Mixed(hash);
}

// As the system prints them.
std::string GuidText(std::uint64_t high, std::uint64_t low) {
  std::array<char, 40> text{};
  const auto part = [](std::uint64_t from, int shift, std::uint64_t mask) {
    return static_cast<unsigned>(from >> shift & mask);
  };
  const auto byte = [&](int index) { return part(low, 56 - 8 * index, 0xFF); };
  const int length =
      std::snprintf(text.data(), text.size(), "%08X-%04X-%04x-%02X%02X-%02X%02X%02X%02X%02X%02X",
                    part(high, 32, 0xFFFFFFFF), part(high, 16, 0xFFFF), part(high, 0, 0xFFFF),
                    byte(0), byte(1), byte(2), byte(3), byte(4), byte(5), byte(6), byte(7));
  return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

SeenLists::Key SeenLists::KeyOf(const RecoveredList& list) {
  const std::uint64_t rest = HashOf(list.symbols, HashOf(list.name, kHashStart));
  return {HashOfId(list.id), rest};
}

bool SeenLists::HasId(std::uint64_t id) const {
  const auto found = numbers_.lower_bound({id, 0});
  return found != numbers_.end() && found->first.first == id;
}

SeenLists::Kind SeenLists::Look(const RecoveredList& list) const {
  const Key key = KeyOf(list);
  if (numbers_.contains(key))
    return Kind::SameList;
  return HasId(key.first) ? Kind::SameId : Kind::New;
}

int SeenLists::NumberOf(const RecoveredList& list) const {
  return numbers_.at(KeyOf(list));
}

void SeenLists::Note(const RecoveredList& list, int number) {
  numbers_.try_emplace(KeyOf(list), number);
}

std::string SeenLists::NewId(std::string_view bytes, std::size_t at) const {
  for (std::uint64_t attempt = 0;; ++attempt) {
    const std::uint64_t high = HashOf(bytes, Mixed(at + attempt));
    std::string id = GuidText(high, Mixed(high ^ HashOf(bytes, kHashStart)));
    if (!HasId(HashOfId(id)))
      return id;
  }
}

} // namespace tq
