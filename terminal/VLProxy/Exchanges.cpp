// VLProxy: exchanges and their listings.
#include <span>

#include "platform/services/VLProxy.h"
#include "terminal/VLProxy/Answer.h"
#include "terminal/control/Listings.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

// The stand-in's exchanges have a single section, which is everything.
constexpr int kWholeExchange = -1;

// The exchange of a call for (exchId, subId); null when it is not listed.
const ListingRange* Section(int exchId, int subId) {
  static constexpr ListingRange kNothing;
  const ListingRange* range = CurrentListings().OfExchange(exchId);
  return range && subId != kWholeExchange ? &kNothing : range;
}

} // namespace

void VLFree(void* array) {
  NoteCall("VLFree");
  ReleaseArray(array);
}

int VLGetExch(ExchInfo** list, int* count, int flag) {
  const bool proceed = Begin("VLGetExch", flag);
  if (!ClearOutputs(list, count) || !proceed)
    return 0;
  return HandOutCopy(std::span<const ExchInfo>(CurrentListings().Exchanges()), list, count);
}

int VLGetBaseAttrs2(int exchId, int subId, BaseAttr** list, int* count, int reserved, int flag) {
  const bool proceed = Begin("VLGetBaseAttrs2", exchId, subId, reserved, flag);
  if (!ClearOutputs(list, count) || !proceed)
    return 0;
  const ListingRange* range = Section(exchId, subId);
  if (!range || !HandOut(range->count, list, count))
    return 0;
  const Listings& listings = CurrentListings();
  for (std::size_t i = 0; i < range->count; ++i)
    listings.Write(range->first + i, (*list)[i]);
  return 1;
}

int VLGetSymbolInfos2(int exchId, int subId, SymbolInfo** list, int* count, int reserved) {
  const bool proceed = Begin("VLGetSymbolInfos2", exchId, subId, reserved);
  if (!ClearOutputs(list, count) || !proceed)
    return 0;
  if (const Answer<SymbolInfo>* answer = AnsweredSymbols(exchId))
    return HandOutAnswer(*answer, list, count);
  const ListingRange* range = Section(exchId, subId);
  if (!range)
    return 0;
  const SymbolInfo* const first = CurrentListings().Infos() + range->first;
  return HandOutCopy(std::span<const SymbolInfo>(first, range->count), list, count);
}
