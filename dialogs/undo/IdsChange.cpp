#include "dialogs/undo/IdsChange.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/framework/SeededHash.h"

namespace tq {

namespace {

using Pieces = std::vector<std::string_view>;
using Places = std::vector<int>;
constexpr int kNoPlace = -1;

struct SeededPieceHash {
  std::size_t operator()(std::string_view text) const { return SeededHash(text); }
};

std::size_t IndexOf(int place) {
  return static_cast<std::size_t>(place);
}

// Empty ones too, so that joining them gives the same text.
Pieces PiecesOf(std::string_view ids) {
  Pieces pieces;
  for (std::size_t comma = ids.find(','); comma != std::string_view::npos; comma = ids.find(',')) {
    pieces.push_back(ids.substr(0, comma));
    ids.remove_prefix(comma + 1);
  }
  pieces.push_back(ids);
  return pieces;
}

std::string JoinedPieces(const Pieces& pieces) {
  std::string text;
  for (const std::string_view piece : pieces)
    text.append(piece).append(",");
  if (!text.empty())
    text.pop_back();
  return text;
}

// For each piece of `after` the place that it has in `before`, or kNoPlace. Of pieces that repeat
// the first is the first.
Places PlacesBefore(const Pieces& before, const Pieces& after) {
  std::unordered_map<std::string_view, int, SeededPieceHash> first;
  Places nextAlike(before.size(), kNoPlace);
  for (std::size_t i = before.size(); i-- > 0;) {
    const auto [at, isFresh] = first.emplace(before[i], static_cast<int>(i));
    if (!isFresh)
      nextAlike[i] = std::exchange(at->second, static_cast<int>(i));
  }
  Places places;
  for (const std::string_view piece : after) {
    const auto found = first.find(piece);
    places.push_back(found == first.end() ? kNoPlace : found->second);
    if (places.back() != kNoPlace)
      found->second = nextAlike[IndexOf(places.back())];
  }
  return places;
}

// Where in `places` a longest ascending sequence of them stands: what stays in its order. By
// patience sorting, in n log n.
Places LongestAscent(const Places& places) {
  Places ends; // of the best sequence of each length the place of its last one
  Places previous(places.size(), kNoPlace);
  for (int i = 0; i < static_cast<int>(places.size()); ++i) {
    const int place = places[IndexOf(i)];
    if (place == kNoPlace)
      continue;
    const auto at = std::lower_bound(ends.begin(), ends.end(), place, [&](int end, int wanted) {
      return places[IndexOf(end)] < wanted;
    });
    if (at != ends.begin())
      previous[IndexOf(i)] = *(at - 1);
    if (at == ends.end())
      ends.push_back(i);
    else
      *at = i;
  }
  Places ascent;
  for (int i = ends.empty() ? kNoPlace : ends.back(); i != kNoPlace; i = previous[IndexOf(i)])
    ascent.push_back(i);
  std::reverse(ascent.begin(), ascent.end());
  return ascent;
}

// Those of `count` places that are not among `kept`, which ascend.
PlaceRuns PlacesBut(const Places& kept, int count) {
  PlaceRuns runs;
  auto next = kept.begin();
  for (int place = 0; place < count; ++place) {
    if (next != kept.end() && *next == place)
      ++next;
    else
      AddPlace(runs, place);
  }
  return runs;
}

} // namespace

IdsChange::IdsChange(std::string_view before, std::string_view after) {
  Pieces pieces = PiecesOf(before);
  const Pieces piecesAfter = PiecesOf(after);
  const Places places = PlacesBefore(pieces, piecesAfter);
  const Places stay = LongestAscent(places);
  Places stayBefore;
  for (const int place : stay)
    stayBefore.push_back(places[IndexOf(place)]);
  now_.count = static_cast<int>(piecesAfter.size());
  now_.places = PlacesBut(stay, now_.count);
  other_.count = static_cast<int>(pieces.size());
  other_.places = PlacesBut(stayBefore, other_.count);
  kept_ = JoinedPieces(TakeOut(pieces, other_.places));
}

bool IdsChange::Turn(std::string& ids) {
  if (IsNone())
    return true;
  Pieces pieces = PiecesOf(ids);
  if (static_cast<int>(pieces.size()) != now_.count)
    return false;
  const std::string kept = std::exchange(kept_, JoinedPieces(TakeOut(pieces, now_.places)));
  if (!other_.places.empty())
    PutIn(pieces, other_.places, PiecesOf(kept));
  ids = JoinedPieces(pieces);
  std::swap(now_, other_);
  return true;
}

} // namespace tq
