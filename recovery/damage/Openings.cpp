#include "recovery/damage/Openings.h"

#include <algorithm>
#include <iterator>

#include "recovery/damage/Anchors.h"
#include "recovery/xml/Bytes.h"

namespace tq {
namespace {

struct KnownOpening {
  std::string_view text;
  Opening opening;
  bool isName; // no more characters of a name may follow
};
constexpr KnownOpening kOpenings[] = {
    {"<List", Opening::List, true},
    {"</List", Opening::ListEnd, true},
    {"<SymbolList", Opening::Lists, true},
    {"</SymbolList", Opening::ListsEnd, true},
    {"<Result", Opening::Result, true},
    {"</Result", Opening::ResultEnd, true},
    {"<?", Opening::Instruction, false},
    {"<!--", Opening::Comment, false},
    {"<![CDATA[", Opening::CharacterData, false},
    {"<!", Opening::Type, false},
};

bool MayFollowName(std::string_view text, std::size_t at) {
  return at >= text.size() || !IsWordByte(text[at]);
}

// Whether a part can begin at the "<" at `at`, by what stands in front of it.
bool CanBeginAt(std::string_view text, std::size_t at) {
  while (at > 0 && IsBlank(text[at - 1])) {
    if (IsLineEnd(text[at - 1]))
      return true;
    --at;
  }
  return at == 0 || text[at - 1] == '>' || IsControl(text[at - 1]);
}

// What no name or symbol of a list holds.
bool IsPlainEnd(std::string_view text, std::size_t at, Opening opening) {
  return opening == Opening::ListsEnd || opening == Opening::ResultEnd ||
         (opening == Opening::Instruction && text.substr(at).starts_with("<?xml "));
}

bool EndsDamagedList(std::string_view text, std::size_t at) {
  const Opening opening = OpeningAt(text, at);
  return opening != Opening::None && (CanBeginAt(text, at) || IsPlainEnd(text, at, opening));
}

} // namespace

Opening OpeningAt(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at);
  for (const KnownOpening& known : kOpenings) {
    if (rest.starts_with(known.text) && (!known.isName || MayFollowName(rest, known.text.size())))
      return known.opening;
  }
  return Opening::None;
}

std::size_t LengthOf(Opening opening) {
  const auto* const known =
      std::find_if(std::begin(kOpenings), std::end(kOpenings),
                   [=](const KnownOpening& one) { return one.opening == opening; });
  return known != std::end(kOpenings) ? known->text.size() : 0;
}

bool LooksLikeList(std::string_view text, std::size_t at) {
  return Resembles(text.substr(at), "<List ");
}

bool LooksLikeResultEnd(std::string_view text, std::size_t at) {
  return Resembles(text.substr(at), "</Result>");
}

std::size_t EndOfDamagedList(std::string_view text, std::size_t from) {
  for (std::size_t at = text.find_first_of("<\n\r", from); at != std::string_view::npos;
       at = text.find_first_of("<\n\r", at + 1)) {
    if (text[at] == '<') {
      if (EndsDamagedList(text, at))
        return at;
      continue;
    }
    const std::size_t next = BehindBlanks(text, at);
    if (next == text.size())
      return at;
    if (LooksLikeList(text, next))
      return next;
    at = next - 1;
  }
  return text.size();
}

std::size_t EndOfRemains(std::string_view text, std::size_t from) {
  for (std::size_t at = text.find_first_of("<\n\r", from); at != std::string_view::npos;
       at = text.find_first_of("<\n\r", at + 1)) {
    if (text[at] == '<' && OpeningAt(text, at) != Opening::None)
      return at;
    if (IsLineEnd(text[at])) {
      at = BehindBlanks(text, at);
      if (at == text.size() || LooksLikeList(text, at))
        return at;
      --at;
    }
  }
  return text.size();
}

bool IsElementEnd(std::string_view text, std::size_t at) {
  for (; at < text.size(); ++at) {
    const char byte = text[at];
    if (IsLineEnd(byte) || IsControl(byte))
      return true;
    if (byte == '<')
      return OpeningAt(text, at) != Opening::None;
    if (IsQuote(byte))
      return false;
  }
  return true;
}

} // namespace tq
