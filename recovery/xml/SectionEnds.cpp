#include "recovery/xml/SectionEnds.h"

namespace tq {

std::string_view OpeningOf(Section section) {
  switch (section) {
  case Section::Comment:
    return "<!--";
  case Section::CharacterData:
    return "<![CDATA[";
  case Section::Instruction:
    break;
  }
  return "<?";
}

std::string_view ClosingOf(Section section) {
  switch (section) {
  case Section::Comment:
    return "-->";
  case Section::CharacterData:
    return "]]>";
  case Section::Instruction:
    break;
  }
  return "?>";
}

std::size_t SectionEnds::Find(Section section, std::size_t at) {
  Answer& answer = answers_[static_cast<std::size_t>(section)];
  if (!answer.known || at < answer.from || at > answer.found)
    answer = {true, at, text_.find(ClosingOf(section), at)};
  return answer.found;
}

} // namespace tq
