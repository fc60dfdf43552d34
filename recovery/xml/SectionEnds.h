// Where sections of an XML text end that only one text closes. A file made to cost time opens many
// and closes none: that an ending does not come any more is found out once, so that reading takes
// time in proportion to the text.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tq {

enum class Section { Comment, CharacterData, Instruction };

std::string_view OpeningOf(Section section);
std::string_view ClosingOf(Section section);

class SectionEnds {
public:
  // `text` must outlive it.
  explicit SectionEnds(std::string_view text) : text_(text) {}

  // Where the first closing of such a section begins that stands at `at` or behind it; npos when
  // none does.
  std::size_t Find(Section section, std::size_t at);

private:
  // The answer for all places from `from` to `found`.
  struct Answer {
    bool known = false;
    std::size_t from = 0;
    std::size_t found = 0;
  };

  const std::string_view text_;
  std::array<Answer, 3> answers_; // for each kind of section
};

} // namespace tq
