// The lists of a manager as plain texts, to be compared.
#pragma once

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "terminal/StandIn.h"

struct ListText {
  std::string id, name, ids;
  bool operator==(const ListText&) const = default;
};
using ListTexts = std::vector<ListText>;

struct ManagerLists {
  ListTexts user, cloud;
  int defaultIndex = -1;
  bool operator==(const ManagerLists&) const = default;
  bool HasSameUserLists(const ManagerLists& other) const {
    return user == other.user && defaultIndex == other.defaultIndex;
  }
};

inline void PrintTo(const ManagerLists& lists, std::ostream* out) {
  *out << "default " << lists.defaultIndex;
  for (const ListTexts* part : {&lists.user, &lists.cloud}) {
    *out << (part == &lists.user ? "\n user" : "\n cloud");
    for (const ListText& list : *part)
      *out << "\n  " << list.id << "/" << standin::FromAnsi(list.name) << "/" << list.ids;
  }
}

// Null when there is no such list.
inline const ListText* FindList(const ListTexts& lists, const std::string& id) {
  const auto found = std::find_if(lists.begin(), lists.end(),
                                  [&id](const ListText& list) { return list.id == id; });
  return found == lists.end() ? nullptr : &*found;
}
inline std::vector<std::string> PiecesOf(const std::string& ids) {
  std::vector<std::string> pieces;
  for (size_t from = 0; from < ids.size();) {
    const size_t comma = std::min(ids.find(',', from), ids.size());
    pieces.push_back(ids.substr(from, comma - from));
    from = comma + 1;
  }
  return pieces;
}
inline bool IsHeadingPiece(const std::string& piece) {
  return piece.find(':') != std::string::npos && piece.front() != ':';
}
