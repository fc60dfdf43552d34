// Lists of several files on their way into one: each gets an identifier and a name of its own, and
// none is lost.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "tools/tqlists/formats/Charset.h"
#include "tools/tqlists/formats/Entries.h"

namespace tqlists {

// Holds a few bytes for each list.
class Catalogue {
public:
  // Told what had to be changed, in words.
  using Tell = std::function<void(const std::string& change)>;

  explicit Catalogue(tq::TextEncoding encoding) : encoder_(encoding) {}

  // Lists of one file may have one name, those of different files do not.
  void BeginFile() { ++file_; }

  struct Stored {
    std::size_t place = 0; // among those that are kept
    bool isNew = false;    // false: the same list is there already
  };
  // Brings `list` into the form in which it is stored: in the encoding, within the lengths that a
  // list keeps. A list of the same identifier, name and symbols is there once; another one of that
  // identifier gets a new one, which depends on nothing but what it holds.
  Stored Add(List& list, const Tell& tell);

private:
  struct Contents {
    std::uint64_t first = 0;
    std::uint64_t second = 0;
    std::size_t place = 0;
  };

  std::string Encode(const std::string& text, const char* what, const Tell& tell);
  void GiveId(List& list, const Contents& contents, const Tell& tell);
  void GiveName(List& list, const Tell& tell);

  Encoder encoder_;
  int file_ = 0;
  std::size_t lists_ = 0;
  std::unordered_map<std::string, std::vector<Contents>> wanted_; // by the identifier as it came
  std::unordered_set<std::string> ids_;
  std::unordered_map<std::string, int> names_; // with the file that had it first
};

} // namespace tqlists
