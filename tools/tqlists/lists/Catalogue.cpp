#include "tools/tqlists/lists/Catalogue.h"

#include <cstdio>

namespace tqlists {
namespace {

constexpr std::size_t kIdLimit = 36;   // bytes that a list keeps of its identifier,
constexpr std::size_t kNameLimit = 64; // and of its name

// A checksum of bytes (FNV-1a), begun with a number.
std::uint64_t Checksum(std::uint64_t start, std::string_view bytes) {
  constexpr std::uint64_t prime = 0x100000001B3;
  for (const char c : bytes)
    start = (start ^ static_cast<unsigned char>(c)) * prime;
  return start;
}

std::uint64_t ChecksumOf(const List& list, std::uint64_t start) {
  const std::uint64_t name = Checksum(start, list.name);
  return Checksum(Checksum(name, std::string_view("\0", 1)), list.symbols);
}

// In the form of a GUID as the system prints it.
std::string NewId(std::uint64_t first, std::uint64_t second) {
  char text[kIdLimit + 1];
  std::snprintf(text, sizeof text, "%08lX-%04X-%04x-%04X-%04X%08lX",
                static_cast<unsigned long>(first >> 32),
                static_cast<unsigned>(first >> 16 & 0xFFFF), static_cast<unsigned>(first & 0xFFFF),
                static_cast<unsigned>(second >> 48), static_cast<unsigned>(second >> 32 & 0xFFFF),
                static_cast<unsigned long>(second & 0xFFFFFFFF));
  return text;
}

} // namespace

std::string Catalogue::Encode(const std::string& text, const char* what, const Tell& tell) {
  std::string lost;
  std::string encoded = encoder_.Encode(
      text, [&](char32_t character) { lost += (lost.empty() ? "" : ", ") + Named(character); });
  if (!lost.empty())
    tell(std::string(what) + " has characters that " + NameOf(encoder_.Encoding()) +
         " lacks; \"?\" stands for them: " + lost);
  return encoded;
}

Catalogue::Stored Catalogue::Add(List& list, const Tell& tell) {
  list = {Encode(list.id, "the identifier", tell), Encode(list.name, "the name", tell),
          Encode(list.symbols, "the symbol string", tell)};
  constexpr std::uint64_t basis = 0xCBF29CE484222325;
  Contents contents{ChecksumOf(list, basis), ChecksumOf(list, ~basis), lists_};
  std::vector<Contents>& same = wanted_[LowerCase(list.id)];
  for (const Contents& there : same) {
    if (there.first == contents.first && there.second == contents.second) {
      tell("is there already, with the same identifier, name and symbols");
      return {there.place, false};
    }
  }
  same.push_back(contents);
  GiveId(list, contents, tell);
  GiveName(list, tell);
  return {lists_++, true};
}

void Catalogue::GiveId(List& list, const Contents& contents, const Tell& tell) {
  const bool fits = !list.id.empty() && encoder_.CutLength(list.id, kIdLimit) == list.id.size();
  if (fits && ids_.insert(LowerCase(list.id)).second)
    return;
  if (!list.id.empty())
    tell(fits ? "gets a new identifier, for another list has this one"
              : "gets a new identifier, for this one is too long");
  std::uint64_t attempt = 0;
  do
    list.id = NewId(contents.first, contents.second + attempt++);
  while (!ids_.insert(LowerCase(list.id)).second);
}

void Catalogue::GiveName(List& list, const Tell& tell) {
  const std::string whole = list.name;
  list.name.resize(encoder_.CutLength(whole, kNameLimit));
  if (list.name != whole)
    tell("has a name longer than 64 bytes; it is cut");
  const std::string wanted = list.name;
  for (int number = 1; names_.try_emplace(LowerCase(list.name), file_).first->second != file_;
       ++number) {
    const std::string suffix = "(" + std::to_string(number) + ")";
    list.name = wanted.substr(0, encoder_.CutLength(wanted, kNameLimit - suffix.size())) + suffix;
  }
  if (list.name != wanted)
    tell("gets a number behind its name, for a list of another file has the name");
}

} // namespace tqlists
