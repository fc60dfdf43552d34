// VLProxy: searches for what a user types.
#include <cstdlib>
#include <vector>

#include "platform/services/VLProxy.h"
#include "terminal/VLProxy/Answer.h"
#include "terminal/VLProxy/Tokens.h"
#include "terminal/control/Listings.h"
#include "terminal/control/Reports.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

constexpr int kEveryExchange = -1;

char Fold(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Codes are ASCII, so comparing bytes is right even when `start` is not.
bool BeginsWith(std::string_view code, std::string_view start) {
  if (start.size() > code.size())
    return false;
  for (std::size_t i = 0; i < start.size(); ++i)
    if (Fold(code[i]) != Fold(start[i]))
      return false;
  return true;
}

struct Wanted {
  std::string_view text; // as the service got it
  std::string name;      // the same in UTF-8, where no character contains part of another
  bool simplifiedToo;
};

bool NameContains(const Instrument& instrument, const Wanted& wanted) {
  const bool traditional = InterfaceLanguage() == Language::Traditional;
  const std::string& name = traditional ? instrument.nameTw : instrument.nameCn;
  return name.find(wanted.name) != std::string::npos ||
         (wanted.simplifiedToo && instrument.nameCn.find(wanted.name) != std::string::npos);
}

bool Matches(const SymbolInfo& info, const Instrument& instrument, const Wanted& wanted) {
  // The id begins with the bare code.
  return BeginsWith(info.id, wanted.text) || BeginsWith(info.code, wanted.text) ||
         NameContains(instrument, wanted);
}

void Search(const Wanted& wanted, const ListingRange& range, std::vector<std::size_t>& found) {
  const Listings& listings = CurrentListings();
  const std::vector<Instrument>& instruments = CurrentMarket().instruments;
  for (std::size_t i = range.first; i < range.first + range.count; ++i)
    if (Matches(listings.Infos()[i], instruments[listings.Source(i)], wanted))
      found.push_back(i);
}

// 1, or 0 without memory.
int HandOutInfos(const std::vector<std::size_t>& found, SymbolInfo** list, int* count) {
  if (!HandOut(found.size(), list, count))
    return 0;
  for (std::size_t i = 0; i < found.size(); ++i)
    (*list)[i] = CurrentListings().Infos()[found[i]];
  return 1;
}

} // namespace

int VLFindSymbol(const char* text, SymbolInfo** list, int* count, int reserved, int mode,
                 int exchId) {
  const bool proceed = Begin("VLFindSymbol", text, reserved, mode, exchId);
  if (!ClearOutputs(list, count) || !proceed || !text)
    return 0;
  if (*text == '\0')
    return 1;
  const Listings& listings = CurrentListings();
  const ListingRange everything{0, listings.Count()};
  const ListingRange* range = exchId == kEveryExchange ? &everything : listings.OfExchange(exchId);
  if (!range)
    return 0;
  std::vector<std::size_t> found;
  Search({text, FromAnsi(text), mode != 0}, *range, found);
  return HandOutInfos(found, list, count);
}

// An exchange that the market does not list has nothing to be found.
int VLFindSymbol2(const char* text, const char* exchIds, SymbolInfo** list, int* count,
                  int reserved, int mode) {
  const bool proceed = Begin("VLFindSymbol2", text, exchIds, reserved, mode);
  if (!ClearOutputs(list, count) || !proceed || !text || !exchIds)
    return 0;
  if (*text == '\0')
    return 1;
  const Wanted wanted{text, FromAnsi(text), mode != 0};
  std::vector<std::size_t> found;
  ForEachToken(exchIds, [&](std::string_view exchange) {
    const int exchId = std::atoi(std::string(exchange).c_str());
    if (const ListingRange* range = CurrentListings().OfExchange(exchId))
      Search(wanted, *range, found);
  });
  return HandOutInfos(found, list, count);
}

int VLEX2ZUID2(const char* exchangeCode, SymbolInfo** list, int* count) {
  const bool proceed = Begin("VLEX2ZUID2", exchangeCode);
  if (!ClearOutputs(list, count) || !proceed || !exchangeCode)
    return 0;
  const std::string_view wanted = exchangeCode;
  const Listings& listings = CurrentListings();
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < listings.Count() && !wanted.empty(); ++i) {
    const std::string_view code = listings.Infos()[i].code;
    if (code.size() == wanted.size() && BeginsWith(code, wanted))
      found.push_back(i);
  }
  return HandOutInfos(found, list, count);
}
