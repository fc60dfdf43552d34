// Places as the library's selection of a list has them.
#include "terminal/desk/Selection.h"

#include "tests/desk/DeskTest.h"

namespace {

using desk::From;
using desk::Place;

class SelectionTest : public DeskTest {
protected:
  SelectionTest() {
    desk::LogIn(manager);
    desk::PushCloudLists(manager);
  }
};

TEST_F(SelectionTest, APlaceComesBackFromItsKindAndText) {
  const Place places[] = {{{From::UserLists}, "B"},
                          {{From::Holdings}, "198011"},
                          {{From::CloudLists}, "VORNG0101"},
                          {{From::AllSymbols}},
                          {{From::Group, 1, "TSE"}, "CEM"},
                          {{From::Group, 1, "ETF"}},
                          {{From::Group, 201, "VORNG01"}, "VORNG0102"}};
  for (const Place& place : places) {
    const desk::Selection selection = desk::SelectionOf(manager, place);
    SCOPED_TRACE(std::to_string(selection.kind) + " " + Utf8(selection.text));
    const std::optional<Place> back = desk::PlaceOf(manager, selection);
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(*back, place);
  }
}

TEST_F(SelectionTest, AGroupIsItsNames) {
  const desk::Selection selection = desk::SelectionOf(manager, {{From::Group, 1, "TSE"}, "CHIP"});
  EXPECT_EQ(selection.kind, 2);
  EXPECT_EQ(Utf8(selection.text), Said("上市,半導體", "上市,半导体"));
}

TEST_F(SelectionTest, AGroupThatTheSelectionDoesNotOfferIsNone) {
  EXPECT_EQ(desk::SelectionOf(manager, {{From::Group, 2, "CTW"}, "AI"}).kind, 0);
}

TEST_F(SelectionTest, WhatIsNotThereIsNoPlace) {
  EXPECT_FALSE(desk::PlaceOf(manager, {0, "A"}).has_value());
  EXPECT_FALSE(desk::PlaceOf(manager, {1, "none"}).has_value());
  EXPECT_FALSE(desk::PlaceOf(manager, {2, "none,none"}).has_value());
  EXPECT_FALSE(desk::PlaceOf(manager, {8, "none"}).has_value());
}

} // namespace
