// VLProxy: contracts and their extended attributes.
#include <algorithm>
#include <cstring>
#include <span>

#include "platform/CodePage.h"
#include "platform/services/VLProxy.h"
#include "terminal/VLProxy/Answer.h"
#include "terminal/control/Listings.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

constexpr int kAnyExchange = -1;

std::size_t FindContract(int exchId, const char* code) {
  const Listings& listings = CurrentListings();
  if (exchId != kAnyExchange)
    return listings.FindCode(exchId, code);
  for (const ExchInfo& exchange : listings.Exchanges())
    if (const std::size_t found = listings.FindCode(exchange.id, code);
        found != Listings::kNotFound)
      return found;
  return Listings::kNotFound;
}

} // namespace

// The stand-in's own ids are full ids.
int VLGetZUID(int exchId, const char* code, char* zuid) {
  const bool proceed = Begin("VLGetZUID", exchId, code);
  if (!proceed || !code || !zuid)
    return 0;
  const std::size_t position = FindContract(exchId, code);
  if (position == Listings::kNotFound)
    return 0;
  std::memcpy(zuid, CurrentListings().Infos()[position].id, sizeof(SymbolInfo::id));
  return 1;
}

int VLGetExtendAttr(const char* id, int kind, ExtAttr** list, int* count) {
  const bool proceed = Begin("VLGetExtendAttr", id, kind);
  if (!ClearOutputs(list, count) || !proceed || !id)
    return 0;
  if (const std::vector<ExtAttr>* answer = AnsweredExtended(id, kind))
    return HandOutCopy(std::span<const ExtAttr>(*answer), list, count);
  const Listings& listings = CurrentListings();
  const std::size_t position = listings.FindId(id);
  if (position == Listings::kNotFound)
    return 0;
  const Instrument& instrument = CurrentMarket().instruments[listings.Source(position)];
  const auto isAsked = [kind](const ExtendedText& text) { return text.kind == kind; };
  const auto asked = std::count_if(instrument.extended.begin(), instrument.extended.end(), isAsked);
  if (!HandOut(static_cast<std::size_t>(asked), list, count))
    return 0;
  ExtAttr* record = *list;
  if (!record)
    return 1;
  for (const ExtendedText& text : instrument.extended) {
    if (!isAsked(text))
      continue;
    record->kind = static_cast<short>(kind);
    tq::CopyCut(record->text, ToAnsi(text.text).c_str());
    ++record;
  }
  return 1;
}
