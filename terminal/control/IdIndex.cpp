#include "terminal/control/IdIndex.h"

#include <bit>
#include <cstring>

namespace standin {
namespace {

constexpr std::uint64_t EachByte(std::uint64_t value) {
  return value * 0x0101010101010101u;
}

// Lower-cases the ASCII letters among eight bytes at once: bit 7 of each sum tells whether a byte
// has reached the bound; shifted right by two it is the bit that makes a letter lower-case.
std::uint64_t FoldCase(std::uint64_t bytes) {
  const std::uint64_t low = bytes & EachByte(0x7F);
  const std::uint64_t fromA = low + EachByte(0x80 - 'A');
  const std::uint64_t aboveZ = low + EachByte(0x7F - 'Z');
  const std::uint64_t letters = (fromA ^ aboveZ) & ~bytes & EachByte(0x80);
  return bytes | (letters >> 2);
}

} // namespace

bool IdIndex::MakeKey(std::string_view id, Key& key) {
  if (id.empty() || id.size() > sizeof key.words)
    return false;
  std::memcpy(key.words, id.data(), id.size());
  for (std::uint64_t& word : key.words)
    word = FoldCase(word);
  return true;
}

void IdIndex::Reset(std::size_t count) {
  slots_.clear();
  slots_.resize(std::bit_ceil(count * 2 + 2));
}

std::size_t IdIndex::Probe(const Key& key) const {
  std::uint64_t hash = 0;
  for (const std::uint64_t word : key.words)
    hash = (hash ^ word) * 0x9E3779B97F4A7C15u ^ (hash >> 29);
  hash ^= hash >> 32;
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = static_cast<std::size_t>(hash) & mask;
  while (slots_[slot].key != Key() && slots_[slot].key != key)
    slot = (slot + 1) & mask;
  return slot;
}

void IdIndex::Add(std::string_view id, std::size_t position) {
  Key key;
  if (!MakeKey(id, key))
    return;
  Slot& slot = slots_[Probe(key)];
  if (slot.key == key)
    return;
  slot = {key, position};
}

std::size_t IdIndex::Find(std::string_view id) const {
  Key key;
  if (slots_.empty() || !MakeKey(id, key))
    return kNotFound;
  const Slot& slot = slots_[Probe(key)];
  return slot.key == key ? slot.position : kNotFound;
}

} // namespace standin
