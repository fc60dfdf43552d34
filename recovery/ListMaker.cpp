#include "recovery/ListMaker.h"

#include <algorithm>

#include "recovery/xml/Bytes.h"

namespace tq {
namespace {

constexpr std::size_t kMostOfId = 36; // bytes that a list keeps; docs/list-file.md
constexpr std::size_t kMostOfName = 64;
// More than are told, for those that are told are the first ones of the file.
constexpr std::size_t kMostNoted = 4 * kMostFindings;
// How sure it is that a value is in the encoding of most of the file.
constexpr double kTrustInFile = 11;

// As the lists split their strings: headings have a ":" behind their first character.
bool IsHeadingText(std::string_view token) {
  return token.find(':', 1) != token.npos;
}

// Remains of another list's markup.
bool HoldsMarkup(std::string_view token) {
  return token.find("='") != token.npos || token.find("=\"") != token.npos;
}

bool IsAllBlank(std::string_view text) {
  return BehindBlanks(text, 0) == text.size();
}

} // namespace

void ListMaker::Note(Fault fault, std::string_view piece) {
  if (faults_->size() < kMostNoted)
    faults_->push_back({fault, PlaceOf(piece), piece.size()});
}

Charset ListMaker::CharsetOfValue(std::string_view value) {
  const Charset charset = LikeliestCharset(value, charset_, kTrustInFile);
  if (charset != charset_)
    Note(Fault::OtherEncoding, value);
  return charset;
}

// Puts into clean_ what can be text. False when that is not all.
bool ListMaker::Clean(std::string_view value, Charset charset) {
  clean_.clear();
  bool whole = true;
  const char* const end = value.data() + value.size();
  bool inDamage = false;
  for (const char* at = value.data(); at != end;) {
    const bool ascii = static_cast<unsigned char>(*at) < 0x80;
    const bool control = IsControl(*at);
    const std::size_t length = ascii ? 1 : CharLength(charset, at, end);
    const bool damaged = control || length == 0;
    if (!damaged)
      clean_.append(at, length);
    else if (!inDamage)
      Note(control ? Fault::ControlByte : Fault::HalfCharacter,
           {at, static_cast<std::size_t>(end - at)});
    inDamage = damaged;
    whole &= !damaged;
    at += std::max<std::size_t>(length, 1);
  }
  return whole;
}

// Of what was cleaned. False when a character is lost.
bool ListMaker::CarryText(std::string_view value, Charset charset, std::string& out) {
  const bool carried = carrier_.Carry(clean_, charset, out);
  if (!carried)
    Note(Fault::NotCarried, value);
  return carried;
}

void ListMaker::Cut(std::string_view bytes, std::size_t limit, std::string& text) {
  const std::size_t length = CutLengthInCodePage(text, encoding_, limit);
  if (length == text.size())
    return;
  Note(Fault::TooLong, bytes);
  text.resize(length);
}

// What holds another attribute's beginning is two values that were written over each other.
void ListMaker::MakeId(const RawList& raw, std::string& id) {
  id.clear();
  const std::string_view bytes = raw.id.bytes;
  const Charset charset = CharsetOfValue(bytes);
  const bool torn = raw.id.tornFront || raw.id.tornBack || (raw.damaged && HoldsMarkup(bytes));
  if (torn || !Clean(bytes, charset) || !CarryText(bytes, charset, id))
    id.clear();
  Cut(bytes, kMostOfId, id);
}

void ListMaker::MakeName(const RawList& raw, std::string& name) {
  const Charset charset = CharsetOfValue(raw.name.bytes);
  Clean(raw.name.bytes, charset);
  CarryText(raw.name.bytes, charset, name);
  Cut(raw.name.bytes, kMostOfName, name);
  const bool torn = !raw.name.present || raw.name.tornFront || raw.name.tornBack;
  const bool emptied = name.empty() && !raw.name.bytes.empty();
  if (emptied || (raw.damaged && name.empty() && torn))
    Note(Fault::LostName, text_.substr(raw.begin, 0));
}

// One token into token_. False when it is lost.
bool ListMaker::TakeToken(std::string_view token, bool damaged, Charset charset) {
  const bool whole = Clean(token, charset);
  const bool heading = IsHeadingText(clean_) && token.find('\0') == token.npos;
  if (!heading && (!whole || (damaged && HoldsMarkup(token))))
    return false;
  if (carrier_.Carry(clean_, charset, token_))
    return true;
  Note(Fault::NotCarried, token);
  return heading;
}

void ListMaker::AddTokens(const RawList& raw, Charset charset, std::string& symbols) {
  const std::string_view all = raw.symbols.bytes;
  bool any = false;
  for (std::size_t at = 0; at <= all.size();) {
    const std::size_t comma = std::min(all.find(',', at), all.size());
    const std::string_view token = all.substr(at, comma - at);
    const bool torn =
        (at == 0 && raw.symbols.tornFront) || (comma == all.size() && raw.symbols.tornBack);
    at = comma + 1;
    if (torn && IsAllBlank(token))
      continue;
    if (torn || !TakeToken(token, raw.damaged, charset)) {
      Note(Fault::LostSymbol, token);
      continue;
    }
    if (any)
      symbols += ',';
    symbols += token_;
    any = true;
  }
}

void ListMaker::MakeSymbols(const RawList& raw, std::string& symbols) {
  symbols.clear();
  const std::string_view all = raw.symbols.bytes;
  const Charset charset = CharsetOfValue(all);
  const bool torn = raw.symbols.tornFront || raw.symbols.tornBack;
  const bool plain = !torn && FindControl(all) == all.size() && IsTextOf(charset, all) &&
                     !(raw.damaged && HoldsMarkup(all));
  if (!plain || !carrier_.Carry(all, charset, symbols)) {
    symbols.clear();
    AddTokens(raw, charset, symbols);
  }
  if (raw.symbols.tornBack || (raw.damaged && !raw.symbols.present))
    Note(Fault::LostSymbols, text_.substr(raw.symbols.present ? PlaceOf(all) : raw.begin, 0));
}

void ListMaker::Make(const RawList& raw, RecoveredList& list, std::vector<RawFault>& faults) {
  faults = raw.faults;
  faults_ = &faults;
  MakeId(raw, list.id);
  MakeName(raw, list.name);
  MakeSymbols(raw, list.symbols);
  if (list.id.empty())
    Note(Fault::NoId, text_.substr(raw.begin, 0));
  if (raw.damaged && faults.empty())
    Note(Fault::BrokenMarkup, text_.substr(raw.begin, raw.end - raw.begin));
  std::stable_sort(faults.begin(), faults.end(),
                   [](const RawFault& one, const RawFault& other) { return one.at < other.at; });
  const bool known = !list.id.empty() && raw.name.present && raw.symbols.present;
  const bool lost = list.name.empty() && list.symbols.empty() && !known &&
                    (raw.damaged || !(raw.id.present || raw.name.present || raw.symbols.present));
  const bool whole = faults.empty();
  list.fate = lost ? ListFate::Lost : whole ? ListFate::Whole : ListFate::Repaired;
}

} // namespace tq
