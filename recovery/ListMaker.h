// Makes a list of its bytes in the file: text in the encoding that is asked for, without what is
// damaged, and with a finding for everything that is not as it was stored.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "recovery/ListRecovery.h"
#include "recovery/RawList.h"
#include "recovery/TextCarrier.h"
#include "recovery/xml/Charset.h"

namespace tq {

class ListMaker {
public:
  // `text` is the whole file's, most of it in `charset`.
  ListMaker(std::string_view text, Charset charset, TextEncoding encoding)
      : text_(text), charset_(charset), encoding_(encoding), carrier_(encoding) {}

  // Replaces identifier, name, symbols and fate of `list`, and `faults` by what is wrong with it,
  // in the order of the file. A list whose identifier is missing or damaged has an empty one.
  void Make(const RawList& raw, RecoveredList& list, std::vector<RawFault>& faults);

private:
  std::size_t PlaceOf(std::string_view part) const {
    return static_cast<std::size_t>(part.data() - text_.data());
  }
  void Note(Fault fault, std::string_view piece);
  Charset CharsetOfValue(std::string_view value);
  bool Clean(std::string_view value, Charset charset);
  bool CarryText(std::string_view value, Charset charset, std::string& out);
  void MakeId(const RawList& raw, std::string& id);
  void MakeName(const RawList& raw, std::string& name);
  void MakeSymbols(const RawList& raw, std::string& symbols);
  void AddTokens(const RawList& raw, Charset charset, std::string& symbols);
  bool TakeToken(std::string_view token, bool damaged, Charset charset);
  void Cut(std::string_view bytes, std::size_t limit, std::string& text);

  const std::string_view text_;
  const Charset charset_;
  const TextEncoding encoding_;
  TextCarrier carrier_;
  std::vector<RawFault>* faults_ = nullptr;
  std::string clean_;
  std::string token_;
};

} // namespace tq
