// Where comments, character data and instructions end, and that it is looked for but once.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "recovery/xml/SectionEnds.h"

namespace {

using tq::Section;

constexpr Section kSections[] = {Section::Comment, Section::CharacterData, Section::Instruction};
constexpr std::size_t kNone = std::string_view::npos;

TEST(SectionEnds, TheFirstClosingThatFollows) {
  for (const Section section : kSections) {
    const std::string closing(tq::ClosingOf(section));
    const std::string text = "ab" + closing + "cd" + closing + "e";
    const std::size_t second = 4 + closing.size();
    tq::SectionEnds ends(text);
    EXPECT_EQ(ends.Find(section, 0), 2U);
    EXPECT_EQ(ends.Find(section, 2), 2U);
    EXPECT_EQ(ends.Find(section, 3), second);
    EXPECT_EQ(ends.Find(section, second), second);
    EXPECT_EQ(ends.Find(section, second + 1), kNone);
    EXPECT_EQ(ends.Find(section, text.size()), kNone);
  }
}

TEST(SectionEnds, QuestionsMayGoBack) {
  const std::string text = "-->-->";
  tq::SectionEnds ends(text);
  EXPECT_EQ(ends.Find(Section::Comment, 4), kNone);
  EXPECT_EQ(ends.Find(Section::Comment, 1), 3U);
  EXPECT_EQ(ends.Find(Section::Comment, 0), 0U);
}

TEST(SectionEnds, EachKindHasItsOwn) {
  const std::string text = "--> ?> ]]> ?>";
  tq::SectionEnds ends(text);
  EXPECT_EQ(ends.Find(Section::Comment, 1), kNone);
  EXPECT_EQ(ends.Find(Section::Instruction, 1), 4U);
  EXPECT_EQ(ends.Find(Section::CharacterData, 1), 7U);
  EXPECT_EQ(ends.Find(Section::Instruction, 5), 11U);
  EXPECT_EQ(ends.Find(Section::Comment, 2), kNone);
}

TEST(SectionEnds, AnEmptyTextHasNone) {
  for (const Section section : kSections)
    EXPECT_EQ(tq::SectionEnds("").Find(section, 0), kNone);
}

// The text changes behind its back, which a second search would see.
TEST(SectionEnds, WhatWasFoundIsNotLookedForAgain) {
  for (const Section section : kSections) {
    const std::string closing(tq::ClosingOf(section));
    const std::string plain(20, 'x');
    std::string without = plain;
    std::string with = plain + closing;
    tq::SectionEnds missing(without);
    tq::SectionEnds present(with);
    EXPECT_EQ(missing.Find(section, 3), kNone);
    EXPECT_EQ(present.Find(section, 3), plain.size());
    for (std::string* const text : {&without, &with})
      text->replace(10, closing.size(), closing);
    for (const std::size_t at : {std::size_t{3}, std::size_t{4}, std::size_t{10}, plain.size()}) {
      EXPECT_EQ(missing.Find(section, at), kNone);
      EXPECT_EQ(present.Find(section, at), plain.size());
    }
  }
}

} // namespace
