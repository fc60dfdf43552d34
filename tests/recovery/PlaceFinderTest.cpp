// Where a place in a file's text is in the file: byte, line and column, from each place to each.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "recovery/xml/FileText.h"

namespace {

struct Place {
  std::size_t offset;
  std::size_t line;
  std::size_t column; // in bytes of the file

  bool operator==(const Place&) const = default;
};

Place PlaceOf(tq::PlaceFinder& finder, std::size_t at) {
  const tq::Finding found = finder.Find(at);
  return {static_cast<std::size_t>(found.offset), static_cast<std::size_t>(found.line),
          static_cast<std::size_t>(found.column)};
}

// The places of all bytes of an ASCII text in a file where each takes `width` bytes behind `mark`.
std::vector<Place> PlacesIn(const std::string& text, std::size_t mark, std::size_t width) {
  std::vector<Place> places;
  Place here{mark, 1, mark + 1};
  for (const char byte : text + '$') { // the end has a place too
    places.push_back(here);
    here.offset += width;
    here.column += width;
    if (byte == '\n')
      here = {here.offset, here.line + 1, 1};
  }
  return places;
}

void ExpectPlaces(const std::string& file, const std::vector<Place>& places) {
  const tq::FileText text(file);
  ASSERT_EQ(text.Text().size() + 1, places.size());
  tq::PlaceFinder onwards(text);
  for (std::size_t at = 0; at < places.size(); ++at)
    EXPECT_EQ(PlaceOf(onwards, at), places[at]) << at;
  for (std::size_t from = 0; from < places.size(); ++from) {
    for (std::size_t at = 0; at < places.size(); ++at) {
      tq::PlaceFinder finder(text);
      EXPECT_EQ(PlaceOf(finder, from), places[from]) << from;
      EXPECT_EQ(PlaceOf(finder, at), places[at]) << at << " after " << from;
    }
  }
}

constexpr char kText[] = "<a>\n\n b\r\nlast\n";

TEST(PlaceFinder, CountsBytesAndLines) {
  ExpectPlaces(kText, PlacesIn(kText, 0, 1));
  ExpectPlaces("", PlacesIn("", 0, 1));
  ExpectPlaces("\n", PlacesIn("\n", 0, 1));
  ExpectPlaces("no line end", PlacesIn("no line end", 0, 1));
}

TEST(PlaceFinder, AMarkIsOnTheFirstLine) {
  ExpectPlaces(std::string("\xEF\xBB\xBF") + kText, PlacesIn(kText, 3, 1));
}

TEST(PlaceFinder, InUtf16CharactersTakeTwoBytes) {
  std::string file = "\xFF\xFE";
  for (const char* at = kText; *at != '\0'; ++at)
    file += {*at, '\0'};
  ExpectPlaces(file, PlacesIn(kText, 2, 2));
}

TEST(PlaceFinder, BehindTheEndIsTheEnd) {
  const tq::FileText text("a\nb");
  tq::PlaceFinder finder(text);
  EXPECT_EQ(PlaceOf(finder, 99), (Place{3, 2, 2}));
}

} // namespace
