// What a quote page can show: lists of the user, of the cloud and of trading accounts, groups of
// the symbol-data service, and all symbols.
#pragma once

#include <vector>

#include "tqSymbol.h"

namespace desk {

// Where lists come from.
enum class From { UserLists, Holdings, CloudLists, AllSymbols, Group };

// An entry of the first box.
struct Source {
  From from = From::UserLists;
  int groupType = 0; // of a group at the top of its tree its type
  CString group{};   // and its id

  bool operator==(const Source& other) const {
    return from == other.from && groupType == other.groupType && group == other.group;
  }
};

// What one page shows. Ids, not names or positions: they stay when the user renames and moves.
struct Place {
  Source source{};
  CString list{}; // id of a list or of a sub-group; empty: the group itself, or all symbols

  bool operator==(const Place& other) const {
    return source == other.source && list.CompareNoCase(other.list) == 0;
  }
};

struct NamedSource {
  Source source;
  CString name;
};

struct NamedList {
  CString id;
  CString name;
};

// The manager's number of a kind of lists; 0 for what is no list.
int KindOf(From from);

// All of them, in the order in which they are offered.
std::vector<NamedSource> SourcesOf(CTQSymbolListMgr& manager);
// A group without sub-groups is one entry with an empty id, and so are all symbols.
std::vector<NamedList> ListsOf(CTQSymbolListMgr& manager, const Source& source);

// The user's list that is to be shown first; the source alone when there is none.
Place FirstPlace(CTQSymbolListMgr& manager);

} // namespace desk
