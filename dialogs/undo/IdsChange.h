// What makes one id string of another, as the pieces that only one of the two has: an edit of a
// long list is kept as what it changed. It holds for the text alone, byte for byte, whatever the
// symbol-data service knows.
#pragma once

#include <string>
#include <string_view>

#include "dialogs/undo/PlaceRuns.h"

namespace tq {

class IdsChange {
public:
  // No change.
  IdsChange() = default;
  IdsChange(std::string_view before, std::string_view after);

  bool IsNone() const { return now_.places.empty() && other_.places.empty(); }
  // Makes of the text of now the other one: of the text behind the change that in front of it, and
  // so on. False, and nothing happens, when `ids` cannot be the text of now. No change fits any.
  bool Turn(std::string& ids);

private:
  // The pieces that the other text does not have, by their places in this one.
  struct Side {
    PlaceRuns places;
    int count = 1; // of all its pieces
  };

  Side now_;
  Side other_;
  std::string kept_; // the pieces of `other_.places`, joined by ","
};

} // namespace tq
