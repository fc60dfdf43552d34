// What the boxes above the page offer, and what is chosen in them.
#pragma once

#include "terminal/desk/Places.h"

namespace desk {

class Choice {
public:
  // Starts with the list that the user wants to see first. The manager outlives it.
  explicit Choice(CTQSymbolListMgr& manager);

  const std::vector<NamedSource>& Sources() const { return sources_; }
  const std::vector<NamedList>& Lists() const { return lists_; }
  // Positions in them; -1 for a source without lists.
  int SourceIndex() const;
  int ListIndex() const;
  const Place& Chosen() const { return place_; }

  void ChooseSource(int index); // and its first list
  void ChooseList(int index);
  void Choose(const Place& place);

  // Asks the manager anew, as names, lists and groups come and go. A list that is gone makes way
  // for the first of its source, a source that is gone for the user's lists.
  void Reload();

private:
  CTQSymbolListMgr& manager_;
  std::vector<NamedSource> sources_;
  std::vector<NamedList> lists_;
  Place place_;
};

} // namespace desk
