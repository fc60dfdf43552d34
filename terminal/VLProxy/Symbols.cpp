// VLProxy: symbols by name.
#include "platform/services/VLProxy.h"
#include "terminal/VLProxy/Answer.h"
#include "terminal/VLProxy/Tokens.h"
#include "terminal/control/Listings.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

// The block has as many records as there are ids, and the known ones are filled. It is sized before
// the ids are looked up, so each is looked up once.
template <class T, class Find, class Write>
int HandOutKnown(const char* ids, T** list, int* count, Find find, Write write) {
  if (!HandOut(CountTokens(ids), list, count))
    return 0;
  int known = 0;
  ForEachToken(ids, [&](std::string_view id) {
    const std::size_t position = find(id);
    if (position != Listings::kNotFound)
      write(position, (*list)[known++]);
  });
  *count = known;
  if (known == 0) {
    ReleaseArray(*list);
    *list = nullptr;
  }
  return 1;
}

} // namespace

int VLGetBaseAttrs(const char* symbols, BaseAttr** list, int* count, int flag) {
  const bool proceed = Begin("VLGetBaseAttrs", symbols, flag);
  if (!ClearOutputs(list, count) || !proceed || !symbols)
    return 0;
  const Listings& listings = CurrentListings();
  return HandOutKnown(
      symbols, list, count, [&](std::string_view id) { return listings.FindIdOrCode(id); },
      [&](std::size_t position, BaseAttr& record) { listings.Write(position, record); });
}

int VLGetSymbolInfos(const char* ids, SymbolInfo** list, int* count) {
  const bool proceed = Begin("VLGetSymbolInfos", ids);
  if (!ClearOutputs(list, count) || !proceed || !ids)
    return 0;
  const Listings& listings = CurrentListings();
  const SymbolInfo* infos = listings.Infos();
  return HandOutKnown(
      ids, list, count, [&](std::string_view id) { return listings.FindId(id); },
      [&](std::size_t position, SymbolInfo& record) { record = infos[position]; });
}

int VLGetSymbolInfo(const char* id, SymbolInfo* info) {
  const bool proceed = Begin("VLGetSymbolInfo", id);
  if (!proceed || !id || !info)
    return 0;
  const Listings& listings = CurrentListings();
  const std::size_t position = listings.FindId(id);
  if (position == Listings::kNotFound)
    return 0;
  *info = listings.Infos()[position];
  return 1;
}
