// The user's lists as plain texts, and as the list file has them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "manager/TQSymbolListMgr.h"

namespace soak {

struct List {
  std::string id, name, symbols;
  bool operator==(const List&) const = default;
};

struct Lists {
  std::vector<List> lists;
  int index = 0; // of the one shown first, as the manager has it
  bool operator==(const Lists&) const = default;
};

Lists ListsOf(CTQSymbolListMgr& manager);

// The file by its description, written without the library. The second: of no lists.
std::string FileOf(const Lists& lists);
bool IsEmptyFile(const std::string& file);
// The lists of a file of that form; none when it has another form, or holds what a file cannot.
std::optional<std::vector<List>> ListsIn(const std::string& file);
// Whether a list would be lost with these bytes.
bool HoldsList(const std::string& file);

// Letter case of ASCII does not count in identifiers.
std::string Lower(std::string id);
const List* Find(const std::vector<List>& lists, const std::string& id);

} // namespace soak
